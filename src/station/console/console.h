#pragma once

// The console, the one main window: a menu tree and the start-up that decides between waiting for the
// operator, preparing a new machine, and taking a broken-off run up again. It owns no station logic: it opens
// screens by name, after writing what a screen expects to be handed, and starts outside programs.

#include "station/platform/run_time_error.h"
#include "station/screen/screen.h"

namespace quixair {

class Console : public Screen {
 public:
  explicit Console(const Platform& platform);
  /// The start-up, in its fixed order.
  void Load() override;
  /// The window was closed: the restart record is cleaned, unless this one unload must not cancel it.
  void CloseWindow() override;

  MenuItem File{*this, "File", "&File"};
  MenuItem Exit{File, "Exit", "E&xit"};

  MenuItem Record{*this, "Record", "&Record"};
  MenuItem Spots{Record, "Spots", "&Spots"};
  MenuItem Music{Record, "Music", "&Music"};
  MenuItem Liners{Record, "Liners", "&Liners"};
  MenuItem AutoTimeRecord{Record, "AutoTimeRecord", "&Auto-Time"};
  MenuItem ImportFile{Record, "ImportFile", "&Import File"};
  MenuItem FastImporter{Record, "FastImporter", "&Fast Importer (Music)"};
  MenuItem ArtistTitleEditor{Record, "ArtistTitleEditor", "&Artist/Title Editor (Music)"};
  MenuItem WindowsRecorder{Record, "WindowsRecorder", "&Windows(tm) Recorder"};
  MenuItem EnahncedMixer{Record, "EnahncedMixer", "&Enhanced Mixer"};
  MenuItem DiskMon{Record, "DiskMon", "&Disk Monitor"};

  MenuItem RandomPlayback{*this, "RandomPlayback", "Ra&ndom Playback"};
  MenuItem RandomPlaybackMode{RandomPlayback, "RandomPlaybackMode", "&Random Playback Mode"};
  MenuItem EditSpotPSAFile{RandomPlayback, "EditSpotPSAFile", "&Edit Spot/PSA Rotation File"};
  MenuItem SetRandomDefaults{RandomPlayback, "SetRandomDefaults", "&Set Random Playback Defaults"};

  MenuItem OnAirAssist{*this, "OnAirAssist", "&On-Air Assist"};

  MenuItem PickListPlayback{*this, "PickListPlayback", "&PickList Playback"};
  MenuItem ImmediatePickList{PickListPlayback, "ImmediatePickList", "&Immediate Playback"};
  MenuItem RunTemplate{PickListPlayback, "RunTemplate", "&Run Template"};
  MenuItem WorkWithTemplates{PickListPlayback, "WorkWithTemplates", "&Work With Templates"};
  MenuItem EditTemplate{WorkWithTemplates, "EditTemplate", "&Edit Template"};
  MenuItem PrintTemplateContents{WorkWithTemplates, "PrintTemplateContents", "&Print Template Contents"};
  MenuItem BackupPickList{WorkWithTemplates, "BackupPickList", "&Backup Template (Export)"};
  MenuItem RestorePickList{WorkWithTemplates, "RestorePickList", "&Restore Template (Import)"};
  MenuItem EraseCustomPickList{WorkWithTemplates, "EraseCustomPickList", "E&rase Custom Template"};
  MenuItem ResumeLastPick{PickListPlayback, "ResumeLastPick", "Resume &Last"};

