#include "station/utilities/print_template.h"

#include "station/console/station_paths.h"
#include "station/platform/civil_time.h"
#include "station/platform/clock.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"

namespace quixair {
namespace {

constexpr PrintTemplateFamily kPickList = {"PrintPickListTemplate", "Print Template (Pick-List)", "*.TPP",
                                           "*.TPT"};
constexpr PrintTemplateFamily kSimpleSat = {"PrintSatTemplateMDI", "Print Template (Simple-Sat)", "*.TPL",
                                            "*.TPD"};
constexpr const char* kPick = "Double Click or Press <Done> to Select Entry";
constexpr const char* kListHint = "Double-Click or Enter to Select";

}  // namespace

PrintPickListTemplate::PrintPickListTemplate(const Platform& platform) : PrintTemplate(platform, kPickList) {}
PrintSatTemplateMDI::PrintSatTemplateMDI(const Platform& platform) : PrintTemplate(platform, kSimpleSat) {}

PrintTemplate::PrintTemplate(const Platform& platform, const PrintTemplateFamily& family)
    : Screen(platform, family.screen, family.title), family_(family), take_choice_(Command1.on_click) {
  File1.SetHint(kListHint);
  File2.SetHint(kListHint);
  choice_.on_pick = [this](const std::string&) { Text1.SetText(kPick); };
  choice_.on_choose = [this](const ChosenTemplate& chosen) { LoadTemplate(chosen.name); };
  Command1.on_click = Text3.on_enter = [this] { PressDone(); };
  Text2.on_enter = [this] { Text3.SetFocus(); };
  Command3.on_click = [this] {
    all_ = true;
    PressDone();
  };
  Command4.on_click = [this] { OpenRange(); };
  Command2.on_click = [this] { Unload(); };
}

void PrintTemplate::Load() {
  ShowTemplates(File1, family_.custom_pattern);
  ShowTemplates(File2, family_.daily_pattern);
  ShowRange(false);
  EnablePrinting(false);
  choice_.Reset();
  Text1.SetText("Select the template that you want to print.");
  File1.SetFocus();
}

void PrintTemplate::EnableChoice(bool enabled) {
  File1.Enable(enabled);
  File2.Enable(enabled);
}

void PrintTemplate::EnablePrinting(bool enabled) {
  Command3.Enable(enabled);
  Command4.Enable(enabled);
}

void PrintTemplate::ShowRange(bool shown) {
  range_open_ = shown;
  for (Control* control : std::initializer_list<Control*>{&Label3, &File1, &Label4, &File2}) {
    control->Show(!shown);
  }
  for (Control* control : std::initializer_list<Control*>{&List1, &Label1, &Text2, &Label2, &Text3}) {
    control->Show(shown);
  }
}

void PrintTemplate::LoadTemplate(const std::string& name) {
  Text1.SetText("File Selected for Printing = " + name);
  const Result<std::string> content = platform_.files.Read(station_paths::TemplateFile(name));
  if (!content.ok()) {
    TellFileFault(platform_.dialogs, content.status(), name + " was not loaded.");
    Load();
    return;
  }
  Text1.SetText("Loading " + name);
  EnableChoice(false);
  EnablePrinting(false);
  Command1.Disable();
  template_name_ = name;
  records_ = EventsToFirstEmpty(content.value(), kMostReportedEvents);
  events_.clear();
  work_.Start(
      {.step = [this] { return ReadEvent(); },
       .progress =
           [this] { Text1.SetText("Loading " + template_name_ + "  " + std::to_string(EventCount())); },
       .done = [this] { ShowLoaded(); }});
}

bool PrintTemplate::ReadEvent() {
  if (events_.size() < records_.size()) {
    events_.push_back(ReadReportedEvent(platform_.files, records_[events_.size()]));
  }
  return events_.size() < records_.size();
}

void PrintTemplate::ShowLoaded() {
  Text1.SetText(template_name_ + "  Has been Loaded...");
  EnableChoice(true);
  EnablePrinting(true);
  Command3.SetFocus();
}

void PrintTemplate::OpenRange() {
  std::vector<std::string> rows;
  for (const ReportedEvent& event : events_) rows.push_back(RangeRow(event));
  List1.SetRows(std::move(rows));
  Text2.SetText({});
  Text3.SetText({});
  ShowRange(true);
  Text1.SetText("Enter A Beginning Through Ending Number to Print - Then <Done>");
  Command4.Disable();
  Command1.Enable();
  Text2.SetFocus();
}

void PrintTemplate::PressDone() {
  if (std::exchange(all_, false)) {
    Print({1, EventCount()});
  } else if (range_open_) {
    const std::optional<PrintRange> range =
        TypedRange(platform_, Text2, Text3, {1, EventCount()}, MustBeNumber::kLowest);
    if (range) Print(*range);
  } else {
    take_choice_();
  }
}

void PrintTemplate::Print(const PrintRange& range) {
  if (!OperatorIsReadyToPrint(platform_, box_style::kQuestion)) return;
  PrintPages(platform_, TemplatePages(template_name_, events_, range, ShortDate(platform_.clock.Now())),
             "Quixair Template " + template_name_);
  ShowRange(false);
  Command1.Disable();
  ShowLoaded();
}

}  // namespace quixair
