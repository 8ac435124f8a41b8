#include "station/host/disk_files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <set>

#include "station/host/host_file.h"
#include "station/platform/text.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

namespace fs = std::filesystem;

constexpr Durability kOrdinary = Durability::kOrdinary;

class DiskFilesTest : public ::testing::Test {
 protected:
  DiskFilesTest() {
    for (const char* name : {"QXAIR", "QXDATA"}) fs::create_directories(folder_.path() / name);
  }
  fs::path Host(std::string_view path) const { return folder_.path() / path; }
  std::string HostText(std::string_view path) const { return ReadHostFile(Host(path)); }
  void PutHost(std::string_view path, std::string_view bytes) { WriteHostFile(Host(path), bytes); }
  /// As if the folder had stood for a while, so that its index is kept.
  void Age(std::string_view folder) {
    fs::last_write_time(Host(folder), fs::file_time_type::clock::now() - std::chrono::hours(1));
  }
  std::string Read(std::string_view path) { return files_.Read(path).value_or("<none>"); }
  int ReadError(std::string_view path) { return files_.Read(path).status().number(); }
  int WriteError(std::string_view path) { return files_.Write(path, "x", kOrdinary).number(); }
  std::vector<std::string> Listed(std::string_view folder, std::string_view pattern) {
    std::vector<std::string> names = files_.List(folder, pattern).value_or({"<none>"});
    std::sort(names.begin(), names.end());
    return names;
  }
  Drives Table() {
    Drives drives;
    drives.Set('C', folder_.path());
    drives.Set('E', folder_.path() / "gone");
    return drives;
  }

  TemporaryFolder folder_;
  DiskFiles files_{Table()};
};

TEST_F(DiskFilesTest, NamesAndFolders_AreFoundInAnyCase) {
  PutHost("QXDATA/M0001.Dat", "song");
  PutHost("Mixed/Inner/file.TXT", "deep");
  for (const char* path :
       {"C:\\QXDATA\\M0001.Dat", "c:\\qxdata\\m0001.dat", "C:/QxData/M0001.DAT", "C:\\\\QXDATA\\M0001.dat"}) {
    EXPECT_EQ(Read(path), "song") << path;
    EXPECT_TRUE(files_.Exists(path)) << path;
  }
  EXPECT_EQ(Read("C:\\MIXED\\INNER\\FILE.txt"), "deep");
  EXPECT_EQ(files_.HostPath("C:\\qxdata\\m0001.dat"), Host("QXDATA/M0001.Dat"));
  EXPECT_FALSE(files_.Exists("C:\\QXDATA")) << "a folder is no file";
}

TEST_F(DiskFilesTest, BothSpellingsThere_TheExactOneCounts) {
  PutHost("QXDATA/S1.DAT", "upper");
  PutHost("QXDATA/s1.dat", "lower");
  EXPECT_EQ(Read("C:\\QXDATA\\S1.DAT"), "upper");
  EXPECT_EQ(Read("C:\\QXDATA\\s1.dat"), "lower");
  EXPECT_TRUE(files_.Delete("C:\\QXDATA\\S1.DAT").ok());
  EXPECT_EQ(Read("C:\\QXDATA\\S1.DAT"), "lower");
}

TEST_F(DiskFilesTest, WrittenInAnotherCase_ReplacesTheFileThatIsThere) {
  PutHost("QXAIR/overlap.dta", "a longer old content");
  ASSERT_TRUE(files_.Write("C:\\QXAIR\\OVERLAP.DTA", "new", kOrdinary).ok());
  EXPECT_EQ(HostText("QXAIR/overlap.dta"), "new");
  EXPECT_FALSE(fs::exists(Host("QXAIR/OVERLAP.DTA")));
  ASSERT_TRUE(files_.Write("C:\\qxair\\OVERLAP.dta", "longer again", Durability::kFlushed).ok());
  EXPECT_EQ(HostText("QXAIR/overlap.dta"), "longer again");
}

TEST_F(DiskFilesTest, Append_MakesTheFileAndEndsALineThatAPowerCutTore) {
  const char* log = "C:\\QXAIR\\QXERROR.LOG";
  ASSERT_TRUE(files_.Append(log, "one\r\n", Durability::kFlushed).ok());
  ASSERT_TRUE(files_.Append(log, "tw", Durability::kFlushed).ok());
  ASSERT_TRUE(files_.Append(log, "three\r\n", Durability::kFlushed).ok());
  EXPECT_EQ(HostText("QXAIR/QXERROR.LOG"), "one\r\ntw\r\nthree\r\n");
}

