#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using simulation::FileAct;

constexpr const char* kExport = "ExportTemplate";
constexpr const char* kImport = "ImportTemplate";
constexpr const char* kCopy = "CopySatTemp";
constexpr const char* kRemove = "RemoveSatSpot";

class TemplateHousekeeping : public StationFixture {
 protected:
  void GoInto(std::string_view screen, std::string_view folder) {
    Select(screen, "Dir1", folder).DoubleClick();
  }
  void Press(std::string_view screen, std::string_view button, const std::vector<std::string>& answers) {
    shown_before_ = boxes().size();
    for (const std::string& answer : answers) QueueAnswer(answer);
    Click(screen, button);
  }
  const simulation::ShownBox& Box(std::size_t number) { return boxes().at(shown_before_ + number); }
  std::size_t BoxCount() { return boxes().size() - shown_before_; }
  /// A template as its lines, `ids` divided by blanks, with titles that tell them apart.
  static std::string Lines(const std::vector<std::string>& ids) {
    std::string lines;
    for (const std::string& id : ids) lines += "\"" + id + "\",\"of " + id + "\"\r\n";
    return lines;
  }
  bool Exists(std::string_view path) { return std::filesystem::exists(Host(path)); }

  std::size_t shown_before_ = 0;
  const std::string kEnd = "\"\",\"\"\r\n";
  const std::string kGala = Lines({"S1", "M0001"}) + "\"\",\"\"\r\n";
};

TEST_F(TemplateHousekeeping, Export_CopiesToTheFolderChosen) {
  PutFile("QXTEMPLT/GALA.TPP", kGala);
  std::filesystem::create_directories(Host("BACKUP"));
  StartAt("BackupPickList");
  EXPECT_EQ(Shown(kExport, "Text1"), "First, select an existing file to send to another drive or directory.");
  GoInto(kExport, "QXTEMPLT");
  EXPECT_EQ(Shown(kExport, "Text1"),
            "C:\\QXTEMPLT is the export destination. Now, select an existing file to send")
      << "the button waits for a file";
  Menu("BackupPickList");
  Select(kExport, "File1", "GALA.TPP");
  EXPECT_EQ(Shown(kExport, "Text1"), "Now, choose a drive and path to send the selected file to...");
  GoInto(kExport, "BACKUP");
  EXPECT_EQ(Shown(kExport, "Text1"), "C:\\BACKUP is the export destination. Press <Export Now> to continue");
  Press(kExport, "ExportNow", {"Cancel"});
  EXPECT_FALSE(Exists("BACKUP/GALA.TPP"));
  Press(kExport, "ExportNow", {"OK", "OK"});
  EXPECT_EQ(Box(0).title, "Ready to Export File");
  EXPECT_EQ(Box(0).text, "A copy of GALA.TPP will be sent to C:\\BACKUP");
  EXPECT_EQ(Box(1).title, "GALA.TPP Copied");
  EXPECT_EQ(Box(1).text, "The file has been Exported to C:\\BACKUP");
  EXPECT_EQ(Shown(kExport, "Text1"), "GALA.TPP copied to C:\\BACKUP");
  EXPECT_EQ(FileText("BACKUP/GALA.TPP"), kGala);
  EXPECT_EQ(FileText("QXTEMPLT/GALA.TPP"), kGala);
  EXPECT_EQ(Rows(kExport, "File3"), std::vector<std::string>{"GALA.TPP"});
  Select(kExport, "File1", "GALA.TPP");
  EXPECT_EQ(Shown(kExport, "Text1"),
            "Now, choose a drive and path to send the selected file, or <Export Now> if correct.");
}

TEST_F(TemplateHousekeeping, ExportOverAFile_AsksFirst) {
  PutFile("QXTEMPLT/MON.TPD", kGala);
  PutFile("mon.tpd", "old");  // at the drive's root, in another case
  StartAt("BackupSatTemplate");
  Select(kExport, "File2", "MON.TPD");
  Press(kExport, "ExportNow", {"OK", "Cancel"});
  EXPECT_EQ(Box(1).title, "Overwrite Existing File?");
  EXPECT_EQ(Box(1).text,
            "File already exists on destination drive.\nSelecting <OK> will overwrite the file.");
  EXPECT_EQ(FileText("mon.tpd"), "old");
  Press(kExport, "ExportNow", {"OK", "OK", "OK"});
  EXPECT_EQ(FileText("mon.tpd"), kGala);
}

