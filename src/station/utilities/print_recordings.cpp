#include "station/utilities/print_recordings.h"

#include <chrono>

#include "station/platform/civil_time.h"
#include "station/platform/clock.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr std::chrono::milliseconds kPrinterLook{1000};
constexpr const char* kBanner = "Choose what to list, sort it, then print all of it or a range.";
constexpr const char* kThanks = "Thanks for Using Quixair 2000";
constexpr Color kGrey{0xC0C0C0};  // palette colour 7

std::string Numbers(int first, int last) {
  return std::to_string(first) + " through " + std::to_string(last);
}

}  // namespace

PrintRecordingsMDI::PrintRecordingsMDI(const Platform& platform)
    : Screen(platform, "PrintRecordingsMDI", "Print Recordings Utility") {
  Command15.SetHint("Display in Alphabetical Order by File Name");
  Command16.SetHint("Display in Alphabetical Order by Account/Artist");
  Frame3.SetHint("Select Lowest and Highest Values");
  Command7.on_click = [this] { LoadKind(RecordingKind::kSpot); };
  Command8.on_click = [this] { LoadKind(RecordingKind::kMusic); };
  Command9.on_click = [this] { LoadKind(RecordingKind::kLiner); };
  Command1.on_click = [this] { ShowFrame(&Frame2); };
  Command15.on_click = [this] { SortBy(kFileNameKey, "Sorted By File Name"); };
  Command16.on_click = [this] { SortBy(kNameKey, "Sorted By Account Name"); };
  Command19.on_click = [this] { SortBy(kTitleKey, "Sorted By Title"); };
  Command17.on_click = [this] { ShowFrame(nullptr); };
  Command3.on_click = [this] { PrintAll(); };
  Command4.on_click = [this] { OpenRange(); };
  Command23.on_click = Text3.on_enter = [this] { PrintTypedRange(); };
  Text2.on_enter = [this] { Text3.SetFocus(); };
  Command24.on_click = [this] { CancelPrinting(); };
  Command21.on_click = [this] {
    if (platform_.dialogs.MessageBox("Do you want to start again?", box_style::kYesNo + box_style::kQuestion,
                                     "Restart?") == Answer::kYes) {
      StartOver();
    }
  };
  Command2.on_click = [this] { Unload(); };
  Timer1.on_tick = [this] { ShowDefaultPrinter(); };
  Timer1.SetInterval(kPrinterLook);
}

void PrintRecordingsMDI::Load() {
  StartOver();
}

void PrintRecordingsMDI::StartOver() {
  report_ = nullptr;
  MSFlexGrid1.SetColumns(std::vector<GridColumn>(kGridColumns));
  MSFlexGrid1.Clear();
  Label3.SetCaption({});
  Text4.SetText({});
  Text5.SetText({});
  ShowBanner();
  ShowDefaultPrinter();
  ShowFrame(&Frame1);
  Command7.SetFocus();
}

void PrintRecordingsMDI::ShowBanner() {
  Text1.SetBackColor(std::nullopt);
  Text1.SetText(kBanner);
}

void PrintRecordingsMDI::ShowDefaultPrinter() {
  Label5.SetCaption("Default Printer: " + platform_.printer.DefaultName());
}

void PrintRecordingsMDI::ShowFrame(Frame* shown) {
  for (Frame* frame : {&Frame1, &Frame2, &Frame3}) frame->Show(frame == shown);
  EnablePrinting(shown == nullptr && report_ != nullptr);
}

void PrintRecordingsMDI::EnablePrinting(bool enabled) {
  for (Button* button : {&Command1, &Command3, &Command4}) button->Enable(enabled);
}

