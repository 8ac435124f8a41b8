#pragma once

// A screen with one control of each kind, and its form, for tests of the binder.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/grid_table.h"
#include "desktop/row_list.h"
#include "desktop/views/transport_bar.h"
#include "station/screen/grid.h"
#include "station/screen/screen.h"

namespace quixair::testing {

class SampleScreen : public Screen {
 public:
  explicit SampleScreen(const Platform& platform) : Screen(platform, "Sample", "Sample") {}

  Label Label1{*this, "Label1", "Caption"};
  Button Command1{*this, "Command1", "&Press"};
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  TextBox Status{*this, "Status", TextBox::Use::kShow};
  ListBox List1{*this, "List1"};
  DriveListBox Drive1{*this, "Drive1"};
  DirListBox Dir1{*this, "Dir1"};
  CheckBox Check1{*this, "Check1", "Check"};
  Frame Frame1{*this, "Frame1", "Options"};
  OptionButton Option1{Frame1, "Option(0)", "First"};
  OptionButton Option2{Frame1, "Option(1)", "Second"};
  Grid Grid1{*this, "Grid1"};
  MediaControl MMControl1{*this, "MMControl1", 1};
  Timer Timer1{*this, "Timer1"};
};

struct SampleForm {
  SampleForm();
  QWidget root;
  QLabel* label;
  QPushButton* button;
  QLineEdit* line;
  QPlainTextEdit* page;
  QLineEdit* status;
  desktop::RowList* list;
  QComboBox* drives;
  desktop::RowList* folders;
  QCheckBox* check;
  QGroupBox* frame;
  QRadioButton* first;
  QRadioButton* second;
  desktop::GridTable* grid;
  desktop::TransportBar* bar;
};

template <class Kind>
Kind* AddWidget(QWidget& parent, const char* name) {
  auto* widget = new Kind(&parent);
  widget->setObjectName(QString::fromLatin1(name));
  parent.layout()->addWidget(widget);
  return widget;
}

inline SampleForm::SampleForm() {
  new QVBoxLayout(&root);
  label = AddWidget<QLabel>(root, "Label1");
  button = AddWidget<QPushButton>(root, "Command1");
  line = AddWidget<QLineEdit>(root, "Text1");
  page = AddWidget<QPlainTextEdit>(root, "Text2");
  status = AddWidget<QLineEdit>(root, "Status");
  list = AddWidget<desktop::RowList>(root, "List1");
  drives = AddWidget<QComboBox>(root, "Drive1");
  folders = AddWidget<desktop::RowList>(root, "Dir1");
  check = AddWidget<QCheckBox>(root, "Check1");
  frame = AddWidget<QGroupBox>(root, "Frame1");
  new QVBoxLayout(frame);
  first = AddWidget<QRadioButton>(*frame, "Option_0");
  second = AddWidget<QRadioButton>(*frame, "Option_1");
  grid = AddWidget<desktop::GridTable>(root, "Grid1");
  bar = AddWidget<desktop::TransportBar>(root, "MMControl1");
  root.resize(400, 700);
}

}  // namespace quixair::testing