TEST_F(DiskFilesTest, AppendWithoutRoom_LeavesNoHalfLine) {
  PutHost("QXAIR/QXERROR.LOG", "\"one\"\r\n");
  rlimit old_limit{};
  ::getrlimit(RLIMIT_FSIZE, &old_limit);
  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit room_for_a_few{.rlim_cur = 12, .rlim_max = old_limit.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &room_for_a_few);
  const Status appended = files_.Append("C:\\QXAIR\\QXERROR.LOG", "\"two\"\r\n", kOrdinary);
  ::setrlimit(RLIMIT_FSIZE, &old_limit);
  std::signal(SIGXFSZ, old_handler);
  EXPECT_EQ(appended.number(), 61);
  EXPECT_EQ(HostText("QXAIR/QXERROR.LOG"), "\"one\"\r\n");
}

TEST_F(DiskFilesTest, FilesOfAnySize_AreReadWhole) {
  for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 8192U, 300000U}) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i % 251);
    PutHost("QXDATA/SOURCE.BIN", bytes);
    ASSERT_TRUE(files_.Copy("C:\\QXDATA\\SOURCE.BIN", "C:\\QXAIR\\COPY.BIN").ok());
    EXPECT_TRUE(HostText("QXAIR/COPY.BIN") == bytes) << size << " bytes";
  }
}

TEST_F(DiskFilesTest, OwnChanges_AreSeenAtOnceInAnyCase) {
  PutHost("QXDATA/A.DAT", "");
  Age("QXDATA");
  EXPECT_FALSE(files_.Exists("C:\\QXDATA\\new.dat"));
  ASSERT_TRUE(files_.Write("C:\\QXDATA\\NEW.DAT", "x", kOrdinary).ok());
  EXPECT_TRUE(files_.Exists("C:\\QXDATA\\new.dat"));
  EXPECT_EQ(Listed("C:\\QXDATA", "*.DAT"), (std::vector<std::string>{"A.DAT", "NEW.DAT"}));
  ASSERT_TRUE(files_.Delete("C:\\QXDATA\\new.dat").ok());
  EXPECT_FALSE(files_.Exists("C:\\QXDATA\\NEW.DAT"));
  EXPECT_EQ(Listed("C:\\QXDATA", "*.DAT"), (std::vector<std::string>{"A.DAT"}));
  PutHost("QXDATA/new.dat", "made anew by another program");
  EXPECT_TRUE(files_.Exists("C:\\QXDATA\\NEW.DAT"));
  ASSERT_TRUE(files_.MakeFolder("C:\\QXDATA\\Sub").ok());
  EXPECT_EQ(WriteError("C:\\QXDATA\\SUB\\x.dat"), 0);
}

TEST_F(DiskFilesTest, ChangesBehindOurBack_AreSeen) {
  PutHost("QXDATA/OLD.DAT", "old");
  Age("QXDATA");
  EXPECT_EQ(Read("C:\\QXDATA\\old.dat"), "old");  // the index is held now
  PutHost("QXDATA/ADDED.DAT", "added");
  EXPECT_EQ(Read("C:\\QXDATA\\added.dat"), "added");
  fs::rename(Host("QXDATA/OLD.DAT"), Host("QXDATA/Old.dat"));
  EXPECT_EQ(Read("C:\\QXDATA\\OLD.DAT"), "old");
  fs::remove(Host("QXDATA/Old.dat"));
  EXPECT_EQ(ReadError("C:\\QXDATA\\OLD.DAT"), 53);
  EXPECT_EQ(Listed("C:\\QXDATA", "*.*"), (std::vector<std::string>{"ADDED.DAT"}));
}