// The screen stays for another try and the source is never harmed.
TEST_F(TemplateHousekeeping, ExportFaults_AreToldByNumber) {
  const struct {
    const char* folder;
    RunTimeError fault;
    const char* title;
  } cases[] = {{"QXTEMPLT", RunTimeError::kNone, "Permission Denied on C:\\QXTEMPLT"},  // onto itself
               {"BACKUP", RunTimeError::kDiskFull, "Unanticipated Error 61"},
               {"BACKUP", RunTimeError::kPathFileAccess, "Unanticipated Error 75"},
               {"BACKUP", RunTimeError::kPathNotFound, "Unanticipated Error 76"}};
  PutFile("QXTEMPLT/GALA.TPP", kGala);
  std::filesystem::create_directories(Host("BACKUP"));
  for (const auto& [folder, fault, title] : cases) {
    SCOPED_TRACE(title);
    StartAt("BackupPickList");
    Select(kExport, "File1", "GALA.TPP");
    GoInto(kExport, folder);
    if (fault != RunTimeError::kNone) station_.files().Fail(FileAct::kCopy, "*", fault);
    if (folder == std::string("QXTEMPLT")) QueueAnswer("OK");  // it is there already
    Press(kExport, "ExportNow", {"OK", "OK"});
    EXPECT_EQ(boxes().back().title, title);
    EXPECT_EQ(Shown(kExport, "Text1"),
              "There was a problem Exporting GALA.TPP to C:\\" + std::string(folder));
    EXPECT_TRUE(IsOpen(kExport));
    EXPECT_EQ(FileText("QXTEMPLT/GALA.TPP"), kGala);
  }
}

TEST_F(TemplateHousekeeping, MissingDrives_Are71InBothDirections) {
  PutFile("QXTEMPLT/GALA.TPP", kGala);
  StartConsole();
  for (const auto& [item, screen] : {std::pair("BackupPickList", kExport), {"RestorePickList", kImport}}) {
    SCOPED_TRACE(screen);
    Menu(item);
    auto& drives = Find<DriveListBox>(screen, "Drive1");
    QueueAnswer("OK");
    drives.PersonSelects({1});
    EXPECT_EQ(boxes().back().title, "Drive D not available");
    EXPECT_EQ(boxes().back().text, "This Drive is unavailable, try again...");
    EXPECT_EQ(drives.drive(), 'C') << "it stays where it was";
  }
  const std::filesystem::path stick = Host("../D");
  std::filesystem::create_directories(stick);
  Select(kExport, "Drive1", 1);
  Select(kExport, "File1", "GALA.TPP");
  std::filesystem::remove_all(stick);  // pulled out
  Press(kExport, "ExportNow", {"OK", "OK"});
  EXPECT_EQ(Box(1).title, "Drive D not available");
  EXPECT_EQ(Shown(kExport, "Text1"), "There was a problem Exporting GALA.TPP to D:\\");
}

TEST_F(TemplateHousekeeping, Import_CopiesIntoTheTemplateFolder) {
  PutFile("BACKUP/GALA.TPP", kGala);
  PutFile("BACKUP/NOTES.TXT", "no template");
  StartAt("RestorePickList");
  EXPECT_EQ(Shown(kImport, "Label1"), "Pick-List Files in Source:");
  EXPECT_FALSE(Find<Button>(kImport, "ImportNow").enabled());
  GoInto(kImport, "BACKUP");
  EXPECT_EQ(Rows(kImport, "File3"), std::vector<std::string>{"GALA.TPP"});
  Select(kImport, "File3", "GALA.TPP").DoubleClick();
  EXPECT_EQ(Shown(kImport, "Text1"),
            "GALA.TPP will be imported to C:\\QXTEMPLT.  To continue, select <Import Now>.");
  Press(kImport, "ImportNow", {"OK", "OK"});
  EXPECT_EQ(Box(0).title, "Ready to Import C:\\BACKUP\\GALA.TPP");
  EXPECT_EQ(Box(0).text, "A copy of GALA.TPP will be imported to C:\\QXTEMPLT");
  EXPECT_EQ(Box(1).text, "The file has been imported to C:\\QXTEMPLT.");
  EXPECT_EQ(FileText("QXTEMPLT/GALA.TPP"), kGala);
  EXPECT_EQ(Rows(kImport, "File1"), std::vector<std::string>{"GALA.TPP"});
  PutFile("QXTEMPLT/GALA.TPP", "in use");
  Press(kImport, "ImportNow", {"OK", "Cancel"});
  EXPECT_EQ(Box(1).title, "Overwrite Existing File?");
  EXPECT_EQ(FileText("QXTEMPLT/GALA.TPP"), "in use");
}

