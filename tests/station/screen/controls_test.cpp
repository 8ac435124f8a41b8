#include "station/screen/controls.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class SampleScreen : public Screen {
 public:
  explicit SampleScreen(const Platform& platform) : Screen(platform, "Sample", "Sample") {}

  Button Plain{*this, "Plain", "&Plain"};
  Frame Outer{*this, "Outer"};
  Frame Inner{Outer, "Inner"};
  Button InFrame{Inner, "InFrame", "&In Frame"};
  OptionButton Option1{Outer, "Option1", "one"};
  OptionButton Option2{Outer, "Option2", "two"};
  OptionButton Option3{*this, "Option3", "another group"};
  OptionButton Option4{*this, "Option4", "another group"};
  TextBox Entry{*this, "Entry"};
  TextBox Status{*this, "Status", TextBox::Use::kShow};
  ListBox Plays{*this, "Plays"};
  ListBox Sorted{*this, "Sorted", ListBox::Order::kSorted};
  CheckBox Check{*this, "Check", "check"};
  Timer Ticker{*this, "Ticker"};
};

class Controls : public StationFixture {
 protected:
  Controls() { station_.StartProgram(); }

  SampleScreen& screen() {
    if (!screen_) screen_ = std::make_unique<SampleScreen>(station_.platform());
    return *screen_;
  }
  void TearDown() override { screen_.reset(); }

  std::unique_ptr<SampleScreen> screen_;
};

TEST_F(Controls, HiddenOrDisabledAnywhereAround_BlocksAPersonsActs) {
  int clicks = 0;
  screen().InFrame.on_click = [&] { ++clicks; };
  screen().InFrame.Click();
  EXPECT_EQ(clicks, 1);
  Control* around[] = {&screen().Outer, &screen().Inner, &screen().InFrame};
  for (Control* control : around) {
    SCOPED_TRACE(control->name());
    control->Hide();
    EXPECT_FALSE(screen().InFrame.visible_to_person());
    screen().InFrame.Click();
    control->Show();
    control->Disable();
    EXPECT_FALSE(screen().InFrame.enabled_for_person());
    screen().InFrame.Click();
    control->Enable();
  }
  EXPECT_EQ(clicks, 1);
  screen().InFrame.Click();
  EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, Options_ExcludeOneAnotherWithinTheirFrameOnly) {
  SampleScreen& s = screen();
  s.Option3.Select();
  s.Option1.Select();
  s.Option2.PersonSelects();
  EXPECT_FALSE(s.Option1.selected());
  EXPECT_TRUE(s.Option2.selected());
  EXPECT_TRUE(s.Option3.selected()) << "of another frame";
  s.Option4.Select();
  EXPECT_FALSE(s.Option3.selected());
  EXPECT_TRUE(s.Option2.selected());
}

TEST_F(Controls, SettingValues_RaisesNoEvent) {
  int events = 0;
  SampleScreen& s = screen();
  s.Entry.on_change = s.Check.on_click = s.Option1.on_click = s.Plays.on_click = [&] { ++events; };
  s.Entry.SetText("text");
  s.Check.Tick(true);
  s.Option1.Select();
  s.Plays.AddRow("row");
  s.Plays.Select(0);
  EXPECT_EQ(events, 0);
  s.Check.PersonTicks(true);
  EXPECT_EQ(events, 0) << "it is ticked already";
  s.Check.PersonTicks(false);
  EXPECT_EQ(events, 1);
}

TEST_F(Controls, Typing_AsksTheKeyFilterAndStopsAtTheLimit) {
  SampleScreen& s = screen();
  int changes = 0;
  s.Entry.on_change = [&] { ++changes; };
  s.Entry.on_key_press = [](char& key) {
    if (key == '"') key = 0;
    if (key == 'x') key = 'X';
  };
  s.Entry.SetMaxLength(4);
  for (const char key : std::string_view("a\"xbcd")) s.Entry.TypeKey(key);
  EXPECT_EQ(s.Entry.text(), "aXbc");
  EXPECT_EQ(changes, 4);
  s.Entry.Edit("longer");
  EXPECT_EQ(s.Entry.text(), "long");
  s.Status.TypeKey('a');
  s.Status.Edit("b");
  EXPECT_EQ(s.Status.text(), "") << "it only shows";
}