TEST_F(DiskFilesTest, ChangesWithinTheGrainOfTheFoldersTime_AreFoundByTheNamesThatLedAstray) {
  PutHost("QXDATA/OLD.DAT", "old");
  Age("QXDATA");
  const auto stood = fs::last_write_time(Host("QXDATA"));
  EXPECT_EQ(Read("C:\\QXDATA\\old.dat"), "old");
  fs::rename(Host("QXDATA/OLD.DAT"), Host("QXDATA/Old.Dat"));
  fs::last_write_time(Host("QXDATA"), stood);  // the folder's time tells nothing
  EXPECT_EQ(Read("C:\\QXDATA\\old.dat"), "old");
  fs::remove(Host("QXDATA/Old.Dat"));
  fs::last_write_time(Host("QXDATA"), stood);
  EXPECT_FALSE(files_.Exists("C:\\QXDATA\\old.dat"));
}

TEST_F(DiskFilesTest, FolderRenamedBehindOurBack_IsFoundAgain) {
  PutHost("QXDATA/S1.DAT", "spot");
  EXPECT_EQ(Read("C:\\QXDATA\\S1.DAT"), "spot");
  fs::rename(Host("QXDATA"), Host("qxdata"));
  EXPECT_EQ(Read("C:\\QXDATA\\S1.DAT"), "spot");
  fs::rename(Host("qxdata"), Host("QxData"));
  EXPECT_EQ(WriteError("C:\\QXDATA\\S1.DAT"), 0);
  EXPECT_EQ(Listed("C:\\QXDATA", "S*"), (std::vector<std::string>{"S1.DAT"}));
  fs::remove_all(Host("QxData"));
  EXPECT_EQ(ReadError("C:\\QXDATA\\S1.DAT"), 76);
  EXPECT_EQ(WriteError("C:\\QXDATA\\S1.DAT"), 76);
}

TEST_F(DiskFilesTest, Errors_CarryTheNumbersThatOperatorsKnow) {
  fs::create_directories(Host("QXDATA/FOLDER.DAT"));
  const struct {
    const char* path;
    int read, write;
  } cases[] = {
      {"C:\\QXDATA\\S9.DAT", 53, 0},
      {"C:\\NOWHERE\\S1.DAT", 76, 76},
      {"D:\\QXWAVE\\S1.WAV", 71, 71},
      {"E:\\S1.WAV", 71, 71},
      {"C:\\QXDATA\\FOLDER.DAT", 75, 75},
      {"", 52, 52},
      {"S1.DAT", 52, 52},
      {"C:S1.DAT", 52, 52},
      {"C:\\QXDATA\\", 52, 52},
      {"C:\\QXDATA\\..", 52, 52},
      {"C:\\QXDATA\\..\\S1.DAT", 52, 52},
      {"C:\\..\\..\\etc\\passwd", 52, 52},
      {"C:\\QXDATA\\../../x.DAT", 52, 52},
      {"\\\\SERVER\\S1.DAT", 52, 52},
      {"C:\\QXDATA\\S9.DAT\\S1.DAT", 76, 76},
  };
  for (const auto& [path, read, write] : cases) {
    EXPECT_EQ(ReadError(path), read) << path;
    EXPECT_EQ(WriteError(path), write) << path;
  }
  EXPECT_EQ(WriteError("C:\\QXDATA\\" + std::string(300, 'S')), 52);
  EXPECT_EQ(files_.Delete("C:\\QXDATA\\NONE.DAT").number(), 53);
  EXPECT_EQ(files_.Delete("C:\\QXDATA\\FOLDER.DAT").number(), 53) << "a folder is no file to delete";
  EXPECT_EQ(files_.Copy("C:\\QXDATA\\NONE.DAT", "C:\\QXAIR\\NONE.DAT").number(), 53);
  EXPECT_EQ(files_.MakeFolder("c:\\qxdata").number(), 75);
  EXPECT_EQ(files_.MakeFolder("C:\\NOWHERE\\NEW").number(), 76);
  EXPECT_EQ(files_.MakeFolder("D:\\NEW").number(), 71);
  EXPECT_EQ(files_.List("C:\\NOWHERE", "*.*").status().number(), 76);
  EXPECT_FALSE(fs::exists(folder_.path() / "QXAIR/NONE.DAT"));
}

TEST_F(DiskFilesTest, NotAllowed_Is70) {
  for (const int refusal : {EACCES, EPERM, EROFS}) {
    errno = refusal;
    EXPECT_EQ(host_file::LastError(), RunTimeError::kPermissionDenied) << refusal;
  }
}

