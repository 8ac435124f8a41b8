#include "desktop/binding.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QToolButton>

#include "desktop/grid_table.h"
#include "desktop/row_list.h"
#include "desktop/station_text.h"
#include "desktop/views/transport_bar.h"
#include "station/screen/grid.h"

namespace quixair::desktop {
namespace {

constexpr const char* kBlack = "#000000";
constexpr const char* kWhiteText = "#ffffff";

QString Hex(Color color) {
  return QStringLiteral("#%1").arg(color.rgb, 6, 16, QChar(u'0'));
}

/// On a ground of the station's own the text must stay readable in every theme.
QString ReadableOn(Color ground) {
  const unsigned red = (ground.rgb >> 16U) & 0xFFU;
  const unsigned green = (ground.rgb >> 8U) & 0xFFU;
  const unsigned blue = ground.rgb & 0xFFU;
  return QLatin1String(299 * red + 587 * green + 114 * blue > 128000 ? kBlack : kWhiteText);
}

class LabelBinding : public Binding {
 public:
  LabelBinding(Label& label, QLabel& widget) : Binding(label, widget), label_(label), widget_(widget) {
    widget.setTextFormat(Qt::PlainText);
  }

 protected:
  /// A label of several lines breaks where its caption has a gap, as a button does.
  void ShowText() override {
    widget_.setText(widget_.wordWrap() ? WithLineBreaks(label_.caption()) : ToQt(label_.caption()));
  }

 private:
  Label& label_;
  QLabel& widget_;
};

class ButtonBinding : public Binding {
 public:
  ButtonBinding(Button& button, QAbstractButton& widget)
      : Binding(button, widget), button_(button), widget_(widget) {
    connect(&widget, &QAbstractButton::clicked, this, [this] { Act([this] { button_.Click(); }); });
  }

 protected:
  void ShowText() override { widget_.setText(WithLineBreaks(button_.caption())); }

 private:
  Button& button_;
  QAbstractButton& widget_;
};

class CheckBinding : public Binding {
 public:
  CheckBinding(CheckBox& box, QCheckBox& widget) : Binding(box, widget), box_(box), widget_(widget) {
    connect(&widget, &QAbstractButton::clicked, this,
            [this](bool ticked) { Act([this, ticked] { box_.PersonTicks(ticked); }); });
  }

 protected:
  void ShowText() override { widget_.setText(Trimmed(box_.caption())); }
  void ShowTicked() override { widget_.setChecked(box_.ticked()); }

 private:
  CheckBox& box_;
  QCheckBox& widget_;
};

class OptionBinding : public Binding {
 public:
  OptionBinding(OptionButton& option, QRadioButton& widget)
      : Binding(option, widget), option_(option), widget_(widget) {
    connect(&widget, &QAbstractButton::clicked, this, [this] { Act([this] { option_.PersonSelects(); }); });
  }

 protected:
  void ShowText() override { widget_.setText(Trimmed(option_.caption())); }
  void ShowTicked() override {
    const bool exclusive = widget_.autoExclusive();
    widget_.setAutoExclusive(false);  // an exclusive button cannot be cleared
    widget_.setChecked(option_.selected());
    widget_.setAutoExclusive(exclusive);
  }

 private:
  OptionButton& option_;
  QRadioButton& widget_;
};

/// A frame is clicked anywhere on it; one that can hold the focus takes a key for a click.
class FrameBinding : public Binding {
 public:
  FrameBinding(Frame& frame, QWidget& widget) : Binding(frame, widget), frame_(frame), widget_(widget) {
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool clicked = event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyPress;
    if (watched != &widget_ || !clicked || (event->type() == QEvent::KeyPress && !widget_.hasFocus()))
      return false;
    Act([this] { frame_.Click(); });
    return false;
  }

 protected:
  void ShowText() override {
    if (auto* group = qobject_cast<QGroupBox*>(&widget_)) group->setTitle(ToQt(frame_.caption()));
  }

