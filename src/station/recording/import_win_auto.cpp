#include "station/recording/import_win_auto.h"

#include <algorithm>
#include <utility>

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/library/recording.h"
#include "station/platform/civil_time.h"
#include "station/platform/clock.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

constexpr int kFieldLimit = 20;
constexpr int kYearLimit = 4;
constexpr std::size_t kLeftOutShown = 5;
constexpr std::chrono::seconds kTimeForStop{2};
constexpr const char* kImporting =
    "Importing...  Click 'Stop' to stop after the file that is being imported.";
constexpr const char* kReady = "Click the Import button to create the new file(s)..";
constexpr const char* kBoxTitle = "Quixair";

std::string Lower(char letter) {
  return {static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter)};
}

std::string DriveText(char letter) {
  return letter == 0 ? std::string() : Lower(letter) + ':';
}

std::string Cut(const std::string& text, int limit) {
  return text.substr(0, static_cast<std::size_t>(limit));
}

}  // namespace

ImportWinAuto::ImportWinAuto(const Platform& platform)
    : ImportScreen(platform, "ImportWinAuto", "Fast Song Importer ") {
  File2.AllowSeveral();
  Text2.SetMaxLength(kFieldLimit);
  Text3.SetMaxLength(kFieldLimit);
  Text4.SetMaxLength(kYearLimit);
  Option1.SetHint("Uses first 3 letters of file name");
  Check1.SetHint("Copies all other files automatically in the directory after the file that is highlighted");
  Text2.SetHint("Overwrite Artist Here");
  Text3.SetHint("Overwrite Title Here");
  Text4.SetHint("Overwrite Year Here");
  source_.on_change = [this] {
    Text1.SetText("Choose file to import by clicking the .MP3 or .WAV file or pressing <enter>...");
  };
  File2.on_click = File2.on_double_click = File2.on_enter = [this] {
    if (File2.selected_index() >= 0) Text1.SetText(kReady);
  };
  Drive2.on_click = [this] { TargetDriveChosen(); };
  Command1.on_click = [this] { Import(); };
  Command2.on_click = [this] {
    if (run_) {
      run_->stop = true;
      Command2.Disable();
      return;
    }
    SaveSettings();
    Unload();
  };
  Command3.on_click = [this] {
    SaveSettings();
    StartOver();
  };
  Command4.on_click = [this] { ShowHelp(); };
}

std::vector<Control*> ImportWinAuto::LockedByImport() {
  return {&Drive2, &Frame1, &Check1, &Text2, &Text3, &Text4, &Command1, &Command3, &Command4};
}

void ImportWinAuto::StartOver() {
  for (TextBox* field : {&Text2, &Text3, &Text4}) field->SetText("");
  Option1.Select();
  Check1.Tick(true);
  source_.ShowFirst();
  Drive2.Refresh();
  Drive2.Select(-1);
  ShowDataFiles();
  Progress.SetCaption("");
  Text1.SetText("Select an existing .WAV or .MP3 file to import...");
  ReadSettings();
  ShowTargetDrive();
  File2.SetFocus();
}

void ImportWinAuto::ReadSettings() {
  const std::string content = platform_.files.Read(station_paths::kFastImport).value_or({});
  const std::vector<std::string> values = ReadValues(content, 5);
  if (values.size() < 5) return;
  if (!values[0].empty()) Drive2.SelectDrive(values[0].front());
  source_.GoTo(values[1]);
  const bool alphabetic = WholeValue(values[3]) == 1;
  (alphabetic ? Option1 : Option2).Select();
  Check1.Tick(WholeValue(values[4]) == 1);
}

void ImportWinAuto::SaveSettings() {
  const WriteForm form = WriteForm()
                             .Text(DriveText(Drive2.drive()))
                             .Text(Dir1.path())
                             .Text(DriveText(Drive1.drive()))
                             .Number(Option1.selected() ? 1 : 0)
                             .Number(Check1.ticked() ? 1 : 0);
  SkipAndGoOn(platform_.files.Write(station_paths::kFastImport, form.bytes()));
}

std::string ImportWinAuto::TargetDrive() const {
  return Drive2.drive() == 0 ? std::string() : Lower(Drive2.drive());
}

void ImportWinAuto::TargetDriveChosen() {
  const char letter = Drive2.drive();
  if (platform_.files.ListFolders(DriveText(letter) + '\\').error() == RunTimeError::kDiskNotReady) {
    Drive2.SelectDrive('C');
    TellDriveMissing(platform_.dialogs, letter);
  }
  ShowTargetDrive();
}