TEST_F(DiskFilesTest, FullDisk_Is61) {
  fs::create_symlink("/dev/full", Host("QXAIR/RESET.DTA"));
  EXPECT_EQ(files_.Write("C:\\QXAIR\\RESET.DTA", "\"1\"\r\n", Durability::kFlushed).number(), 61);
  EXPECT_EQ(files_.Append("C:\\QXAIR\\RESET.DTA", "line", kOrdinary).number(), 61);
  PutHost("QXDATA/SOURCE.DAT", "x");
  EXPECT_EQ(files_.Copy("C:\\QXDATA\\SOURCE.DAT", "C:\\QXAIR\\RESET.DTA").number(), 61);
}

TEST_F(DiskFilesTest, List_GivesFilesOnlyInTheFoldersOwnOrder) {
  for (const char* name : {"S1.DAT", "m1.dat", "M2.DAT", "L1.TXT", "M3.DAT.BAK"})
    PutHost("QXDATA/" + std::string(name), "");
  fs::create_directories(Host("QXDATA/M9.DAT"));
  fs::create_symlink(Host("QXDATA/S1.DAT"), Host("QXDATA/M4.DAT"));
  EXPECT_EQ(Listed("c:\\qxdata", "M*.DAT"), (std::vector<std::string>{"M2.DAT", "M4.DAT", "m1.dat"}));
  EXPECT_EQ(Listed("C:\\QXDATA\\", "S*.DAT;*.TXT"), (std::vector<std::string>{"L1.TXT", "S1.DAT"}));
  std::vector<std::string> order;
  for (const auto& entry : fs::directory_iterator(Host("QXDATA"))) {
    if (entry.is_regular_file()) order.push_back(entry.path().filename().string());
  }
  EXPECT_EQ(files_.List("C:\\QXDATA", "*.*").value_or({}), order);
}

TEST_F(DiskFilesTest, AccentsInNames_AreUnicodeOnTheHostAndCodePageInTheStation) {
  PutHost("QXDATA/Café.tpp", "list");
  const std::string name = FromUtf8("CAFÉ.TPP");
  EXPECT_EQ(name.size(), 8U);
  EXPECT_EQ(Read("C:\\QXDATA\\" + name), "list");
  EXPECT_EQ(Listed("C:\\QXDATA", "*.TPP"), (std::vector<std::string>{FromUtf8("Café.tpp")}));
  ASSERT_TRUE(files_.Write("C:\\QXDATA\\" + FromUtf8("Noël.TPP"), "x", kOrdinary).ok());
  EXPECT_TRUE(fs::exists(Host("QXDATA/Noël.TPP")));
}

TEST_F(DiskFilesTest, NamesThatWouldLookAlike_AreToldApartAndEachCanBeOpened) {
  for (const char* name : {"\u0141.mp3", "\u0416.mp3", "\u0436.MP3"})
    PutHost("QXDATA/" + std::string(name), name);
  std::set<std::string> contents;
  for (const std::string& name : Listed("C:\\QXDATA", "*.mp3")) contents.insert(Read("C:\\QXDATA\\" + name));
  EXPECT_EQ(contents, (std::set<std::string>{"\u0141.mp3", "\u0416.mp3", "\u0436.MP3"}));
}

TEST_F(DiskFilesTest, NamesThatTheStationCannotHold_AreListedWithAStandInAndOpenedByIt) {
  const std::pair<const char*, const char*> names[] = {{"caf\xE9.dat", "caf?.dat"},  // no UTF-8
                                                       {"\u0141.dat", "?.dat"},
                                                       {"say \"hi\".dat", "say ?hi?.dat"},
                                                       {"back\\slash.dat", "back?slash.dat"},
                                                       {"two\nlines.dat", "two?lines.dat"}};
  std::vector<std::string> shown;
  for (const auto& [on_the_host, in_the_station] : names) {
    PutHost("QXDATA/" + std::string(on_the_host), on_the_host);
    EXPECT_EQ(Read("C:\\QXDATA\\" + std::string(in_the_station)), on_the_host);
    shown.emplace_back(in_the_station);
  }
  std::sort(shown.begin(), shown.end());
  EXPECT_EQ(Listed("C:\\QXDATA", "*.dat"), shown);
}

}  // namespace
}  // namespace quixair::testing
