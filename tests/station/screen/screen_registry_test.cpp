#include "station/screen/screen_registry.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

class Child : public Screen {
 public:
  Child(const Platform& platform, std::string& said) : Screen(platform, "Child", "Child"), said_(said) {
    Quit.on_click = [this] {
      Unload();
      said_ += "still " + Quit.caption() + ';';  // the event goes on in a screen that is on its way out
    };
    Ticker.on_tick = [this] {
      said_ += "tick;";
      if (quit_at_tick) Unload();
    };
  }
  ~Child() override { said_ += "gone;"; }
  void Load() override { said_ += "load " + title() + ';'; }

  Button Quit{*this, "Quit", "E&xit"};
  Timer Ticker{*this, "Ticker"};
  bool quit_at_tick = false;

 private:
  std::string& said_;
};

class Registry : public StationFixture, public ScreensObserver {
 protected:
  Registry() {
    station_.StartProgram();
    const Platform& p = station_.platform();
    platform_ = std::make_unique<Platform>(Platform{p.clock, p.timers, p.files, p.media, p.capture, p.dialogs,
                                                    p.printer, p.programs, p.session_start, p.random,
                                                    screens_, p.gate});
    screens_.Attach(*platform_);
    screens_.set_observer(this);
  }
  void TearDown() override {
    screens_.set_observer(nullptr);
    screens_.CloseAll();
  }
  void ScreenOpened(Screen& screen) override { said_ += "open " + screen.name() + ';'; }
  void ScreenClosed(Screen& screen) override { said_ += "close " + screen.name() + ';'; }
  void ScreenActivated(Screen& screen) override { said_ += "front " + screen.name() + ';'; }
  Child& child() { return dynamic_cast<Child&>(*screens_.Find("Child")); }

  std::string said_;
  std::unique_ptr<Platform> platform_;
  ScreenRegistry screens_{{
      {"Child", [this](const Platform& p) { return std::make_unique<Child>(p, said_); }},
      {"Another", [](const Platform& p) { return std::make_unique<Screen>(p, "Another", ""); }},
  }};
};

TEST_F(Registry, UnloadedByItsOwnButton_IsDestroyedAfterTheEvent) {
  screens_.Open("Child", {.title = "Prepared", .patterns = {}, .day_files = {}, .captions = {}});
  child().Quit.Click();
  EXPECT_EQ(said_, "open Child;load Prepared;close Child;still E&xit;gone;");
  EXPECT_EQ(screens_.Find("Child"), nullptr);
}

TEST_F(Registry, UnloadedByItsOwnTick_TicksNoMore) {
  screens_.Open("Child");
  child().quit_at_tick = true;
  child().Ticker.SetInterval(1s);
  said_.clear();
  Advance(10s);
  EXPECT_EQ(said_, "tick;close Child;gone;");
}

TEST_F(Registry, UnloadedWithinANestedEvent_WaitsForTheOuterOneAndTicksNoMore) {
  screens_.Open("Child");
  child().Ticker.SetInterval(1s);
  said_.clear();
  station_.Do([this] {
    Child& screen = child();
    screen.Quit.Click();
    screens_.Unload(screen);  // harmless
    Advance(5s);              // a box is open
    EXPECT_EQ(said_, "close Child;still E&xit;");
    screens_.Open("Child");  // anew, beside the one that goes
    EXPECT_NE(screens_.Find("Child"), &screen);
  });
  EXPECT_EQ(said_, "close Child;still E&xit;open Child;load Child;gone;");
}

TEST_F(Registry, OpenedTwice_ComesToTheFrontAsItIs) {
  screens_.Open("Child");
  child().Hide();
  said_.clear();
  screens_.Open("CHILD", {.title = "another", .patterns = {}, .day_files = {}, .captions = {}});
  EXPECT_EQ(said_, "front Child;");
  EXPECT_TRUE(child().visible());
  EXPECT_EQ(child().title(), "Child");
}

TEST_F(Registry, ProgramGone_ScreensCloseInReverseOrder) {
  screens_.Open("Child");
  screens_.Open("Another");
  said_.clear();
  screens_.CloseAll();
  EXPECT_EQ(said_, "close Another;close Child;gone;");
}

}  // namespace
}  // namespace quixair::testing
