#pragma once

// StationPaths: the fixed folders of a station and the files that stand in its program folder under fixed
// names.

#include <string>
#include <string_view>

namespace quixair::station_paths {

inline constexpr std::string_view kMixer = "C:\\WINDOWS\\sndvol32.exe";  // the host's

inline constexpr std::string_view kProgramFolder = "C:\\QXAIR";
inline constexpr std::string_view kDataFolder = "C:\\QXDATA";
inline constexpr std::string_view kTemplateFolder = "C:\\QXTEMPLT";
inline constexpr std::string_view kTimeFolder = "C:\\QXTIME";

inline constexpr std::string_view kCustom = "C:\\QXAIR\\CUSTOM.DTA";    // StationLine
inline constexpr std::string_view kResetOn = "C:\\QXAIR\\RESETON.DTA";  // restart switch
inline constexpr std::string_view kReset = "C:\\QXAIR\\RESET.DTA";      // restart record
inline constexpr std::string_view kResetRandom =
    "C:\\QXAIR\\RESETRND.DTA";  // "1": one unload keeps the record
inline constexpr std::string_view kPrepared =
    "C:\\QXAIR\\REGOCX.DTA";  // its being there marks a prepared system
inline constexpr std::string_view kRandomSettings = "C:\\QXAIR\\RANDDATA.DTA";
inline constexpr std::string_view kRandomTemplate = "C:\\QXAIR\\RANDSAT.DTA";
inline constexpr std::string_view kSatCorrection =
    "C:\\QXAIR\\CORRCTON.DTA";  // for the sibling programs: the number 0
inline constexpr std::string_view kRandomVerify = "C:\\QXAIR\\RNDVERLG.DTA";    // 0 on, 1 off
inline constexpr std::string_view kPickVerify = "C:\\QXAIR\\PIKVERLG.DTA";      // 0 on, 1 off
inline constexpr std::string_view kPickRepeat = "C:\\QXAIR\\PICKREPEAT.DTA";    // 1 on, 0 off
inline constexpr std::string_view kPauseAfterNext = "C:\\QXAIR\\RNDPNEXT.DTA";  // 1 on, 0 off
inline constexpr std::string_view kSpotDateCheck = "C:\\QXAIR\\SPOTDRST.DTA";   // "1" on, "0" off
inline constexpr std::string_view kAskBeforeErasing = "C:\\QXAIR\\DELASK.DTA";  // 1 on, 0 off
inline constexpr std::string_view kOverlap = "C:\\QXAIR\\overlap.dta";
inline constexpr std::string_view kPikMode = "C:\\QXAIR\\PIKMODE.DTA";
inline constexpr std::string_view kPikName = "C:\\QXAIR\\PIKNAME.DTA";
inline constexpr std::string_view kStorePik = "C:\\QXAIR\\STOREPIK.DTA";
inline constexpr std::string_view kPickList = "C:\\QXAIR\\PICKLIST.DTA";
inline constexpr std::string_view kStoreSat =
    "C:\\QXAIR\\STORESAT.DTA";  // the satellite template, for the sibling programs
inline constexpr std::string_view kSatVerify =
    "C:\\QXAIR\\SATVER.DTA";  // for the sibling programs: the number 1
inline constexpr std::string_view kEditSat = "C:\\QXAIR\\EDITSAT.DTA";
inline constexpr std::string_view kStartTime = "C:\\QXAIR\\START.TMP";
inline constexpr std::string_view kImportRequest = "C:\\QXAIR\\IMPORT.DAT";
inline constexpr std::string_view kImportPath = "C:\\QXAIR\\IMPATH.DTA";  // last source folder
inline constexpr std::string_view kFastImport =
    "C:\\QXAIR\\FASTIMP.DTA";  // what the fast importer was set to
inline constexpr std::string_view kLastRecording = "C:\\QXAIR\\TEMPSPOT.DAT";
inline constexpr std::string_view kTimeRecord = "C:\\QXAIR\\TIMERECORD.DTA";  // the announcement to record
inline constexpr std::string_view kHandOver = "C:\\QXDATA\\TEMP.DAT";
inline constexpr std::string_view kErrorLog = "C:\\QXAIR\\QXERROR.LOG";
inline constexpr std::string_view kRotation = "C:\\QXTEMPLT\\ROTATWIN.DTA";

/// C:\QXDATA\<id>.DAT
inline std::string DataFile(std::string_view id) {
  return std::string(kDataFolder) + '\\' + std::string(id) + ".DAT";
}
/// <Drive>:\QXWAVE\<id><extension>
inline std::string AudioFile(std::string_view drive, std::string_view id, std::string_view extension) {
  return std::string(drive) + ":\\QXWAVE\\" + std::string(id) + std::string(extension);
}
/// <Drive>:\QXWAVE
inline std::string AudioFolder(std::string_view drive) {
  return std::string(drive) + ":\\QXWAVE";
}
inline std::string TemplateFile(std::string_view name) {
  return std::string(kTemplateFolder) + '\\' + std::string(name);
}

}  // namespace quixair::station_paths