 private:
  Frame& frame_;
  QWidget& widget_;
};

class ListBinding : public Binding {
 public:
  ListBinding(ListBox& list, RowList& widget) : Binding(list, widget), list_(list), widget_(widget) {
    widget.setSelectionMode(list.several() ? QAbstractItemView::ExtendedSelection
                                           : QAbstractItemView::SingleSelection);
    widget.list_rows().SetSource(&list);
    widget.on_select = [this](std::vector<int> rows) {
      Act([this, &rows] { list_.PersonSelects(std::move(rows)); });
    };
    widget.on_double_click = [this] { Act([this] { list_.DoubleClick(); }); };
    widget.on_enter = [this] { Act([this] { list_.PressEnter(); }); };
  }

  ~ListBinding() override {
    widget_.on_select = nullptr;
    widget_.on_double_click = nullptr;
    widget_.on_enter = nullptr;
    widget_.list_rows().SetSource(nullptr);
  }

  void Leave() override {
    Binding::Leave();
    widget_.list_rows().SetSource(nullptr);
  }

 protected:
  void ShowRows() override {
    widget_.ResetRows();
    ShowSelection();
  }
  void ShowSelection() override { widget_.ShowSelection(list_.selected_rows()); }
  void ShowTopRow() override { widget_.ShowFrom(list_.top_row()); }

 private:
  ListBox& list_;
  RowList& widget_;
};

class GridBinding : public Binding {
 public:
  GridBinding(Grid& grid, GridTable& widget) : Binding(grid, widget), widget_(widget) {
    widget.SetSource(&grid);
  }
  ~GridBinding() override { widget_.SetSource(nullptr); }

  void Leave() override {
    Binding::Leave();
    widget_.SetSource(nullptr);
  }

 protected:
  void ShowColumns() override { widget_.ShowColumns(); }
  void ShowRows() override { widget_.ResetRows(); }

 private:
  GridTable& widget_;
};

class DriveBinding : public Binding {
 public:
  DriveBinding(DriveListBox& drives, QComboBox& widget)
      : Binding(drives, widget), drives_(drives), widget_(widget) {
    connect(&widget, &QComboBox::activated, this,
            [this](int row) { Act([this, row] { drives_.PersonSelects({row}); }); });
    widget.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &widget_) TellIfLeft(*event);
    return false;
  }

 protected:
  void ShowRows() override {
    widget_.clear();
    for (const std::string& row : drives_.rows()) widget_.addItem(ToQt(row));
    ShowSelection();
  }
  void ShowSelection() override { widget_.setCurrentIndex(drives_.selected_index()); }

 private:
  DriveListBox& drives_;
  QComboBox& widget_;
};

class MediaBinding : public Binding {
 public:
  MediaBinding(MediaControl& channel, TransportBar& widget)
      : Binding(channel, widget), channel_(channel), widget_(widget) {
    widget.Follow(&channel);
    connect(&widget.play_button(), &QAbstractButton::clicked, this,
            [this] { Act([this] { channel_.ClickPlay(); }); });
    connect(&widget.pause_button(), &QAbstractButton::clicked, this,
            [this] { Act([this] { channel_.ClickPause(); }); });
  }

  ~MediaBinding() override { widget_.Follow(nullptr); }

  void Leave() override {
    Binding::Leave();
    widget_.Follow(nullptr);
  }

 protected:
  void ShowTransport() override { widget_.ShowState(); }

 private:
  MediaControl& channel_;
  TransportBar& widget_;
};

template <class BindingType, class ControlType, class WidgetType>
std::unique_ptr<Binding> BindAs(Control& control, QWidget& widget) {
  auto* fitting = dynamic_cast<WidgetType*>(&widget);
  if (fitting == nullptr) return nullptr;
  return std::make_unique<BindingType>(static_cast<ControlType&>(control), *fitting);
}

}  // namespace

void Binding::Act(const std::function<void()>& act) {
  if (control_ == nullptr) return;
  const QPointer<Binding> self(this);
  act();
  if (self.isNull() || control_ == nullptr) return;
  Mark(Aspect::kText);
  Mark(Aspect::kTicked);
  Mark(Aspect::kSelection);
  if (on_act) on_act();
}

