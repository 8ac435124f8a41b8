#include "station/recording/capture_screen.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/library/hand_over_files.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

using std::chrono::milliseconds;

constexpr CaptureKind kSpot = {RecordingKind::kSpot, "RecordITSpot", "Spot Record", "RecordSpot", 0};
constexpr CaptureKind kMusic = {RecordingKind::kMusic, "RecordIt", "Music Record", "RecordASong", 2};
constexpr CaptureKind kLiner = {RecordingKind::kLiner, "RecordITLiner", "Liner Record", "RecordLiner", 3};
constexpr milliseconds kEndInterval{1000};

}  // namespace

CaptureScreen::CaptureScreen(const Platform& platform, const CaptureKind& kind)
    : Screen(platform, kind.screen, kind.title), data(*this, kind.kind, TextBox::Use::kShow), kind_(kind) {
  recorder.on_saved = [this](const std::string& seconds, Ending ending) { return Save(seconds, ending); };
  recorder.NowExit.on_click = [this] { BackToEntry(); };
  recorder.CancelButton.on_click = [this] { Erase(); };
}

void CaptureScreen::Load() {
  recording_ = ReadHandOver(platform_.files, kind_.kind);
  data.Show(recording_);
  const std::string& drive = recording_.value(Field::kDrive);
  recorder.path = station_paths::AudioFile(drive.empty() ? "C" : drive, recording_.id(), ".WAV");
  recorder.Prepare();
  recorder.RecordBtn.SetFocus();
}

void CaptureScreen::PrepareAgain(const ScreenOpening&) {
  if (!recorder.capturing()) Load();
}

void CaptureScreen::CloseWindow() {
  if (recorder.capturing()) recorder.Finish(Ending::kByOperator);
  Unload();
}

void CaptureScreen::ProgramEnds() {
  if (recorder.capturing()) recorder.Finish(Ending::kProgramEnds);
}

std::string CaptureScreen::DataPath() const {
  return station_paths::DataFile(recording_.id());
}

Status CaptureScreen::WriteDataFile(const std::string& seconds) {
  recording_.Set(Field::kLength, seconds);
  WriteForm empty;
  for (int line = 0; line < kind_.empty_lines; ++line) empty.Nothing();
  return platform_.files.Write(DataPath(), recording_.Format() + empty.bytes(), Durability::kFlushed);
}

bool CaptureScreen::Save(const std::string& seconds, Ending ending) {
  const Status written = WriteDataFile(seconds);
  data.Show(recording_);
  if (written.ok() || ending == Ending::kProgramEnds || ending == Ending::kOnceMore) return written.ok();
  recorder.Text6.SetText("The data file was not written; the recording is " + recorder.path);
  TellFileFault(platform_.dialogs, written,
                "The audio is recorded; its length was not written to " + DataPath());
  return false;
}

/// The recording goes, not only this capture: it may have been there long before.
void CaptureScreen::Erase() {
  if (!recorder.EraseConfirmed(recording_.id())) return;
  SkipAndGoOn(platform_.files.Delete(DataPath()));
  SkipAndGoOn(platform_.files.Delete(recorder.path));
  BackToEntry();
}

void CaptureScreen::BackToEntry() {
  platform_.screens.Open(kind_.entry_screen);
  CloseWindow();
}

RecordITSpot::RecordITSpot(const Platform& platform) : CaptureScreen(platform, kSpot) {
  recorder.on_start = [this] { SetLimit(); };
  recorder.on_recording = [this] {
    Timer2.SetInterval(kEndInterval);
    Timer2.SetEnabled(true);
  };
  // A Stop by hand leaves the timer on, which then writes the same length once more: wanted, a data file that
  // was busy the first time gets it the second.
  Timer2.on_tick = [this] {
    if (recorder.capturing()) return;
    Timer2.SetEnabled(false);
    recorder.Finish(Ending::kOnceMore);
  };
}

void RecordITSpot::Load() {
  Timer2.SetEnabled(false);  // it is for the spot before
  CaptureScreen::Load();
}

void RecordITSpot::SetLimit() {
  const std::string& preset = recording().value(Field::kPresetLength);
  recorder.limit = preset.empty() ? kNoLimit : milliseconds(std::int64_t{WholeValue(preset)} * 1000);
  Label17.SetCaption(preset.empty() ? std::string() : "out of " + preset + " Secs.");
}

RecordIt::RecordIt(const Platform& platform) : CaptureScreen(platform, kMusic) {}
RecordITLiner::RecordITLiner(const Platform& platform) : CaptureScreen(platform, kLiner) {}

}  // namespace quixair
