#pragma once

// PrintPickListTemplate and PrintSatTemplateMDI print a template, whole or a range of its events. The two
// screens are one class; what they differ in is PrintTemplateFamily. Loading goes in portions; meanwhile only
// Quit answers.

#include <functional>
#include <vector>

#include "station/screen/portioned_work.h"
#include "station/screen/screen.h"
#include "station/templates/template_choice.h"
#include "station/utilities/template_report.h"

namespace quixair {

struct PrintTemplateFamily {
  const char *screen, *title;
  const char *custom_pattern, *daily_pattern;
};

class PrintTemplate : public Screen {
 public:
  PrintTemplate(const Platform& platform, const PrintTemplateFamily& family);
  void Load() override;

  Label Label3{*this, "Label3", "Custom Templates:"};
  FileListBox File1{*this, "File1"};
  Label Label4{*this, "Label4", "Daily Templates:"};
  FileListBox File2{*this, "File2"};
  ListBox List1{*this, "List1"};                       // the events, while a range is chosen
  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // status
  Label Label1{*this, "Label1", "Lowest:"};
  TextBox Text2{*this, "Text2"};
  Label Label2{*this, "Label2", "Highest:"};
  TextBox Text3{*this, "Text3"};
  Button Command1{*this, "Command1", "&Done"};
  Button Command3{*this, "Command3", "&Print All"};
  Button Command4{*this, "Command4", "Print &Range"};
  Button Command2{*this, "Command2", "&Quit"};
  Timer LoadTimer{*this, "LoadTimer"};  // the portions of loading

 private:
  int EventCount() const { return static_cast<int>(events_.size()); }
  void EnableChoice(bool enabled);
  void EnablePrinting(bool enabled);
  void ShowRange(bool shown);
  void LoadTemplate(const std::string& name);
  /// The next one; true while more are left.
  bool ReadEvent();
  void ShowLoaded();
  void OpenRange();
  /// What Done means by now.
  void PressDone();
  void Print(const PrintRange& range);

  const PrintTemplateFamily& family_;
  std::string template_name_;
  std::vector<TemplateEvent> records_;
  std::vector<ReportedEvent> events_;
  bool all_ = false;
  bool range_open_ = false;
  TemplateChoice choice_{File1, File2, Command1};
  std::function<void()> take_choice_;  // what Done does while a file is chosen
  PortionedWork work_{LoadTimer};
};

class PrintPickListTemplate : public PrintTemplate {
 public:
  explicit PrintPickListTemplate(const Platform& platform);
};

class PrintSatTemplateMDI : public PrintTemplate {
 public:
  explicit PrintSatTemplateMDI(const Platform& platform);
};

}  // namespace quixair
