#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>

#include "hunt/crew.h"
#include "hunt/hunted_life.h"
#include "hunt/hunted_run.h"
#include "hunt/shrinking.h"

namespace quixair::hunt {
namespace {

using ::testing::ElementsAre;
using namespace std::chrono_literals;

/// A station that plays three songs of half a minute from SHOW.TPP.
Script ShortList() {
  Script script = {"clock \"2026-11-22 20:00:00\"", "seed 1", "answer-others OK",
                   "put C:\\QXAIR\\REGOCX.DTA 1", "put C:\\QXAIR\\RESETON.DTA \"\\\"1\\\"\""};
  for (const std::string id : {"M1", "M2", "M3"}) {
    script.push_back("put C:\\QXDATA\\" + id + ".DAT \"\\\"30\\\"\" \"\\\"" + id +
                     "\\\"\" \"\\\"C\\\"\" a t");
    script.push_back("audio C:\\QXWAVE\\" + id + ".wav 30s");
  }
  script.insert(script.end(), {"put C:\\QXTEMPLT\\SHOW.TPP M1,t M2,t M3,t \"\\\"\\\",\\\"\\\"\"", "start",
                               "advance 3s", "menu RunTemplate", "select PickPlayTemplate.File1 #1",
                               "click PickPlayTemplate.Done", "click PickListForm1.Start", "advance 20s"});
  return script;
}

std::string RuleOf(const Script& script) {
  const RunResult result = PlayHunted(script);
  return result.broken ? result.broken->rule + ": " + result.broken->what : "";
}

TEST(HuntedRuns, StationThatDoesAsItShould_BreaksNoRule) {
  Script script = ShortList();
  script.insert(script.end(),
                {"click PickListForm1.PauseCommand", "advance 5m", "click PickListForm1.ContinueCommand",
                 "advance 5s", "powercut", "advance 1m", "start", "advance 2m"});
  const RunResult result = PlayHunted(script);
  EXPECT_EQ(RuleOf(script), "");
  EXPECT_EQ(result.sometimes.count("a run taken up after a power cut"), 1U);
}

/// What a station must not do, brought about by other hands.
TEST(HuntedRuns, WhatGoesWrong_IsToldByItsRule) {
  const struct {
    std::vector<const char*> spoil;
    const char* rule;
  } cases[] = {
      {{"put C:\\QXTEMPLT\\Sun.LOG \"\\\"11-22-2026\\\",\\\"08:00:15 "
        "PM\\\",\\\"M9\\\",\\\"a\\\",\\\"P\\\"\""},
       "proof-of-nothing: "},
      {{"remove C:\\QXTEMPLT\\Sun.LOG"}, "airing-without-proof: M1 of "},
      {{"powercut", "put C:\\QXTEMPLT\\SHOW.TPP M3,t M2,t \"\\\"\\\",\\\"\\\"\"",
        "remove C:\\QXAIR\\RESET.DTA", "start", "advance 5s"},
       "not-back-after-power-cut: the run is not taken up again"},
      {{"dance"}, "script: no statement: dance"},
  };
  for (const auto& [spoil, rule] : cases) {
    Script script = ShortList();
    script.insert(script.end(), spoil.begin(), spoil.end());
    EXPECT_THAT(RuleOf(script), ::testing::StartsWith(rule));
  }
}

TEST(HuntedRuns, ScriptOfASeed_IsTheSameEachTimeAndCanBePlayed) {
  const ScreenAtlas atlas = DrawAtlas();
  EXPECT_EQ(ScriptOf(7, atlas), ScriptOf(7, atlas));
  EXPECT_NE(ScriptOf(7, atlas), ScriptOf(8, atlas));
  for (std::uint64_t seed = 1; seed <= 5; ++seed) {
    EXPECT_THAT(RuleOf(ScriptOf(seed, atlas)), ::testing::Not(::testing::StartsWith("script"))) << seed;
  }
}

TEST(Shrinking, LeavesWhatMattersInAPersonsTime) {
  const auto count = [](const Script& script, const char* statement) {
    return std::count(script.begin(), script.end(), statement);
  };
  Script script = {"clock", "seed 1", "answer-others OK"};
  for (int i = 0; i < 40; ++i) script.insert(script.end(), {"put C:\\A x", "advance 3s"});
  script.insert(script.end(), {"click A.B", "advance 1s", "advance 2s", "click A.C"});
  const auto breaks = [&](const Script& smaller) {
    return count(smaller, "click A.B") == 1 && count(smaller, "click A.C") == 1;
  };
  EXPECT_THAT(Shrunk(script, breaks, 10s),
              ElementsAre("clock", "seed 1", "answer-others OK", "click A.B", "advance 250ms", "click A.C"));
}

TEST(Crews, RunThatDies_IsAFindingAndTheOthersGoOn) {
  const Bag bag = RunCrew(1, 9, std::nullopt, [](std::uint64_t seed, const OnLine& on_line) {
    on_line(3);
    if (seed == 4) std::abort();
    RunResult result;
    if (seed == 6) result.broken = Broken{"rule", "what\nis\twrong", "now", 2};
    result.sometimes.insert("rare");
    return result;
  });
  EXPECT_EQ(bag.runs, 9U);
  EXPECT_EQ(bag.sometimes.at("rare"), 8);
  ASSERT_EQ(bag.findings.size(), 2U);
  EXPECT_EQ(bag.findings[0].seed, 4U);
  EXPECT_EQ(bag.findings[0].broken.rule, kProgramDies);
  EXPECT_EQ(bag.findings[0].broken.line, 3U);
  EXPECT_EQ(bag.findings[1].broken.what, "what is wrong");
  EXPECT_EQ(RuleBrokenBy([]() -> RunResult { std::abort(); }, 5s), kProgramDies);
  EXPECT_EQ(RuleBrokenBy(
                []() -> RunResult {
                  for (;;) {
                  }
                },
                1s),
            kRunHangs);
}

}  // namespace
}  // namespace quixair::hunt
