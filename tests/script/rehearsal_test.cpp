#include "script/rehearsal.h"

#include <gmock/gmock.h>

#include <sstream>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

using ::testing::ContainsRegex;
using ::testing::Not;

/// Every file below a folder with its content.
std::string ContentOf(const std::filesystem::path& folder) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    files.push_back(entry.path().string() + ": " +
                    (entry.is_regular_file() ? ReadHostFile(entry.path()) : ""));
  }
  std::sort(files.begin(), files.end());
  std::string all;
  for (const std::string& file : files) all += file + '\n';
  return all;
}

class Rehearsal : public StationFixture {
 protected:
  Rehearsal() {
    AddLibrary(5, 3, 2, 60000);
    for (const char* id : {"S0001", "S0002"}) AddSpot(id, 30000);
  }
  /// One hour from half past eight on a Sunday evening; empty when the station did not get through it.
  std::string OneHour() {
    const TemporaryFolder copy;
    simulation::SimulatedStation station(script::CopyStation(station_.drives(), copy.path()),
                                         station_.time().Now(), StandInLength, 1);
    std::ostringstream out;
    came_through_ = script::Rehearse(station, 1h, out);
    return out.str();
  }
  bool came_through_ = false;
};

TEST_F(Rehearsal, Station_GoesOnTheAirByItself) {
  const struct {
    const char* name;
    std::function<void()> prepare;
    const char* printed;
    const char* not_printed;
  } cases[] = {
      {"rotation", [] {}, "^2026-11-22 20:30:03.000 on air C:.QXWAVE.M000[1-5].wav 60000\n", " box "},
      {"the day's template",
       [this] {
         PutSettings({.BreakType = break_type::kScheduledStopSet});
         PutTemplate("sun.tpd", {"09:00 PM", "S0001"});
       },
       "on air C:.QXWAVE.S0001.wav 30000\n", " box "},
      {"no template of the day",
       [this] {
         std::filesystem::remove(Host("QXTEMPLT/sun.tpd"));
         PutTemplate("MON.TPD", {"09:00 PM", "S0001"});
       },
       "box 0 .No File Selected. .* -> OK\n", "S0001"},
      {"a run that was broken off",
       [this] {
         PutFile("QXAIR/RESETON.DTA", "\"1\"\r\n");
         PutFile("QXAIR/RESET.DTA", "\"1\"\r\n\"RANDOM\"\r\n\"SPECIAL.TPL\"\r\n\"\"\r\n");
         PutTemplate("SPECIAL.TPL", {"09:00 PM", "S0002"});
       },
       "^2026-11-22 20:30:00.000 on air C:.QXWAVE.M(.|\n)*S0002.wav", "S0001"},
      {"a pick-list that was broken off",
       [this] {
         PutFile("QXAIR/RESET.DTA", "\"1\"\r\n\"PICKLIST\"\r\n\"SHOW.TPP\"\r\n2\r\n");
         PutFile("QXAIR/PIKMODE.DTA", "\"0\"\r\n");
         PutFile("QXAIR/STOREPIK.DTA", "\"SHOW.TPP\"\r\n");
         PutTemplate("SHOW.TPP", {"S0001", "S0002", "M0001"});
       },
       "^2026-11-22 20:30:00.000 on air C:.QXWAVE.S0002", "S0001"},
  };
  for (const auto& [name, prepare, printed, not_printed] : cases) {
    SCOPED_TRACE(name);
    prepare();
    const std::string before = ContentOf(folder_.path());
    const std::string day = OneHour();
    EXPECT_TRUE(came_through_) << day;
    EXPECT_THAT(day, ContainsRegex(printed));
    EXPECT_THAT(day, Not(ContainsRegex(not_printed)));
    EXPECT_EQ(ContentOf(folder_.path()), before) << "nothing of the station is changed";
  }
}

TEST_F(Rehearsal, FolderOfTheStationThatIsALink_IsNotWrittenThrough) {
  std::filesystem::rename(Host("QXAIR"), folder_.path() / "elsewhere");
  std::filesystem::create_directory_symlink(folder_.path() / "elsewhere", Host("QXAIR"));
  const std::string before = ContentOf(folder_.path());
  OneHour();
  EXPECT_TRUE(came_through_);
  EXPECT_EQ(ContentOf(folder_.path()), before);
}

TEST_F(Rehearsal, StationThatCannotGoOnTheAir_IsToldWithItsBox) {
  for (const char* id : {"LL001", "LL002"})
    std::filesystem::remove(Host("QXDATA/" + std::string(id) + ".DAT"));
  EXPECT_THAT(OneHour(), ContainsRegex("box 16 .Not Enough Legal I.D. .LL.*.DAT. Files. .* -> OK\n$"));
  EXPECT_FALSE(came_through_);
}

}  // namespace
}  // namespace quixair::testing