void ImportWinAuto::ShowTargetDrive() {
  Label5.SetCaption("File will be imported to Drive " + TargetDrive() + "...");
}

void ImportWinAuto::Import() {
  Dialogs& dialogs = platform_.dialogs;
  if (TargetDrive().empty()) {
    dialogs.MessageBox("Select a Drive to Import to Before Continuing!", box_style::kOk, kBoxTitle);
    return Drive2.SetFocus();
  }
  std::vector<int> rows = File2.selected_rows();
  if (rows.empty()) {
    dialogs.MessageBox("Select a File to Import Before Continuing!", box_style::kOk, kBoxTitle);
    return File2.SetFocus();
  }
  SaveSettings();
  const IdConvention convention = Option1.selected() ? IdConvention::kAlphabetic : IdConvention::kNumeric;
  run_.emplace(Run{.ids = SongIds(platform_.files, convention),
                   .names = {},
                   .sources = {},
                   .next = 0,
                   .imported = 0,
                   .stop = false,
                   .left_out = {},
                   .not_before = {}});
  std::sort(rows.begin(), rows.end());
  for (const int row : rows) {
    run_->names.push_back(File2.row(row));
    run_->sources.insert(UpperCased(Dir1.FileIn(File2.row(row))));
  }
  Text1.SetText(kImporting);
  Command2.SetCaption("&Stop");
  ShowProgress();
  Work(true);
  Command2.SetFocus();
}

void ImportWinAuto::Step() {
  if (import_.IsBusy()) {
    import_.Step();
  } else if (run_->stop || platform_.clock.Steady() >= run_->not_before) {
    NextFile();
  }
  if (run_) ShowProgress();
}

void ImportWinAuto::NextFile() {
  if (run_->stop || run_->next == run_->names.size()) return EndRun();
  Text1.SetText(kImporting);
  const std::string& name = run_->names[run_->next];
  const NameFields fields = FieldsFromName(name);
  Text2.SetText(fields.artist);
  Text3.SetText(fields.title);
  Text4.SetText(std::to_string(platform_.clock.Now().year));
  const std::optional<std::string> id = run_->ids.FreeId(name);
  if (!id) {
    TellEndOfSeries();
    return EndRun();
  }
  Label5.SetCaption("File will be imported to " + *id + " on Drive " + TargetDrive() + "...");
  if (Check1.ticked()) AskForFields(*id, name);
  const AudioImport::Job job{.folder = Dir1.path(), .name = name, .id = *id, .drive = TargetDrive()};
  if (AudioImport::IsOntoItself(platform_.files, job) || WouldRemoveASource(job)) {
    if (Check1.ticked()) TellOntoItself();
    return LeaveOut("would overwrite a file chosen");
  }
  import_.Examine(job);
}

void ImportWinAuto::AskForFields(const std::string& id, const std::string& name) {
  const struct {
    TextBox& field;
    const char* prompt;
  } questions[] = {
      {Text2, "Edit the ARTIST if necessary [20 char. max.], then press OK or Enter"},
      {Text3, "Edit the TITLE if necessary [20 char. max.], then press OK or Enter"},
      {Text4, "Edit the FROM YEAR if necessary [4 char. max.], then press OK or Enter"},
  };
  for (const auto& [field, prompt] : questions) {
    const InputOffer offer{.text = field.text(), .use = InputOffer::Use::kWhole, .limit = field.max_length()};
    field.SetText(platform_.dialogs.InputBox(prompt, "About to Create " + id + " From " + name, offer));
  }
}

bool ImportWinAuto::WouldRemoveASource(const AudioImport::Job& job) const {
  if (!EqualsIgnoringCase(job.folder, job.TargetFolder())) return false;
  for (const std::string& old : job.OldAudio()) {
    if (run_->sources.contains(UpperCased(old))) return true;
  }
  return false;
}

void ImportWinAuto::Examined(bool playable) {
  if (!playable) {
    if (Check1.ticked()) TellUnplayable(import_.job().name);
    return LeaveOut("cannot be played");
  }
  if (!Check1.ticked() || MayOverwrite(import_.job())) return import_.Copy();
  // The next question would come at once, for ever in the way of the one who cancels since he wants no more.
  run_->not_before = platform_.clock.Steady() + kTimeForStop;
  Text1.SetText("Left out " + import_.job().name + ".  Click 'Stop' to import no more files.");
  LeaveOut("cancelled");
}