TEST_F(TemplateHousekeeping, ImportFaults_AreToldByNumber) {
  const struct {
    const char* folder;
    RunTimeError fault;
    const char *title, *last_line;
  } cases[] = {
      {"QXTEMPLT", RunTimeError::kNone, "Permission Denied",
       " - or - you are trying to write the same file over itself."},
      {"BACKUP", RunTimeError::kPathFileAccess, "Path/File Access Error",
       "Make sure the QXTEMPLT directory exists."},
      {"BACKUP", RunTimeError::kPathNotFound, "Unexpected ERROR = 76",  // the source's folder is gone
       "and try to import again if necessary."},
      {"BACKUP", RunTimeError::kDiskFull, "Unexpected ERROR = 61", "and try to import again if necessary."}};
  for (const auto& [folder, fault, title, last_line] : cases) {
    SCOPED_TRACE(title);
    PutFile(std::string(folder) + "/GALA.TPP", kGala);
    StartAt("RestorePickList");
    GoInto(kImport, folder);
    Select(kImport, "File3", "GALA.TPP");
    if (fault != RunTimeError::kNone) station_.files().Fail(FileAct::kCopy, "*", fault);
    Press(kImport, "ImportNow", {"OK", "OK", "OK"});
    EXPECT_EQ(boxes().back().title, title);
    const std::string& text = boxes().back().text;
    EXPECT_EQ(text.substr(text.find('\n') + 1), last_line);
    EXPECT_EQ(Shown(kImport, "Text1"), "Problem encountered copying GALA.TPP to C:\\" + std::string(folder));
    EXPECT_TRUE(IsOpen(kImport));
    station_.files().Mend();
  }
  std::filesystem::remove_all(Host("QXTEMPLT"));
  Press(kImport, "ImportNow", {"OK", "OK"});
  EXPECT_EQ(boxes().back().title, "Path/File Access Error") << "the folder of the templates is gone";
}

TEST_F(TemplateHousekeeping, EraseCustom_OffersItsFamilyAndAsks) {
  const struct {
    const char *item, *screen, *name;
  } cases[] = {{"EraseCustomPickList", "ErasePickCustom", "GALA.TPP"},
               {"EraseSatCustom", "EraseSimSatCustom", "GALA.TPL"}};
  for (const char* name : {"GALA.TPP", "MON.TPT", "GALA.TPL", "MON.TPD"}) PutTemplate(name, {});
  StartConsole();
  for (const auto& [item, screen, name] : cases) {
    SCOPED_TRACE(screen);
    const std::string named = name;
    Menu(item);
    EXPECT_EQ(Rows(screen, "File1"), std::vector<std::string>{named}) << "no daily templates";
    for (const char* answer : {"No", "Yes"}) {
      ListBox& list = Select(screen, "File1", named);
      EXPECT_EQ(Shown(screen, "Text1"), "Double Click or Press Enter to Accept " + named + " for deletion.");
      QueueAnswer(answer);
      list.DoubleClick();
      EXPECT_EQ(boxes().back().title, "Erase " + named);
      EXPECT_EQ(boxes().back().text, "Do you really want to erase " + named +
                                         "?  You will\nNOT be able to retrieve it from the recycle bin.");
      EXPECT_EQ(Exists("QXTEMPLT/" + named), answer == std::string_view("No"));
      EXPECT_EQ(Shown(screen, "Text1"), named + " selected for deletion ! ");
    }
    EXPECT_TRUE(Rows(screen, "File1").empty());
  }
  EXPECT_TRUE(Exists("QXTEMPLT/MON.TPT"));
  EXPECT_TRUE(Exists("QXTEMPLT/MON.TPD"));
}

TEST_F(TemplateHousekeeping, CopyData_ReplacesTheDestinationUpToTheFirstEmptyEvent) {
  PutFile("QXTEMPLT/MON.TPD", kGala + Lines({"S9"}));
  PutFile("QXTEMPLT/TUE.TPD", Lines({"M0002"}) + kEnd);
  StartAt("CopySatTemplateData");
  EXPECT_FALSE(Find<Button>(kCopy, "Done").enabled());
  Select(kCopy, "File1", "MON.TPD");
  Select(kCopy, "File2", "MON.TPD");
  Press(kCopy, "Done", {"OK"});
  EXPECT_EQ(Box(0).title, "Can't Copy MON.TPD to MON.TPD");
  EXPECT_EQ(BoxCount(), 1U);
  Select(kCopy, "File2", "TUE.TPD");
  Press(kCopy, "Done", {"Cancel"});
  EXPECT_EQ(FileText("QXTEMPLT/TUE.TPD"), Lines({"M0002"}) + kEnd);
  Press(kCopy, "Done", {"OK", "OK"});
  EXPECT_EQ(
      Box(0).text,
      "If You Continue, All Data will Be Written from MON.TPD to TUE.TPD.  Any Existing Data in TUE.TPD "
      "Will be Lost!");
  EXPECT_EQ(Box(1).text, "MON.TPD Data has been Copied to TUE.TPD");
  EXPECT_EQ(FileText("QXTEMPLT/TUE.TPD"), kGala);
  EXPECT_EQ(FileText("QXTEMPLT/MON.TPD"), kGala + Lines({"S9"}));
}