  MenuItem SatellitePlayback{*this, "SatellitePlayback", "&Satellite Playback"};
  MenuItem RunSatTemplate{SatellitePlayback, "RunSatTemplate", "&Run Template"};
  MenuItem WorkWithSatTemplates{SatellitePlayback, "WorkWithSatTemplates", "&Work With Templates"};
  MenuItem EditSatTemplate{WorkWithSatTemplates, "EditSatTemplate", "&Edit Template"};
  MenuItem PrintSatTemplate{WorkWithSatTemplates, "PrintSatTemplate", "&Print Template Contents"};
  MenuItem BackupSatTemplate{WorkWithSatTemplates, "BackupSatTemplate", "&Backup Template (Export)"};
  MenuItem RestoreSatTemplate{WorkWithSatTemplates, "RestoreSatTemplate", "&Restore Template (Import)"};
  MenuItem CopySatTemplateData{WorkWithSatTemplates, "CopySatTemplateData", "&Copy Template Data"};
  MenuItem SatRemoveSpots{WorkWithSatTemplates, "SatRemoveSpots", "Remove &Spots from Template"};
  MenuItem EraseSatCustom{WorkWithSatTemplates, "EraseSatCustom", "E&rase Custom Template"};
  MenuItem DosSatelliteControls{SatellitePlayback, "DosSatelliteControls", "&DOS Satellite Controls"};
  MenuItem SatelliteControlOptions{DosSatelliteControls, "SatelliteControlOptions",
                                   "&Satellite Options Menu (DOS)"};
  MenuItem Announcer{DosSatelliteControls, "Announcer", "&Adjust Announcer Schedule (DOS)"};
  MenuItem NetworkSwitch{DosSatelliteControls, "NetworkSwitch", "&Network Switching (DOS)"};

  MenuItem VerificationLog{*this, "VerificationLog", "&Verification Log"};

  MenuItem Utilities{*this, "Utilities", "&Utilities"};
  MenuItem recordplayprop{Utilities, "recordplayprop", "&Recording/Playback Properties"};
  MenuItem DOSMenu{Utilities, "DOSMenu", "&DOS Menu"};
  MenuItem EraseRecordings{Utilities, "EraseRecordings", "&Erase Recordings"};
  MenuItem PrintRecordings{Utilities, "PrintRecordings", "&Print Recordings"};
  MenuItem AutoRestart{Utilities, "AutoRestart", "&Auto-Restart"};
  MenuItem cacheman{Utilities, "cacheman", "&Cacheman(c) Memory Manager"};
  MenuItem CustomInfo{Utilities, "CustomInfo", "Custom &Info. Entry"};
  MenuItem AudioDriver{Utilities, "AudioDriver", "A&udio Driver Re-install"};
  MenuItem ViewErrorLog{Utilities, "ViewErrorLog", "&View/Clear Error Log"};
  MenuItem Mixer{Utilities, "Mixer", "Windows(tm) &Mixer"};
  MenuItem WindowsExplorer{Utilities, "WindowsExplorer", "Windows(tm) &Explorer"};

  MenuItem Help{*this, "Help", "&Help"};
  MenuItem UserManua{Help, "UserManua", "&User Manual"};
  MenuItem About{Help, "About", "&About Quixair"};
  MenuItem RecordingDrivers{Help, "RecordingDrivers", "&Prepare This P.C. for Use"};

  Timer Timer1{*this, "Timer1"};  // ends the splash
  Timer Timer3{*this, "Timer3"};  // key strokes for the control panel

 private:
  void ConnectRecord();
  void ConnectRandom();
  void ConnectPickList();
  void ConnectSatellite();
  void ConnectUtilities();
  void ConnectHelp();

  void OpenOnClick(MenuItem& item, const char* screen, ScreenOpening opening = {});
  void EditOnClick(MenuItem& item, const char* pik_mode, const char* screen, ScreenOpening opening = {});
  /// A hand-over file that could not be written is told in a box, and its screen stays closed: the air goes
  /// on.
  bool HandedOver(const Status& written);
  void RunSibling(const char* path);
  void ResumeInterruptedRun();
  void PrepareOrShowSplash();
  bool IsWholeProgram() const override { return true; }
  bool MayEndRun();
  void ConfirmExit();
  void ResumeLastPickList();
  void ReinstallAudioDriver();
};

}  // namespace quixair