/// Focus that goes to another program or to a menu comes back: the person has not left the widget.
void Binding::TellIfLeft(const QEvent& event) {
  if (event.type() != QEvent::FocusOut) return;
  const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
  if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
      reason == Qt::MenuBarFocusReason) {
    return;
  }
  Act([this] { control_->LeaveFocus(); });
}

void Binding::Apply() {
  if (control_ == nullptr || marked_ == 0) return;
  const unsigned marked = std::exchange(marked_, 0);
  const auto is_marked = [marked](Aspect aspect) { return (marked & Bit(aspect)) != 0; };
  if (is_marked(Aspect::kText)) ShowText();
  if (is_marked(Aspect::kColumns)) ShowColumns();
  if (is_marked(Aspect::kRows)) ShowRows();
  if (is_marked(Aspect::kSelection)) ShowSelection();
  if (is_marked(Aspect::kTopRow)) ShowTopRow();
  if (is_marked(Aspect::kTicked)) ShowTicked();
  if (is_marked(Aspect::kTransport)) ShowTransport();
  if (is_marked(Aspect::kColors)) ShowColors();
  if (is_marked(Aspect::kHint)) ShowHint();
  if (is_marked(Aspect::kEnabled)) widget_.setEnabled(control_->enabled());
  if (is_marked(Aspect::kVisible)) widget_.setVisible(control_->visible());
  if (is_marked(Aspect::kFocus)) widget_.setFocus(Qt::OtherFocusReason);
}

void Binding::ShowColors() {
  const std::optional<Color> fore = control_->fore_color();
  const std::optional<Color> back = control_->back_color();
  QString rules;
  if (back) rules += QStringLiteral("background-color: %1;").arg(Hex(*back));
  if (fore || back) rules += QStringLiteral("color: %1;").arg(fore ? Hex(*fore) : ReadableOn(*back));
  const QString sheet =
      rules.isEmpty() ? rules : QStringLiteral("#%1 { %2 }").arg(widget_.objectName(), rules);
  if (widget_.styleSheet() != sheet) widget_.setStyleSheet(sheet);
}

void Binding::ShowHint() {
  const QString hint = ToQt(control_->hint());
  widget_.setToolTip(hint);
  widget_.setStatusTip(hint);
}

bool HasWidget(const Control& control) {
  return control.kind() != ControlKind::kTimer && control.kind() != ControlKind::kRecorder &&
         control.kind() != ControlKind::kMenu;
}

std::unique_ptr<Binding> Bind(Control& control, QWidget& widget) {
  switch (control.kind()) {
    case ControlKind::kLabel:
      return BindAs<LabelBinding, Label, QLabel>(control, widget);
    case ControlKind::kTextBox:
      return BindTextBox(static_cast<TextBox&>(control), widget);
    case ControlKind::kListBox:
    case ControlKind::kFileListBox:
    case ControlKind::kDirListBox:
      return BindAs<ListBinding, ListBox, RowList>(control, widget);
    case ControlKind::kDriveListBox:
      return BindAs<DriveBinding, DriveListBox, QComboBox>(control, widget);
    case ControlKind::kCheckBox:
      return BindAs<CheckBinding, CheckBox, QCheckBox>(control, widget);
    case ControlKind::kOptionButton:
      return BindAs<OptionBinding, OptionButton, QRadioButton>(control, widget);
    case ControlKind::kButton:
      return BindAs<ButtonBinding, Button, QAbstractButton>(control, widget);
    case ControlKind::kFrame:
      return BindAs<FrameBinding, Frame, QWidget>(control, widget);
    case ControlKind::kMedia:
      return BindAs<MediaBinding, MediaControl, TransportBar>(control, widget);
    case ControlKind::kGrid:
      return BindAs<GridBinding, Grid, GridTable>(control, widget);
    case ControlKind::kTimer:
    case ControlKind::kRecorder:
    case ControlKind::kMenu:
      break;
  }
  return nullptr;
}

}  // namespace quixair::desktop