TEST_F(Controls, SortedList_KeepsItsOrderAndItsSelectedRow) {
  ListBox& list = screen().Sorted;
  for (const char* row : {"beta", "Delta", "alpha"}) list.AddRow(row);
  EXPECT_EQ(list.rows(), (std::vector<std::string>{"alpha", "beta", "Delta"}));
  list.Select(1);
  list.AddRow("Aleph");
  EXPECT_EQ(list.selected_text(), "beta");
  list.AddRow("zeta");
  EXPECT_EQ(list.selected_text(), "beta");
}

TEST_F(Controls, RowRemoved_SelectionStaysOnItsRow) {
  const struct {
    int selected, removed, selected_then;
  } cases[] = {{1, 0, 0}, {1, 1, -1}, {1, 2, 1}, {2, 2, -1}, {-1, 0, -1}};
  for (const auto& [selected, removed, selected_then] : cases) {
    SCOPED_TRACE(std::to_string(selected) + " selected, removed " + std::to_string(removed));
    ListBox& list = screen().Plays;
    list.Clear();
    for (const char* row : {"a", "b", "c"}) list.AddRow(row);
    list.Select(selected);
    list.RemoveRow(removed);
    EXPECT_EQ(list.selected_index(), selected_then);
    EXPECT_EQ(list.row_count(), 2);
  }
}

TEST_F(Controls, Selection_TakesWhatThereIs) {
  ListBox& list = screen().Plays;
  for (const char* row : {"a", "b", "c"}) list.AddRow(row);
  list.Select(3);
  EXPECT_EQ(list.selected_text(), "");
  list.PersonSelects({2, 0});
  EXPECT_EQ(list.selected_rows(), (std::vector<int>{2})) << "one row only";
  list.AllowSeveral();
  list.PersonSelects({0, 7, 2});
  EXPECT_EQ(list.selected_rows(), (std::vector<int>{0, 2}));
  list.Clear();
  EXPECT_EQ(list.selected_index(), -1);
}

TEST_F(Controls, FileList_ShowsMatchingNamesSortedAndNothingOfAMissingFolder) {
  for (const char* name : {"s2.DAT", "S1.DAT", "M1.DAT"}) PutFile(std::string("QXDATA/") + name, "");
  SampleScreen& s = screen();
  FileListBox files(s, "Files");
  files.SetPattern("s*");
  files.SetPath("c:\\qxdata");
  EXPECT_EQ(files.rows(), (std::vector<std::string>{"S1.DAT", "s2.DAT"}));
  files.SetPath("C:\\NOWHERE");
  EXPECT_EQ(files.row_count(), 0);
}

TEST_F(Controls, FolderList_GoesDownAndUpByDoubleClickAndEnter) {
  std::filesystem::create_directories(Host("backup/Old"));
  std::filesystem::create_directories(Host("BACKUP2"));
  std::filesystem::create_directories(Host(".hidden"));
  DirListBox folders(screen(), "Folders");
  std::string went;
  folders.on_change = [&] { went += folders.path() + ';'; };
  ASSERT_TRUE(folders.SetPath("C:\\").ok());
  EXPECT_EQ(folders.rows(), (std::vector<std::string>{"backup", "BACKUP2", "QXAIR", "QXDATA", "QXTEMPLT",
                                                      "QXTIME", "QXWAVE"}));
  EXPECT_EQ(folders.FileIn("A.TPP"), "C:\\A.TPP");
  folders.DoubleClick();
  EXPECT_EQ(went, "") << "nothing was selected, and the station's own setting is no change";
  folders.PersonSelects({0});
  folders.DoubleClick();
  EXPECT_EQ(folders.rows(), (std::vector<std::string>{"..", "Old"}));
  EXPECT_EQ(folders.FileIn("A.TPP"), "C:\\backup\\A.TPP");
  folders.PersonSelects({1});
  folders.PressEnter();
  for (int up = 0; up < 2; ++up) {
    folders.PersonSelects({0});
    folders.PressEnter();
  }
  EXPECT_EQ(went, "C:\\backup;C:\\backup\\Old;C:\\backup;C:\\;");
}