TEST_F(TemplateHousekeeping, RemoveSpots_KeepsEverythingElseAsItStands) {
  const struct {
    std::string before, after;
  } cases[] = {{Lines({"S1", "M0001", "s2", ">PAUSE<", "06:30 PM", "LL001", "S3"}) + kEnd,
                Lines({"M0001", ">PAUSE<", "06:30 PM", "LL001"}) + kEnd},
               {Lines({"S1", "S2"}) + kEnd, kEnd},
               {Lines({"M0001"}) + kEnd + Lines({"S1"}), Lines({"M0001"}) + kEnd}};
  for (const auto& spots : cases) {
    SCOPED_TRACE(spots.before);
    PutFile("QXTEMPLT/MON.TPD", spots.before);
    StartAt("SatRemoveSpots");
    EXPECT_EQ(Shown(kRemove, "Label3"), "Filename = (Empty)");
    Select(kRemove, "File1", "MON.TPD");
    EXPECT_EQ(Shown(kRemove, "Label3"), "Filename = MON.TPD");
    Press(kRemove, "Done", {"Cancel"});
    EXPECT_EQ(Box(0).title, "Remove Spots from MON.TPD?");
    EXPECT_EQ(FileText("QXTEMPLT/MON.TPD"), spots.before);
    Press(kRemove, "Done", {"OK", "OK"});
    EXPECT_EQ(Box(1).text, "Done Removing Spots from MON.TPD");
    EXPECT_EQ(FileText("QXTEMPLT/MON.TPD"), spots.after);
  }
}

// Copy and Remove read everything first: a source that they cannot take whole ends the program and nothing is
// written.
TEST_F(TemplateHousekeeping, SourceThatCannotBeTakenWhole_EndsTheProgramAndHarmsNothing) {
  const std::string kTooMany = Lines(std::vector<std::string>(2000, "M0001")) + kEnd;
  const std::string kTooManySpots = Lines(std::vector<std::string>(2000, "S1")) + Lines({"M0001"}) + kEnd;
  const struct {
    const char* what;
    std::string source;
    const char* number;  // none for one that is taken
    const char* number_of_removal;
  } cases[] = {{"no last record", Lines({"S1", "M0001"}), "62", "62"},
               {"stops in a record", Lines({"S1"}) + "\"M0001\"", "62", "62"},
               {"empty file", "", "62", "62"},
               {"2000 events", kTooMany, "9", "9"},
               {"1999 events", Lines(std::vector<std::string>(1999, "M0001")) + kEnd, nullptr, nullptr},
               {"many spots before the rest", kTooManySpots, "9", nullptr}};
  for (const auto& torn : cases) {
    for (const bool removal : {false, true}) {
      SCOPED_TRACE(std::string(torn.what) + (removal ? ", removal" : ", copy"));
      const char* number = removal ? torn.number_of_removal : torn.number;
      PutFile("QXTEMPLT/MON.TPD", torn.source);
      PutFile("QXTEMPLT/TUE.TPD", "kept");
      StartAt(removal ? "SatRemoveSpots" : "CopySatTemplateData");
      const char* screen = removal ? kRemove : kCopy;
      Select(screen, "File1", "MON.TPD");
      if (!removal) Select(screen, "File2", "TUE.TPD");
      Press(screen, "Done", {"OK", "OK"});
      EXPECT_EQ(station_.running(), number == nullptr);
      if (number == nullptr) continue;
      EXPECT_EQ(Box(1).text, "Run-time error '" + std::string(number) + "'");
      EXPECT_EQ(FileText("QXTEMPLT/MON.TPD"), torn.source);
      EXPECT_EQ(FileText("QXTEMPLT/TUE.TPD"), "kept");
    }
  }
}

TEST_F(TemplateHousekeeping, FullDisk_LeavesTheTemplatesAndTheProgram) {
  PutFile("QXTEMPLT/MON.TPD", kGala);
  PutFile("QXTEMPLT/TUE.TPD", kEnd);
  StartAt("CopySatTemplateData");
  Select(kCopy, "File1", "MON.TPD");
  Select(kCopy, "File2", "TUE.TPD");
  station_.files().Fail(FileAct::kWrite, "*", RunTimeError::kDiskFull);
  Press(kCopy, "Done", {"OK", "OK"});
  EXPECT_EQ(Box(1).text, "The disk is full.\nTUE.TPD stays as it was.\n[Error 61]");
  EXPECT_EQ(FileText("QXTEMPLT/MON.TPD"), kGala);
  EXPECT_EQ(Shown(kCopy, "Text1"),
            "Select file to copy from and file to copy to.  Click Done when ready to copy.");
}

}  // namespace
}  // namespace quixair::testing
