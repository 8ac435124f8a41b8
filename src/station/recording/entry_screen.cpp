#include "station/recording/entry_screen.h"

#include "station/console/station_paths.h"
#include "station/library/hand_over_files.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/programs.h"
#include "station/platform/text.h"
#include "station/recording/recorder_panel.h"

namespace quixair {
namespace {

constexpr int kTypedId = 5;
constexpr int kWholeId = 6;
constexpr std::string_view kNotInIds = "\" /\\:;#|'";
constexpr Color kImportColor{0xCCCFFC};  // plain value 0xfccfcc
constexpr std::size_t kExtension = 4;
constexpr const char* kAnswered = "1";  // the number of a box's button: wanted, the engineer knows it so

}  // namespace

EntryScreen::EntryScreen(const Platform& platform, const EntryKind& kind)
    : Screen(platform, kind.screen, kind.title),
      data(*this, kind.kind, TextBox::Use::kEnter),
      audition(*this, Text1, kind.plays_mp3),
      kind_(kind) {
  Label11.SetCaption(kind.list_caption);
  Label12.SetCaption(kind.id_cue);
  data.id().SetHint(kind.id_cue);
  ConnectButtons();
  ConnectId();
  ConnectList();
}

void EntryScreen::ConnectButtons() {
  Command1.on_click = [this] { BeginNew(Mode::kNew); };
  Command2.on_click = [this] { Audition(); };
  Command3.on_click = [this] { platform_.screens.Open("EraseUtility"); };
  Command4.on_click = [this] { EditData(); };
  Command5.on_click = [this] { ImportFile(); };
  Command6.on_click = [this] { ReRecordLast(); };
  Command7.on_click = [this] { CloseWindow(); };
  Command8.on_click = [this] { Load(); };
  Command9.on_click = [this] { RecordNow(); };
  OLE1.on_click = [this] { platform_.programs.Run(std::string(station_paths::kMixer)); };
}

void EntryScreen::ConnectId() {
  TextBox& id = data.id();
  RefuseCharacters(id, kNotInIds, [this](char key) {
    platform_.dialogs.MessageBox(std::string("The Character you entered (") + key +
                                     ") cannot\nbe used in filenames.  Try entering a \n"
                                     "different file name using 0-9, A-Z.",
                                 box_style::kExclamation, "Invalid Character ");
  });
  id.on_key_press = [this, refuse = id.on_key_press](char& key) {
    Text1.SetText("Press TAB or click another field to edit next item when ready.");
    if (data.id().text().empty()) {
      for (const FirstKeyHint& first : kind_.first_keys) {
        if (first.key == key) Text1.SetText(first.hint);
      }
    }
    refuse(key);
  };
  id.on_lost_focus = [this] { IdLeft(); };
}

void EntryScreen::ConnectList() {
  File1.on_click = [this] {
    if (mode_ != Mode::kNone) {
      Text1.SetText("Move Up/Down, Then Double Click your selection to continue...");
    }
  };
  File1.on_double_click = File1.on_enter = [this] { TakeFromList(); };
}

void EntryScreen::Load() {
  LeaveModes();
  EnableChoices(true);
  Command8.Disable();
  Command9.Disable();
  Command9.SetCaption("&Record Now");
  data.Clear();
  data.ShowToday();
  data.id().SetMaxLength(kTypedId);
  data.id().Disable();
  data.length().Disable();
  data.drive().Disable();
  data.drive().Show();
  data.EnableData(false);
  data.SetCaptionColor(std::nullopt);
  EnableExtras(false);
  PresetRead({});
  drive.Reset();
  Label12.Hide();
  File1.SetPattern(kind_.pattern);
  File1.SetPath("c:\\qxdata");
  File1.Enable();
  Text1.SetText("Make your selection.  To re-record existing, choose from the list.");
  Command1.SetFocus();
}

void EntryScreen::CloseWindow() {
  LeaveModes();
  Unload();
}

void EntryScreen::LeaveModes() {
  mode_ = Mode::kNone;
  new_id_ = false;
  existing_.reset();
  looked_up_.clear();
  audition.End();
}

void EntryScreen::EnableChoices(bool enabled) {
  for (Button* choice : {&Command1, &Command2, &Command3, &Command4, &Command5, &Command6, &Command7}) {
    choice->Enable(enabled);
  }
  File1.Enable(enabled);
}

void EntryScreen::BeginNew(Mode mode) {
  mode_ = mode;
  data.id().SetText({});
  EnableChoices(false);
  Command8.Enable();
  Command9.Enable();
  data.id().Enable();
  data.EnableData(true);
  data.drive().Hide();
  drive.Offer();
  Label12.Show();
  data.length().SetText("[New]");
  if (*kind_.new_hint != '\0') Text1.SetText(kind_.new_hint);
  NewRecordingBegins();
  data.id().SetFocus();
}

void EntryScreen::Audition() {
  mode_ = Mode::kAudition;
  EnableChoices(false);
  Command8.Enable();
  if (*kind_.audition_done != '\0') {
    Command9.SetCaption(kind_.audition_done);
    Command9.Enable();
  }
  Text1.SetText("Audition an Existing Recording...");
  const std::string id = platform_.dialogs.InputBox(
      "Enter ID, then 'OK', or 'Cancel' to choose from list..\n"
      "[Make sure you include 'S' 'M' or 'L' as the first digit.]",
      "Audition Recording", {.text = letter_, .use = InputOffer::Use::kBeginning});
  if (id.empty()) {
    File1.Enable();
    File1.SetFocus();
  } else {
    Play(id);
  }
}

/// An id of another kind is taken by this screen's lines, too short a file ending the program: wanted.
void EntryScreen::Play(const std::string& id) {
  Recording recording(id, kind_.kind);
  const Status read = recording.Read(platform_.files);
  if (!read.ok()) {
    TellNotRead(read, id, AbnormalFault::kEndsProgram);
    if (read.error() == RunTimeError::kFileNotFound) Load();
    return;
  }
  data.id().SetMaxLength(static_cast<int>(id.size()));
  data.Show(recording);
  const std::optional<std::string> length = audition.Play(recording.value(Field::kDrive), id);
  if (length) data.length().SetText(*length);
}

void EntryScreen::EditData() {
  mode_ = Mode::kEdit;
  EnableChoices(false);
  Command8.Enable();
  Command9.SetCaption("&Save");
  data.SetCaptionColor(kYellow);
  data.id().SetMaxLength(kWholeId);
  Text1.SetText("Edit Data for an Existing Recording...");
  for (;;) {
    const std::string id = platform_.dialogs.InputBox(
        std::string("Enter ID, then 'OK', or 'Cancel' to choose from list..\n") + kind_.editable, "Edit Data",
        {.text = letter_, .use = InputOffer::Use::kBeginning});
    if (id.empty()) {
      File1.Enable();
      File1.SetFocus();
      return;
    }
    data.id().SetText(id);
    if (ShowRecording(id) != RunTimeError::kFileNotFound) return;
    TellRecordFault(platform_.dialogs, RunTimeError::kFileNotFound, letter_ + id, kind_.software,
                    AbnormalFault::kReturns);
  }
}

void EntryScreen::ImportFile() {
  mode_ = Mode::kImport;
  EnableChoices(false);
  Command8.Enable();
  Command9.SetCaption("I&mport Now");
  data.SetCaptionColor(kImportColor);
  const Answer answer = platform_.dialogs.MessageBox(
      "Is this a new DATA file?  [Click 'NO'\n to select from the list of existing files]",
      box_style::kYesNo + box_style::kQuestion, "Import Recording");
  if (answer == Answer::kYes) {
    BeginNew(Mode::kImport);
  } else {
    File1.Enable();
    File1.SetFocus();
  }
}

void EntryScreen::ReRecordLast() {
  const Result<std::string> last = ReadLastRecording(platform_.files);
  if (!last.ok()) {
    RefuseLast("Sorry, There is no previous file to re-record!");
  } else if (!StartsWithIgnoringCase(last.value(), letter_)) {
    RefuseLast(kind_.wrong_last_file);
  } else {
    mode_ = Mode::kReRecordLast;
    Take(last.value());
  }
}

void EntryScreen::RefuseLast(const std::string& why) {
  platform_.dialogs.MessageBox(why, box_style::kExclamation, "Can't Re-Record Last");
  Load();
}

void EntryScreen::TakeFromList() {
  std::string id = File1.selected_text();
  if (id.size() <= kExtension) return;
  id.resize(id.size() - kExtension);
  if (mode_ == Mode::kAudition) {
    Play(id);
  } else {
    Take(id);
  }
}

void EntryScreen::Take(const std::string& id) {
  if (ShowRecording(id) != RunTimeError::kFileNotFound) return;
  TellNotRead(RunTimeError::kFileNotFound, id, AbnormalFault::kReturns);  // it has gone since it was listed
  Load();
}

void EntryScreen::IdLeft() {
  const std::string typed = data.id().text();
  if (typed.empty() && mode_ != Mode::kEdit) {
    const Answer answer = platform_.dialogs.MessageBox(
        "You can't go on until entering at least\n    one digit for a file name.   Press\n"
        "OK to continue, or CANCEL to restart.",
        box_style::kOkCancel + box_style::kInformation, "Enter A File Name ");
    if (answer == Answer::kOk) {
      data.id().SetFocus();
    } else {
      Load();
    }
    return;
  }
  looked_up_ = typed;
  new_id_ = ShowRecording(letter_ + typed) == RunTimeError::kFileNotFound;
}

RunTimeError EntryScreen::ShowRecording(const std::string& id) {
  // A recording of another kind has its lines in another order: it is none of this screen's.
  if (!StartsWithIgnoringCase(id, letter_)) return RunTimeError::kFileNotFound;
  Recording recording(id);
  const Status read = recording.Read(platform_.files);
  if (read.error() == RunTimeError::kFileNotFound) return read.error();
  if (!read.ok()) {
    TellNotRead(read, id, AbnormalFault::kReturns);
    return read.error();
  }
  // An id that was typed in another case is the file's own; a file that was copied by hand holds the other's id.
  if (!EqualsIgnoringCase(recording.value(Field::kRecordingId), id)) recording.Set(Field::kRecordingId, id);
  existing_ = recording;
  ShowExisting(recording);
  return RunTimeError::kNone;
}

void EntryScreen::ShowExisting(const Recording& recording) {
  data.id().SetMaxLength(std::max(kWholeId, static_cast<int>(recording.id().size())));
  data.Show(recording);
  data.id().Disable();
  data.EnableData(true);
  EnableExtras(true);
  drive.Take(recording.value(Field::kDrive));
  drive.Drive1.Hide();
  data.drive().Show();
  Label12.Hide();
  EnableChoices(false);
  Command8.Enable();
  Command9.Enable();
  if (mode_ == Mode::kEdit) Text1.SetText(recording.id() + kind_.file_taken);
  PresetRead(recording.value(Field::kPresetLength));
  // Audio that is not there leaves the length as the data file has it.
  const std::optional<std::string> length = audition.Measure(drive.letter(), recording.id());
  if (length) data.length().SetText(*length);
  data.first_text().SetFocus();
  if (mode_ == Mode::kImport) AskBeforeImport();
}

void EntryScreen::AskBeforeImport() {
  const Answer answer = platform_.dialogs.MessageBox(
      "This is not a new data file.  Do you\nwant to edit the data before going to\nthe import utility?",
      box_style::kYesNo + box_style::kQuestion, "(Import) File Already Exists");
  if (answer == Answer::kYes) {
    data.first_text().SetFocus();
  } else {
    GoToImport(data.id().text());
  }
}

void EntryScreen::RecordNow() {
  if (mode_ == Mode::kAudition) {
    Load();
    return;
  }
  if (data.id().enabled() && data.id().text().empty()) return data.id().SetFocus();  // told when it was left
  const bool id_not_left = data.id().enabled() && looked_up_ != data.id().text();
  if (id_not_left) {  // pressed by its key, the id still in focus
    IdLeft();
    if (!new_id_) return;
  }
  if (new_id_ && !drive.HasFolder()) return;
  const bool goes_to_capture = mode_ != Mode::kImport && mode_ != Mode::kEdit;
  if (goes_to_capture && IsCapturing(platform_, kind_.capture_screen)) return;
  EnableFields(false);
  const Recording recording = Gathered();
  Text1.SetText("Writing to Disk...");
  Repaint();
  const Status written = Write(recording);
  if (!written.ok()) {
    TellNotWritten(written, recording.id());
  } else if (mode_ == Mode::kImport) {
    GoToImport(recording.id());
  } else if (mode_ == Mode::kEdit) {
    Load();
  } else {
    GoToCapture(recording.id());
  }
}

Recording EntryScreen::Gathered() const {
  const std::string id = (new_id_ ? letter_ : std::string()) + data.id().text();
  Recording recording = existing_ && !new_id_ ? *existing_ : Recording(id, kind_.kind);
  data.PutInto(recording);
  recording.Set(Field::kRecordingId, id);
  recording.Set(Field::kDrive, drive.letter());
  recording.Set(Field::kPresetLength, Preset());
  return recording;
}

Status EntryScreen::Write(const Recording& recording) {
  const Status written = recording.Write(platform_.files);
  return written.ok() ? WriteHandOver(platform_.files, recording) : written;
}

void EntryScreen::GoToCapture(const std::string& id) {
  if (const Status written = WriteLastRecording(platform_.files, id); !written.ok()) {
    TellNotWritten(written, id);
    return;
  }
  DeleteOldAudio(drive.letter(), id);
  Text1.SetText("Calling Quixair Recorder");
  LeaveModes();
  platform_.screens.Open(kind_.capture_screen);
  Unload();
}

void EntryScreen::GoToImport(const std::string& id) {
  const Status written =
      WriteImportRequest(platform_.files, {.RecordingId = id, .Drive = drive.letter(), .kind = kind_.kind});
  if (!written.ok()) {
    TellNotWritten(written, id);
    return;
  }
  LeaveModes();
  platform_.screens.Open("ImportWin");
  Unload();
}

void EntryScreen::EnableFields(bool enabled) {
  data.id().Enable(enabled && new_id_);
  data.EnableData(enabled);
  EnableExtras(enabled);
  drive.Drive1.Enable(enabled);
}

void EntryScreen::TellNotRead(const Status& fault, const std::string& missing, AbnormalFault abnormal) {
  TellRecordFault(platform_.dialogs, fault, missing, kind_.software, abnormal);
  LeaveModes();
  EnableFields(false);
  Command9.Disable();
  Command8.Enable();
  Command8.SetFocus();
  Text1.SetText(kAnswered);
}

void EntryScreen::TellNotWritten(const Status& fault, const std::string& id) {
  TellRecordFault(platform_.dialogs, fault, id, kind_.software, AbnormalFault::kEndsProgram);
  EnableFields(true);
  Text1.SetText(kAnswered);
}

}  // namespace quixair