void PrintRecordingsMDI::LoadKind(RecordingKind kind) {
  report_ = &LibraryReportOf(kind);
  const std::string plural = report_->plural;
  const std::string loading = "Loading " + plural + ", Please Wait...";
  Text5.SetText(loading);
  Label3.SetCaption("PRINT " + UpperCased(plural));
  ids_ = ListRecordings(platform_.files, report_->kind);
  if (ids_.empty()) {
    TellNoFiles();
    return;
  }
  Text4.SetText(loading);
  Text5.SetText(std::to_string(ids_.size()) + ' ' + report_->singular + " Files Present");
  ShowFrame(nullptr);
  EnablePrinting(false);
  Command21.Disable();
  MSFlexGrid1.Clear();
  MSFlexGrid1.SetColumns(GridColumnsOf(*report_));
  loaded_.clear();
  work_.Start(
      {.step =
           [this] {
             loaded_.push_back(LibraryRow(*report_, platform_.files, ids_[loaded_.size()]));
             return loaded_.size() < ids_.size();
           },
       .progress = [this, loading] { Text4.SetText(loading + "  " + std::to_string(loaded_.size())); },
       .done = [this] { ShowLoaded(); }});
}

void PrintRecordingsMDI::TellNoFiles() {
  Text5.SetText("NO " + UpperCased(report_->singular) + " FILES FOUND");
  const std::string words = "No " + std::string(report_->singular) + " Files Found";
  platform_.dialogs.MessageBox(words, box_style::kOk + box_style::kExclamation, words);
  report_ = nullptr;
  ShowFrame(&Frame1);
}

void PrintRecordingsMDI::ShowLoaded() {
  MSFlexGrid1.SetRows(std::move(loaded_));
  MSFlexGrid1.NumberRows(kNumberColumn);
  Text4.SetText(std::to_string(MSFlexGrid1.row_count()) + ' ' + report_->singular + " Files Present");
  Text5.SetText(std::string(report_->plural) + " Loaded");
  Command21.Enable();
  ShowFrame(&Frame2);
  Command15.SetFocus();
}

void PrintRecordingsMDI::SortBy(std::size_t key, const char* words) {
  const std::string before = Text5.text();
  Text5.SetText("Sorting.  Please Wait...");
  Repaint();
  MSFlexGrid1.SortBy(key);
  MSFlexGrid1.NumberRows(kNumberColumn);
  Text5.SetText(before);
  Text1.SetBackColor(std::nullopt);
  Text1.SetText(words);
  ShowFrame(nullptr);
  Command3.SetFocus();
}

void PrintRecordingsMDI::OpenRange() {
  Text1.SetBackColor(std::nullopt);
  Text1.SetText("Enter A Beginning Through Ending Number to Print - Then <Done>");
  Frame3.SetCaption("Select Range to Print:");
  Text2.SetText({});
  Text3.SetText({});
  ShowFrame(&Frame3);
  Text2.SetFocus();
}

void PrintRecordingsMDI::PrintTypedRange() {
  const PrintRange all = Listed();
  const std::optional<PrintRange> range = TypedRange(platform_, Text2, Text3, all, MustBeNumber::kBoth);
  if (!range) return;
  RemoveItems(range->highest + 1, all.highest);  // from the highest down
  RemoveItems(all.lowest, range->lowest - 1);
  PrintAll();
}

/// The numbers of the rows: those that are left keep theirs.
PrintRange PrintRecordingsMDI::Listed() const {
  const int first = WholeValue(MSFlexGrid1.cell(0, kNumberColumn));
  return {first, first + MSFlexGrid1.row_count() - 1};
}

void PrintRecordingsMDI::RemoveItems(int first, int last) {
  if (last < first) return;
  Text1.SetText("Removing items " + Numbers(first, last));
  Repaint();
  const int offset = Listed().lowest;
  MSFlexGrid1.RemoveRows(first - offset, last - offset);
  Text1.SetText("Items " + Numbers(first, last) + " have been removed.");
}

void PrintRecordingsMDI::PrintAll() {
  if (!OperatorIsReadyToPrint(platform_, box_style::kInformation)) {
    CancelPrinting();
    return;
  }
  const std::vector<PrintedPage> pages =
      LibraryPages(*report_, MSFlexGrid1.rows(), ShortDate(platform_.clock.Now()));
  PrintPages(platform_, pages, std::string("Quixair ") + report_->plural);
  ShowBanner();
  ShowFrame(nullptr);
}

void PrintRecordingsMDI::CancelPrinting() {
  ShowFrame(nullptr);
  Text1.SetBackColor(kGrey);
  Text1.SetText(kThanks);
}

}  // namespace quixair