TEST_F(Controls, FolderOrDriveThatHasGone_LeavesTheListWhereItWas) {
  std::filesystem::create_directories(Host("backup"));
  DirListBox folders(screen(), "Folders");
  ASSERT_TRUE(folders.SetPath("C:\\").ok());
  EXPECT_EQ(folders.SetPath("D:\\").number(), 71) << "its directory is not there";
  EXPECT_EQ(folders.SetPath("C:\\NOWHERE").number(), 76);
  std::filesystem::remove(Host("backup"));
  folders.on_change = [] { ADD_FAILURE() << "nobody went anywhere"; };
  folders.PersonSelects({0});
  folders.DoubleClick();
  EXPECT_EQ(folders.path(), "C:\\");
  EXPECT_EQ(folders.row(0), "QXAIR") << "it is not offered a second time";
}

TEST_F(Controls, DriveList_OffersTheDrivesOfTheTable) {
  DriveListBox drives(screen(), "Drives");
  drives.Refresh();
  EXPECT_EQ(drives.rows(), (std::vector<std::string>{"C:", "D:"}));
  EXPECT_EQ(drives.drive(), '\0');
  drives.SelectDrive('d');
  EXPECT_EQ(drives.drive(), 'D');
  drives.Refresh();
  EXPECT_EQ(drives.drive(), 'D');
  drives.SelectDrive('X');
  EXPECT_EQ(drives.selected_index(), -1);
}

TEST_F(Controls, Timer_RunsWhileEnabledWithAnInterval) {
  int ticks = 0;
  Timer& timer = screen().Ticker;
  timer.on_tick = [&] { ++ticks; };
  Advance(10s);
  EXPECT_EQ(ticks, 0) << "enabled, and without an interval";
  timer.SetInterval(1s);
  Advance(1s);
  EXPECT_EQ(ticks, 1);
  timer.SetInterval(0s);
  Advance(10s);
  EXPECT_EQ(ticks, 1) << "the interval was taken away";
  timer.SetInterval(1s);
  timer.SetEnabled(false);
  Advance(10s);
  EXPECT_EQ(ticks, 1);
  timer.SetInterval(2s);
  timer.SetEnabled(true);
  Advance(2s);
  EXPECT_EQ(ticks, 2);
}

TEST_F(Controls, TimerSetToWhatItIs_KeepsItsPhase) {
  int ticks = 0;
  Timer& timer = screen().Ticker;
  timer.on_tick = [&] { ++ticks; };
  timer.SetInterval(1s);
  Advance(900ms);
  timer.SetInterval(1s);
  timer.SetEnabled(true);
  Advance(100ms);
  EXPECT_EQ(ticks, 1);
  timer.SetInterval(500ms);
  Advance(499ms);
  EXPECT_EQ(ticks, 1);
  Advance(1ms);
  EXPECT_EQ(ticks, 2) << "another interval counts from now on";
}

TEST_F(Controls, TimerWhoseTickWaitsInABox_IsNotEnteredAgain) {
  int ticks = 0;
  bool box_open = false;
  Timer& timer = screen().Ticker;
  timer.SetInterval(1s);
  timer.on_tick = [&] {
    ++ticks;
    EXPECT_FALSE(box_open);
    box_open = true;
    Advance(10s);  // the operator thinks it over
    box_open = false;
    if (ticks == 2) throw std::runtime_error("the second fails");
  };
  Advance(1s);
  EXPECT_EQ(ticks, 1);
  station_.on_fault = [](const std::string&) {};
  Advance(1s);
  Advance(1s);
  EXPECT_EQ(ticks, 3) << "a tick that failed does not silence its timer";
}

}  // namespace
}  // namespace quixair::testing
