#include "hunt/hunted_life.h"

#include <array>
#include <utility>

#include "hunt/draw.h"
#include "hunt/made_station.h"
#include "script/script_language.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"

namespace quixair::hunt {
namespace {

constexpr int kHurriedActs = 150;
constexpr int kHalfHour = 30 * 60 * 1000;

/// The console's items that open a screen, and the screen.
constexpr std::array<std::pair<const char*, const char*>, 31> kItems = {
    {{"Spots", "RecordSpot"},
     {"Music", "RecordASong"},
     {"Liners", "RecordLiner"},
     {"AutoTimeRecord", "AutoTime"},
     {"ImportFile", "ImportWin"},
     {"FastImporter", "ImportWinAuto"},
     {"ArtistTitleEditor", "ArtistTitle"},
     {"EditSpotPSAFile", "BuildTemplate1"},
     {"SetRandomDefaults", "RandomSetup"},
     {"OnAirAssist", "BuildTemplate1"},
     {"ImmediatePickList", "BuildTemplate1"},
     {"RunTemplate", "PickPlayTemplate"},
     {"EditTemplate", "BuildTemplate"},
     {"PrintTemplateContents", "PrintPickListTemplate"},
     {"BackupPickList", "ExportTemplate"},
     {"RestorePickList", "ImportTemplate"},
     {"EraseCustomPickList", "ErasePickCustom"},
     {"RunSatTemplate", "SatPlayTemplate"},
     {"EditSatTemplate", "BuildTemplate"},
     {"PrintSatTemplate", "PrintSatTemplateMDI"},
     {"CopySatTemplateData", "CopySatTemp"},
     {"SatRemoveSpots", "RemoveSatSpot"},
     {"EraseSatCustom", "EraseSimSatCustom"},
     {"EraseRecordings", "EraseUtility"},
     {"PrintRecordings", "PrintRecordingsMDI"},
     {"AutoRestart", "Autostart"},
     {"CustomInfo", "CustomInformation"},
     {"ViewErrorLog", "ErrorLog"},
     {"UserManua", "QXHelp"},
     {"About", "frmAbout"},
     {"RecordingDrivers", "MMregOCX"}}};

class Life {
 public:
  Life(Draw& draw, const MadeStation& station, const ScreenAtlas& atlas, Script& script)
      : draw_(draw), station_(station), atlas_(atlas), script_(script) {
    for (std::size_t act = 0; act < kActs.size(); ++act) {
      weights_.push_back(draw_.Chance(45) ? draw_.Between(1, kActs[act].most) : 0);
    }
    weights_.front() += 3;  // something always happens
    hurried_acts_ = draw_.Chance(25) ? kHurriedActs : 0;
  }

  void Write() {
    if (draw_.Chance(60)) Say("answer-others " + draw_.Of({"Yes", "No", "Cancel"}));
    StartProgram();
    OpenPlayback();
    Wait();
    while (passed_ < kHalfHour) {
      (this->*kActs[draw_.Weighted(weights_)].act)();
      Wait();
    }
    CalmDown();
  }

 private:
  using Act = void (Life::*)();
  struct Weighted {
    Act act;
    int most;
  };
  static const std::array<Weighted, 23> kActs;

