#include "station/recording/capture_screen.h"

#include "station/console/station_paths.h"
#include "station/console/value_form.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/text.h"

namespace quixair {
namespace {

using std::chrono::milliseconds;

constexpr CaptureKind kSpot = {RecordingKind::kSpot, "RecordITSpot", "Spot Record", "RecordSpot"};
constexpr CaptureKind kMusic = {RecordingKind::kMusic, "RecordIt", "Music Record", "RecordASong"};
constexpr CaptureKind kLiner = {RecordingKind::kLiner, "RecordITLiner", "Liner Record", "RecordLiner"};
constexpr milliseconds kEndInterval{1000};

}  // namespace

CaptureScreen::CaptureScreen(const Platform& platform, const CaptureKind& kind)
    : Screen(platform, kind.screen, kind.title),
      data(*this, LayoutOf(kind.kind), TextBox::Use::kShow),
      kind_(kind),
      layout_(LayoutOf(kind.kind)) {
  recorder.on_saved = [this](const std::string& seconds) { return Save(seconds); };
  recorder.NowExit.on_click = [this] { BackToEntry(); };
  recorder.CancelButton.on_click = [this] { Erase(); };
}

void CaptureScreen::Load() {
  const std::string handed_over = ReadHandOverRecord(platform_.files).value_or({});
  values_ = ReadValues(handed_over, layout_.lines.size());
  values_.resize(layout_.lines.size());
  data.Show(values_);
  const std::string& drive = ValueOf(values_, layout_, RecordSlot::kDrive);
  recorder.path = station_paths::AudioFile(drive.empty() ? "C" : drive,
                                           ValueOf(values_, layout_, RecordSlot::kId), ".WAV");
  recorder.Prepare();
  recorder.RecordBtn.SetFocus();
}

void CaptureScreen::PrepareAgain(const ScreenOpening&) {
  if (!recorder.MMWaveRecorderX.capturing()) Load();
}

void CaptureScreen::CloseWindow() {
  if (recorder.MMWaveRecorderX.capturing()) recorder.Stop();
  Unload();
}

void CaptureScreen::ProgramEnds() {
  if (!recorder.MMWaveRecorderX.capturing()) return;
  recorder.on_saved = [this](const std::string& seconds) {
    SkipAndGoOn(WriteDataFile(seconds));
    return true;
  };
  recorder.Stop();
}

std::string CaptureScreen::DataPath() {
  return station_paths::DataFile(ValueOf(values_, layout_, RecordSlot::kId));
}

Status CaptureScreen::WriteDataFile(const std::string& seconds) {
  ValueOf(values_, layout_, RecordSlot::kLength) = seconds;
  WriteForm form;
  for (const std::string& value : values_) form.Text(value);
  for (int line = 0; line < layout_.empty_lines; ++line) form.Nothing();
  return platform_.files.Write(DataPath(), form.bytes(), Durability::kFlushed);
}

bool CaptureScreen::Save(const std::string& seconds) {
  const Status written = WriteDataFile(seconds);
  data.Show(values_);
  if (written.ok()) return true;
  recorder.Text6.SetText("The data file was not written; the recording is " + recorder.path);
  TellFileFault(platform_.dialogs, written,
                "The audio is recorded; its length was not written to " + DataPath());
  return false;
}

/// The recording goes, not only this capture: it may have been there long before.
void CaptureScreen::Erase() {
  const std::string id = ValueOf(values_, layout_, RecordSlot::kId);
  if (!recorder.EraseConfirmed(id)) return;
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
  // A Stop by hand leaves the timer on, which then writes the same data once more: wanted.
  Timer2.on_tick = [this] {
    if (recorder.MMWaveRecorderX.capturing()) return;
    Timer2.SetEnabled(false);
    recorder.Stop();
  };
}

void RecordITSpot::SetLimit() {
  const std::string& preset = ValueOf(values(), layout(), RecordSlot::kPreset);
  recorder.limit = preset.empty() ? kNoLimit : milliseconds(std::int64_t{WholeValue(preset)} * 1000);
  Label17.SetCaption(preset.empty() ? std::string() : "out of " + preset + " Secs.");
}

RecordIt::RecordIt(const Platform& platform) : CaptureScreen(platform, kMusic) {}
RecordITLiner::RecordITLiner(const Platform& platform) : CaptureScreen(platform, kLiner) {}

}  // namespace quixair
