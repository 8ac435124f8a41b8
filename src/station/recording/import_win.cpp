#include "station/recording/import_win.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/screens.h"

namespace quixair {
namespace {

constexpr const char* kChooseDataFile = "Select the DATA file in which to Import a recording...";
constexpr const char* kChooseSource =
    "Now, choose the file to import by double clicking or pressing <enter>...";

}  // namespace

ImportWin::ImportWin(const Platform& platform) : ImportScreen(platform, "ImportWin", "Import Recording") {
  Command1.SetHint("Click to Import Selected File");
  Command3.SetHint("Cancel and Start Over");
  source_.on_change = [this] { folder_ = Dir1.path(); };
  File1.on_double_click = File1.on_enter = [this] { ChooseDataFile(); };
  File2.on_click = File2.on_double_click = File2.on_enter = [this] {
    if (File2.selected_index() < 0) return;
    Text1.SetText("Click 'Import Now' to select the highlighted file");
  };
  Command1.on_click = [this] { ImportNow(); };
  Command2.on_click = [this] { Leave(); };
  Command3.on_click = [this] {
    SaveFolder();
    StartOver();
  };
}

void ImportWin::PrepareAgain(const ScreenOpening&) {
  if (IsWorking()) {
    asked_again_ = true;
    return;
  }
  SaveFolder();
  StartOver();
}

void ImportWin::StartOver() {
  Work(false);
  asked_again_ = false;
  id_.clear();
  folder_.clear();
  kind_.reset();
  Label5.SetCaption("");
  Progress.SetCaption("");
  source_.ShowFirst();
  ShowDataFiles();
  Text1.SetText(kChooseDataFile);
  File1.SetFocus();
  const Result<ImportRequest> request = ReadImportRequest(platform_.files);
  if (!request.ok()) return;
  kind_ = request.value().kind;
  if (!request.value().RecordingId.empty()) Take(request.value().RecordingId);
}

void ImportWin::ChooseDataFile() {
  const std::string name = File1.selected_text();
  if (!name.empty()) Take(name.substr(0, name.rfind('.')));
}

void ImportWin::Take(const std::string& id) {
  // Only the drive is needed now; but a file that could not be rewritten later is refused before any harm.
  Recording recording(id);
  const Status read = recording.Read(platform_.files);
  if (!read.ok() || recording.value(Field::kDrive).size() != 1) {
    platform_.dialogs.MessageBox(
        "This is not the data file of a recording, or it is damaged.\nChoose another one.",
        box_style::kOk + box_style::kExclamation, "Cannot Import to " + id + ".DAT");
    return;
  }
  id_ = id;
  drive_ = recording.value(Field::kDrive);
  Label5.SetCaption("File will be imported to " + id_ + ".DAT on Drive " + drive_ + "...");
  source_.GoTo(ReadSetting(platform_.files, station_paths::kImportPath).value_or(std::string()));
  folder_ = Dir1.path();
  ReadyForSource();
}

void ImportWin::ReadyForSource() {
  Text1.SetText(kChooseSource);
  File2.SetFocus();
}

void ImportWin::ImportNow() {
  if (id_.empty()) return Text1.SetText(kChooseDataFile);
  if (File2.selected_index() < 0) return ReadyForSource();
  SaveFolder();
  const AudioImport::Job job{
      .folder = Dir1.path(), .name = File2.selected_text(), .id = id_, .drive = drive_};
  if (AudioImport::IsOntoItself(platform_.files, job)) {
    TellOntoItself();
    return ReadyForSource();
  }
  Progress.SetCaption("Looking through " + job.name + "...");
  Work(true);
  import_.Examine(job);
}

void ImportWin::Step() {
  import_.Step();
  if (import_.IsBusy()) Progress.SetCaption(import_.Progress());
}

void ImportWin::Examined(bool playable) {
  Progress.SetCaption("");
  if (!playable) TellUnplayable(import_.job().name);
  if (playable && MayOverwrite(import_.job())) return import_.Copy();
  BackToSource();
}

void ImportWin::BackToSource() {
  if (asked_again_) return StartOver();
  Work(false);
  ReadyForSource();
}

void ImportWin::Copied(std::optional<std::string> length) {
  Progress.SetCaption("");
  Recording recording(id_);
  if (!length) {  // what the copy could not be asked stays as the record has it
    SkipAndGoOn(recording.Read(platform_.files));
    length = recording.value(Field::kLength);
  }
  platform_.dialogs.MessageBox("New File Length is: " + *length + " Seconds", box_style::kOk,
                               "Updating Data File");
  const Status read = recording.Read(platform_.files);
  recording.Set(Field::kLength, *length);
  recording.Set(Field::kDrive, drive_);
  const Status written = read.ok() ? recording.Write(platform_.files) : read;
  if (!written.ok()) TellFault(written);
  GoBack();
}

void ImportWin::SaveFolder() {
  if (!folder_.empty()) SkipAndGoOn(WriteTextSetting(platform_.files, station_paths::kImportPath, folder_));
}

void ImportWin::GoBack() {
  if (!kind_ || asked_again_) return StartOver();
  OpenEntryScreen();
  Unload();
}

void ImportWin::Leave() {
  SaveFolder();
  if (kind_) OpenEntryScreen();
  Unload();
}

void ImportWin::OpenEntryScreen() {
  switch (*kind_) {
    case RecordingKind::kSpot:
      return platform_.screens.Open("RecordSpot");
    case RecordingKind::kMusic:
      return platform_.screens.Open("RecordASong");
    case RecordingKind::kLiner:
      return platform_.screens.Open("RecordLiner");
  }
}

}  // namespace quixair