void ImportWinAuto::Copied(std::optional<std::string> length) {
  if (length) length_ = *length;
  const AudioImport::Job job = import_.job();
  const Status written = WriteSong(job.id);
  if (!written.ok()) {
    SkipAndGoOn(platform_.files.Delete(job.TargetPath()));  // a song without data is nobody's
    TellFault(written);
    return Failed();
  }
  ++run_->imported;
  ++run_->next;
  if (!Check1.ticked()) return;
  platform_.dialogs.MessageBox("New File Length is: " + length_ + " Seconds", box_style::kOk,
                               "Import Successful");
}

Status ImportWinAuto::WriteSong(const std::string& id) {
  Recording song(id);
  song.Set(Field::kLength, length_);
  song.Set(Field::kRecordingId, id);
  song.Set(Field::kDrive, TargetDrive());
  song.Set(Field::kArtist, Cut(Text2.text(), kFieldLimit));
  song.Set(Field::kTitle, Cut(Text3.text(), kFieldLimit));
  song.Set(Field::kStartDate, MonthDayYear(platform_.clock.Now()));
  song.Set(Field::kFromYear, Cut(Text4.text(), kYearLimit));
  // Not flushed: hundreds of waits for a busy disk would hold up the air, and the source is still there.
  return song.Write(platform_.files, Durability::kOrdinary);
}

void ImportWinAuto::LeaveOut(const char* reason) {
  run_->left_out.push_back(run_->names[run_->next] + " (" + reason + ')');
  ++run_->next;
}

void ImportWinAuto::Failed() {
  EndRun();
  const std::string told = Progress.caption();
  StartOver();
  Progress.SetCaption(told);
}

void ImportWinAuto::ShowProgress() {
  std::string text = std::to_string(std::min(run_->next + 1, run_->names.size())) + " of " +
                     std::to_string(run_->names.size());
  if (import_.IsBusy() && !import_.Progress().empty()) text += ", " + import_.Progress();
  Progress.SetCaption(text);
}

void ImportWinAuto::EndRun() {
  const Run run = *std::exchange(run_, std::nullopt);
  std::string told =
      std::to_string(run.imported) + " of " + std::to_string(run.names.size()) + " files imported.";
  if (!run.left_out.empty()) {
    told += "  Left out:";
    const std::size_t shown = std::min(run.left_out.size(), kLeftOutShown);
    for (std::size_t i = 0; i < shown; ++i) told += (i == 0 ? " " : ", ") + run.left_out[i];
    if (shown < run.left_out.size()) told += " and " + std::to_string(run.left_out.size() - shown) + " more";
  }
  Command2.SetCaption("&Quit");
  Command2.Enable();
  Work(false);
  const bool whole = run.next == run.names.size();
  Text1.SetText(whole ? "Done Importing!" : "The import was stopped.");
  for (TextBox* field : {&Text2, &Text3, &Text4}) field->SetText("");
  File2.Refresh();
  File1.Refresh();
  Progress.SetCaption(told);
  ShowTargetDrive();
  File2.SetFocus();
}

void ImportWinAuto::TellEndOfSeries() {
  const bool alphabetic = Option1.selected();
  const std::string last = std::to_string(alphabetic ? LastInSeries(IdConvention::kAlphabetic)
                                                     : LastInSeries(IdConvention::kNumeric));
  platform_.dialogs.MessageBox("Sorry, you have reached the highest # in this \nseries (" + last +
                                   ") please rename the original file or import manually.",
                               box_style::kCritical,
                               "Reached last in series" + (alphabetic ? std::string() : " (" + last + ")"));
}

void ImportWinAuto::ShowHelp() {
  platform_.dialogs.MessageBox(
      "Choose the drive and folder to import from, and select the files: hold SHIFT to select all from one "
      "file to another, CTRL to add single ones.  Choose the drive to import to.\n\n"
      "Alphabetic makes ids of M, the first 3 letters of the file name and a number from 1 to 999.  Numeric "
      "makes them of M and a number from 1 to 9999.  The first number that is free is taken.\n\n"
      "The first 20 letters of the file name become the artist, the next 20 the title, the present year the "
      "year.  With 'Ask Before Importing Each Selected File' ticked you can change them for each file.  "
      "Without the tick all selected files are imported without a question.\n\n"
      "A file that cannot be played is left out, and one whose question you cancel.  Stop ends the import "
      "after the present file.",
      box_style::kOk + box_style::kInformation, "How to use the Fast Importer");
}

}  // namespace quixair
