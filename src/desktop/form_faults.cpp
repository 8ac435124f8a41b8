#include <QWidget>
#include <map>

#include "desktop/binder.h"
#include "desktop/station_text.h"

namespace quixair::desktop {
namespace {

using WidgetNames = std::map<QString, Control*>;

/// Not the toolkit's own parts of a widget, nor what a form adds for looks.
bool MustHaveControl(const QWidget& widget) {
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) &&
         !name.startsWith(QLatin1String("static")) && !name.startsWith(QLatin1String("view"));
}

void FindStrayWidgets(const QWidget& parent, const WidgetNames& controls, std::vector<std::string>& faults) {
  for (const QWidget* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const auto control = controls.find(child->objectName());
    if (control == controls.end() && MustHaveControl(*child)) {
      faults.push_back("widget " + child->objectName().toStdString() + " has no control");
    }
    const bool composite = control != controls.end() && control->second->kind() != ControlKind::kFrame;
    if (!composite) FindStrayWidgets(*child, controls, faults);
  }
}

/// The nearest control around the widget; forms may put plain containers between.
const Control* Surrounding(const QWidget& widget, const WidgetNames& controls) {
  for (const QWidget* around = widget.parentWidget(); around != nullptr; around = around->parentWidget()) {
    const auto control = controls.find(around->objectName());
    if (control != controls.end()) return control->second;
  }
  return nullptr;
}

}  // namespace

std::vector<std::string> FormFaults(Screen& screen, QWidget& form) {
  std::vector<std::string> faults;
  WidgetNames controls;
  for (Control* control : screen.controls()) {
    if (HasWidget(*control)) controls.emplace(WidgetName(control->name()), control);
  }
  for (const auto& [name, control] : controls) {
    auto* widget = form.findChild<QWidget*>(name);
    if (widget == nullptr) {
      faults.push_back("control " + control->name() + " has no widget");
      continue;
    }
    if (form.findChildren<QWidget*>(name).size() > 1)
      faults.push_back("control " + control->name() + " has two widgets");
    if (Bind(*control, *widget) == nullptr) {
      faults.push_back("control " + control->name() + " is a " + std::string(NameOf(control->kind())) +
                       ", its widget a " + widget->metaObject()->className());
    }
    if (Surrounding(*widget, controls) != control->frame()) {
      faults.push_back("control " + control->name() + " lies in another frame on the form");
    }
  }
  FindStrayWidgets(form, controls, faults);
  const QString harmless = form.property("harmless").toString();
  if (!harmless.isEmpty() && controls.count(harmless) == 0)
    faults.push_back("there is no control " + harmless.toStdString() + " to leave the focus to");
  return faults;
}

}  // namespace quixair::desktop