  void Say(const std::string& statement) { script_.push_back(statement); }
  void Try(const std::string& statement) { Say("try " + statement); }
  void Pass(int milliseconds) {
    Say("advance " + std::to_string(milliseconds) + "ms");
    passed_ += milliseconds;
  }
  void Wait() {
    const int haste = draw_.Below(10);
    if (hurried_acts_-- > 0 || haste < 3) return Pass(draw_.Between(250, 2'500));
    Pass(haste < 7 ? draw_.Between(2'000, 25'000) : draw_.Between(20'000, 150'000));
  }
  void ShortWait() { Pass(draw_.Between(250, 900)); }

  std::string OnAir(const std::string& control) { return mode_ + '.' + control; }
  void ClickOnAir(const std::string& button) { Try("click " + OnAir(button)); }
  const MadeRecording& AnyRecording() { return draw_.Of(station_.recordings); }
  std::string AnyDataFile() { return "C:\\QXDATA\\" + AnyRecording().id + ".DAT"; }

  // the program and its two modes
  void StartProgram() {
    Try("start");
    Pass(5'000);
  }

  void OpenPlayback() {
    for (const char* screen : {"RandomForm1", "PickListForm1"}) {
      Try("click " + std::string(screen) + ".EndRunCommand");
      Try("click " + std::string(screen) + ".Command2");  // no run is on: Quit
    }
    OpenAMode();
  }

  void OpenAMode() {
    if (draw_.Chance(60)) {
      OpenRandom();
    } else {
      OpenPickList();
    }
  }

  void OpenRandom() {
    mode_ = "RandomForm1";
    Try("menu RandomPlaybackMode");
    ShortWait();
    if (station_.stop_sets) ChooseTemplate();
    ShortWait();
    ClickOnAir("Start");
    ShortWait();
  }

  void ChooseTemplate() {
    if (draw_.Chance(10)) return ClickOnAir("Quit");
    if (draw_.Chance(70)) {
      Try("select " + OnAir("File2") + " \"" + UpperCased(DayName(station_.begins)) + ".TPD\"");
    } else {
      Try("select " + OnAir(draw_.Of({"File1", "File2"})) + " #" + std::to_string(draw_.Between(1, 2)));
    }
    ShortWait();
    ClickOnAir("Done");
  }

  void OpenPickList() {
    mode_ = "PickListForm1";
    if (draw_.Chance(20)) return BuildAndPlay();
    Try("menu RunTemplate");
    ShortWait();
    Try("select PickPlayTemplate." + std::string(draw_.Chance(50) ? "File1" : "File2") + " #1");
    ShortWait();
    Try("click PickPlayTemplate.Done");
    ShortWait();
    StartList();
  }

  void StartList() {
    if (draw_.Chance(20)) Try("select " + OnAir("List1") + " #" + std::to_string(draw_.Between(1, 5)));
    ShortWait();
    ClickOnAir("Start");
    ShortWait();
  }

  void BuildAndPlay() {
    Try("menu " + draw_.Of({"OnAirAssist", "ImmediatePickList"}));
    Pass(1'500);
    for (const char* list : {"List3", "List1", "List4"}) {
      for (int i = draw_.Below(4); i > 0; --i) {
        Try("click BuildTemplate1." + std::string(list == std::string("List3")   ? "Command10"
                                                  : list == std::string("List1") ? "Command11"
                                                                                 : "Command12"));
        Try("select BuildTemplate1." + std::string(list) + " #" + std::to_string(draw_.Between(1, 4)));
        Try("doubleclick BuildTemplate1." + std::string(list));
        ShortWait();
      }
    }
    Try("click BuildTemplate1.Command1");
    ShortWait();
    StartList();
  }

  // acts of the operator on the air
  void PressRunButton() {
    ClickOnAir(draw_.Of({"PauseCommand", "ContinueCommand", "BeginNextCommand", "RequeueCommand", "GoLive"}));
  }
  void PauseForAWhile() {
    ClickOnAir("PauseCommand");
    Wait();
    ClickOnAir("ContinueCommand");
  }
  void GoLiveForAWhile() {
    ClickOnAir("GoLive");
    Wait();
    Wait();
    ClickOnAir(draw_.Of({"ContinueCommand", "ContinueCommand", "BeginNextCommand", "GoLive"}));
  }
  void BeginNext() { ClickOnAir("BeginNextCommand"); }
  void ClickTransportBar() { ClickOnAir("MMControl" + std::to_string(draw_.Between(1, 4))); }
  void TurnSwitch() {
    ClickOnAir("Check" + std::to_string(draw_.Between(mode_ == "RandomForm1" ? 2 : 1, 4)));
  }
  void TouchOnAirScreen() { ActOn(mode_); }

  void EndRunAndStartAgain() {
    if (draw_.Chance(25)) {
      Try("close " + mode_);
    } else {
      ClickOnAir("EndRunCommand");
    }
    Wait();
    OpenPlayback();
  }

  void ChooseTemplateInARun() {
    if (mode_ != "RandomForm1") return;
    Try("select " + OnAir(draw_.Of({"File1", "File2"})) + " #" + std::to_string(draw_.Between(1, 3)));
    ShortWait();
    ClickOnAir(draw_.Of({"Done", "Refresh", "Quit"}));
  }

  void SetStartTime() {
    ClickOnAir("Command4");
    for (const auto& [list, rows] : {std::pair("TimeList1", 12), {"TimeList2", 60}, {"TimeList3", 2}}) {
      if (draw_.Chance(90)) Try("select " + OnAir(list) + " #" + std::to_string(draw_.Between(1, rows)));
    }
    ShortWait();
    ClickOnAir(draw_.Of({"TimeCommand1", "TimeCommand2", "Start"}));
  }

  void OpenOtherMode() { OpenAMode(); }

  // acts on the other screens
  void ActOn(const std::string& screen) {
    const AtlasControl& control = draw_.Of(atlas_.at(screen));
    const std::string name = screen + '.' + control.name;
    const std::string row = " #" + std::to_string(draw_.Between(1, 6));
    switch (control.kind) {
      case ControlKind::kTextBox:
        Try("type " + name + ' ' + draw_.Of({"1", "S0001", "M0001", "X", "05", "\"\"", "30"}));
        if (draw_.Chance(30)) Try("enter " + name);
        break;
      case ControlKind::kListBox:
      case ControlKind::kFileListBox:
      case ControlKind::kDirListBox:
      case ControlKind::kDriveListBox:
        Try("select " + name + row);
        if (draw_.Chance(50)) Try("doubleclick " + name);
        break;
      default:
        Try("click " + name);
    }
  }

  void VisitScreen() {
    const auto& [item, screen] = kItems[static_cast<std::size_t>(draw_.Below(kItems.size()))];
    Try(std::string("menu ") + item);
    Pass(draw_.Between(300, 3'000));
    for (int i = draw_.Between(1, 12); i > 0; --i) {
      ActOn(screen);
      ShortWait();
    }
    if (draw_.Chance(70)) Try(std::string("close ") + screen);
  }

  void ChangeHabits() {
    if (draw_.Chance(50)) Say("think " + draw_.Of({"0s", "2s", "15s", "70s"}));
    Say("answer-others " + draw_.Of({"OK", "Yes", "No", "Cancel", "\"\""}));
  }

  void LeaveProgram() {
    Try(draw_.Of({"menu Exit", "close Console"}));
    Wait();
    StartProgram();
    OpenPlayback();
  }

  // the world
  void TakeAudioAway() {
    const std::string audio = AnyRecording().audio;
    Try("away " + audio);
    Wait();
    if (draw_.Chance(60)) Try("back " + audio);
  }

  void TakeDriveAway() {
    const std::string place = draw_.Of({"D:", "D:", "C:\\QXWAVE", "C:\\QXDATA", "C:\\QXTEMPLT", "C:"});
    Try("away " + place);
    Wait();
    Try("back " + place);
  }

  void DamageFile() {
    const std::string bytes = std::to_string(draw_.Below(60));
    switch (draw_.Below(6)) {
      case 0:
        return Try("tear " + AnyRecording().audio + ' ' + bytes);
      case 1:
        return Try("tear " + AnyDataFile() + ' ' + bytes);
      case 2:
        return Try("tear C:\\QXTEMPLT\\" + draw_.Of(station_.templates) + ' ' + bytes);
      case 3:
        return Try("remove " + AnyDataFile());
      case 4:
        return Try("remove C:\\QXTEMPLT\\" + draw_.Of(station_.templates));
      default:
        return Try("put " + AnyRecording().audio + " noise");
    }
  }

  void EditFileByHand() {
    const MadeRecording& recording = AnyRecording();
    if (draw_.Chance(60)) {
      Say(Put("C:\\QXDATA\\" + recording.id + ".DAT",
              DrawDataFile(draw_, recording, draw_.Between(1'000, 60'000), station_.begins)));
    } else {
      Say(Put("C:\\QXAIR\\RANDDATA.DTA", DrawRandomSettings(draw_, draw_.Below(3))));
    }
  }

  void FillDisk() {
    Say("fail write,append,copy * 61");
    Wait();
    Wait();
    if (draw_.Chance(80)) Say("mend");
  }

  void SetClock() { Say("clock " + draw_.Of({"+1h", "-1h", "+1h", "-1h", "+90s", "-90s", "+25m", "+24h"})); }
  void ComeToMidnight() { Say("clock \"" + script::Stamp(station_.begins).substr(0, 10) + " 23:59:30\""); }
  void LoseOutput() {
    Say("output lost");
    Wait();
    Say("output back");
  }

  void CutPower() {
    Say("powercut");
    Say("advance " + draw_.Of({"1s", "10s", "90s"}));
    StartProgram();
  }

  void CalmDown() {
    Say(kCalm);
    Say("mend");
    Say("think 0s");
    Say("answer-others OK");
    Try("start");
    Say("advance 70s");
  }

  Draw& draw_;
  const MadeStation& station_;
  const ScreenAtlas& atlas_;
  Script& script_;
  std::vector<int> weights_;
  int hurried_acts_ = 0;  // that are left
  std::string mode_;
  int passed_ = 0;
};

const std::array<Life::Weighted, 23> Life::kActs = {{{&Life::PressRunButton, 10},
                                                     {&Life::PauseForAWhile, 6},
                                                     {&Life::GoLiveForAWhile, 6},
                                                     {&Life::BeginNext, 8},
                                                     {&Life::ClickTransportBar, 3},
                                                     {&Life::TurnSwitch, 3},
                                                     {&Life::TouchOnAirScreen, 6},
                                                     {&Life::EndRunAndStartAgain, 2},
                                                     {&Life::ChooseTemplateInARun, 2},
                                                     {&Life::SetStartTime, 1},
                                                     {&Life::OpenOtherMode, 1},
                                                     {&Life::VisitScreen, 5},
                                                     {&Life::ChangeHabits, 2},
                                                     {&Life::LeaveProgram, 1},
                                                     {&Life::TakeAudioAway, 4},
                                                     {&Life::TakeDriveAway, 2},
                                                     {&Life::DamageFile, 3},
                                                     {&Life::EditFileByHand, 3},
                                                     {&Life::FillDisk, 2},
                                                     {&Life::SetClock, 2},
                                                     {&Life::ComeToMidnight, 1},
                                                     {&Life::LoseOutput, 1},
                                                     {&Life::CutPower, 3}}};

}  // namespace

Script ScriptOf(std::uint64_t seed, const ScreenAtlas& atlas) {
  Draw draw(seed);
  Script script;
  const MadeStation station = MakeStation(draw, script);
  Life(draw, station, atlas, script).Write();
  return InAPersonsTime(script);
}

}  // namespace quixair::hunt
