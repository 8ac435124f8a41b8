#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "desktop/binding.h"
#include "desktop/station_text.h"

namespace quixair::desktop {
namespace {

constexpr int kNoLimit = 32767;  // the editor's own

/// The byte that a key types; none for keys that type nothing, or something outside the code page.
std::optional<char> TypedByte(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
    return std::nullopt;
  const QString text = event.text();
  if (text.size() != 1 || !text[0].isPrint()) return std::nullopt;
  const std::string bytes = FromQt(text);
  if (bytes.size() != 1 || (bytes[0] == '?' && text[0] != u'?')) return std::nullopt;
  return bytes[0];
}

/// One line of text.
class LineBinding : public Binding {
 public:
  LineBinding(TextBox& box, QLineEdit& widget) : Binding(box, widget), box_(box), widget_(widget) {
    widget.setReadOnly(box.read_only());
    if (box.read_only()) widget.setFocusPolicy(Qt::ClickFocus);
    widget.installEventFilter(this);
    connect(&widget, &QLineEdit::textEdited, this,
            [this](const QString& text) { Act([this, &text] { box_.Edit(FromQt(text)); }); });
    connect(&widget, &QLineEdit::returnPressed, this, [this] { Act([this] { box_.PressEnter(); }); });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != &widget_) return false;
    TellIfLeft(*event);
    return event->type() == QEvent::KeyPress && TakesKey(*static_cast<QKeyEvent*>(event));
  }

 protected:
  void ShowText() override {
    widget_.setMaxLength(box_.max_length() > 0 && !box_.read_only() ? box_.max_length() : kNoLimit);
    const QString text = box_.read_only() ? Trimmed(box_.text()) : ToQt(box_.text());
    if (widget_.text() == text) return;
    widget_.setText(text);
    if (box_.read_only()) widget_.setCursorPosition(0);
  }

 private:
  /// A key at the end of the text goes to the control, which may replace or refuse it; elsewhere the editor
  /// inserts it.
  bool TakesKey(const QKeyEvent& event) {
    const std::optional<char> key = TypedByte(event);
    if (control() == nullptr || box_.read_only() || !key) return false;
    if (widget_.hasSelectedText() || widget_.cursorPosition() < widget_.text().size()) return false;
    Act([this, &key] { box_.TypeKey(*key); });
    if (control() != nullptr) ShowText();  // the next key looks at the cursor
    return true;
  }

  TextBox& box_;
  QLineEdit& widget_;
};

/// Several lines; the station divides them by CR LF.
class PageBinding : public Binding {
 public:
  PageBinding(TextBox& box, QPlainTextEdit& widget) : Binding(box, widget), box_(box), widget_(widget) {
    widget.setReadOnly(box.read_only());
    widget.setTabChangesFocus(true);
    widget.installEventFilter(this);
    connect(&widget, &QPlainTextEdit::textChanged, this, [this] {
      Act([this] { box_.Edit(FromQt(widget_.toPlainText().replace(u'\n', QStringLiteral("\r\n")))); });
    });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &widget_) TellIfLeft(*event);
    return false;
  }

 protected:
  void ShowText() override {
    const QString text = ToQt(box_.text()).remove(u'\r');
    if (widget_.toPlainText() == text) return;
    const QSignalBlocker no_act(widget_);
    widget_.setPlainText(text);
  }

 private:
  TextBox& box_;
  QPlainTextEdit& widget_;
};

/// A box that only shows may be a label on the form.
class ShownLineBinding : public Binding {
 public:
  ShownLineBinding(TextBox& box, QLabel& widget) : Binding(box, widget), box_(box), widget_(widget) {
    widget.setTextFormat(Qt::PlainText);
  }

 protected:
  void ShowText() override { widget_.setText(Trimmed(box_.text())); }

 private:
  TextBox& box_;
  QLabel& widget_;
};

}  // namespace

std::unique_ptr<Binding> BindTextBox(TextBox& box, QWidget& widget) {
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) return std::make_unique<LineBinding>(box, *line);
  if (auto* page = qobject_cast<QPlainTextEdit*>(&widget)) return std::make_unique<PageBinding>(box, *page);
  auto* label = qobject_cast<QLabel*>(&widget);
  if (label != nullptr && box.read_only()) return std::make_unique<ShownLineBinding>(box, *label);
  return nullptr;
}

}  // namespace quixair::desktop
