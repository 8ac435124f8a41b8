#include "hunt/made_station.h"

#include <algorithm>

#include "script/script_language.h"
#include "station/platform/civil_time.h"
#include "station/platform/text.h"
#include "station/random/random_settings.h"

namespace quixair::hunt {
namespace {

constexpr std::int64_t kMinute = 60'000;
constexpr std::int64_t kDay = std::int64_t{24} * 60 * kMinute;

CivilTime After(const CivilTime& time, std::int64_t milliseconds) {
  return CivilFromMilliseconds(MillisecondsFromCivil(time) + milliseconds);
}

std::string Numbered(const std::string& letters, int number) {
  return letters + (number < 10 ? "000" : "00") + std::to_string(number);
}

/// Evenings, the hours around midnight and around both steps of summer time, the end of a year.
CivilTime DrawBeginning(Draw& draw) {
  const std::string day = draw.Of({"2026-11-22", "2026-11-23", "2026-03-29", "2026-10-25", "2026-12-31"});
  const std::string hour = draw.Of({"20", "20", "08", "01", "02", "12", "23", "23"});
  const int minute = draw.Below(60);
  return script::MomentOf(day + ' ' + hour + ':' + (minute < 10 ? "0" : "") + std::to_string(minute) + ":00");
}

/// Whole runs of short items, of long ones, and of both.
class Lengths {
 public:
  explicit Lengths(Draw& draw) : draw_(draw), style_(draw.Below(4)) {}
  int Song() {
    switch (style_) {
      case 0:
        return draw_.Between(2'000, 12'000);
      case 1:
        return draw_.Between(15'000, 60'000);
      case 2:
        return draw_.Between(60'000, 400'000);
      default:
        return draw_.Chance(30) ? draw_.Between(1'000, 9'000) : draw_.Between(20'000, 240'000);
    }
  }
  int Short() { return draw_.Between(1'000, style_ == 0 ? 6'000 : 31'000); }

 private:
  Draw& draw_;
  int style_;
};

std::string DrawDate(Draw& draw, const CivilTime& now, std::initializer_list<int> days_away) {
  if (draw.Chance(40)) return {};
  if (draw.Chance(2)) return "05--";
  return MonthDayYear(
      After(now, *(days_away.begin() + draw.Below(static_cast<int>(days_away.size()))) * kDay));
}

class Maker {
 public:
  Maker(Draw& draw, Script& script) : draw_(draw), script_(script), lengths_(draw) {}

  MadeStation Make() {
    made_.begins = DrawBeginning(draw_);
    script_.push_back("clock " + script::Quoted(script::Stamp(made_.begins).substr(0, 19)));
    script_.push_back("seed " + std::to_string(draw_.Below(100000)));
    script_.push_back("answer-others OK");
    MakeLibrary();
    MakeSettings();
    MakeTemplates();
    for (const char* time : {"T0815.WAV", "T1200.WAV"}) Audio("C:\\QXTIME\\" + std::string(time), 3'000);
    if (draw_.Chance(40)) {
      for (int minute = 0; minute < 30; minute += 3) {
        Audio("C:\\QXTIME\\T" + FourDigitHourMinute(After(made_.begins, minute * kMinute)) + ".WAV", 2'500);
      }
    }
    return made_;
  }

 private:
  void Audio(const std::string& path, int milliseconds) {
    script_.push_back("audio " + path + ' ' + std::to_string(milliseconds) + "ms");
  }

  void MakeLibrary() {
    const int songs = draw_.Between(3, draw_.Chance(20) ? 24 : 8);
    for (int i = 1; i <= songs; ++i) Add(Numbered("M", i), lengths_.Song(), i > 2);
    for (int i = draw_.Between(2, 4); i >= 1; --i) Add(Numbered("L", i), lengths_.Short(), i > 2);
    for (int i = draw_.Between(2, 3); i >= 1; --i)
      Add("LL" + std::to_string(100 + i), lengths_.Short(), i > 2);
    for (int i = draw_.Between(1, 8); i >= 1; --i) Add(Numbered("S", i), lengths_.Short(), true);
  }

  /// Most recordings are whole; a `frail` one may lack its audio, be damaged or torn.
  void Add(const std::string& id, int milliseconds, bool frail) {
    MadeRecording recording{id, draw_.Chance(20) ? 'D' : 'C', {}};
    recording.audio =
        std::string(1, recording.drive) + ":\\QXWAVE\\" + id + (draw_.Chance(30) ? ".mp3" : ".wav");
    std::vector<std::string> lines = DrawDataFile(draw_, recording, milliseconds, made_.begins);
    const int flaw = frail ? draw_.Below(40) : 40;
    if (flaw == 0) lines.resize(2);  // torn
    script_.push_back(Put("C:\\QXDATA\\" + id + ".DAT", lines));
    if (flaw == 1) {
      script_.push_back(Put(recording.audio, {"noise"}));
    } else if (flaw != 2) {
      Audio(recording.audio, milliseconds);
    }
    made_.recordings.push_back(recording);
  }

  void Setting(const std::string& name, const std::string& line) {
    script_.push_back(Put("C:\\QXAIR\\" + name, {line}));
  }

  void MakeSettings() {
    Setting("REGOCX.DTA", "1");
    Setting("RESETON.DTA", Text(draw_.Chance(85) ? "1" : "0"));
    const int type = draw_.Chance(50) ? break_type::kScheduledStopSet : draw_.Below(2);
    made_.stop_sets = type == break_type::kScheduledStopSet;
    script_.push_back(Put("C:\\QXAIR\\RANDDATA.DTA", DrawRandomSettings(draw_, type)));
    if (draw_.Chance(60)) Setting("overlap.dta", Text(std::to_string(draw_.Below(10))));
    if (draw_.Chance(70)) Setting("SPOTDRST.DTA", Text(draw_.Chance(80) ? "1" : "0"));
    if (draw_.Chance(20)) Setting("RNDVERLG.DTA", draw_.Of({"0", "1"}));
    if (draw_.Chance(20)) Setting("PIKVERLG.DTA", draw_.Of({"0", "1"}));
    if (draw_.Chance(20)) Setting("RNDPNEXT.DTA", "1");
    if (draw_.Chance(35)) Setting("PICKREPEAT.DTA", "1");
  }

  std::string AnyId(const char* letters) {
    std::vector<std::string> ids;
    for (const MadeRecording& recording : made_.recordings) {
      if (recording.id.starts_with(letters)) ids.push_back(recording.id);
    }
    return draw_.Of(ids);
  }

  /// A row of a list; `odd` ones may wait for the operator or are no recording at all.
  std::string DrawRow(bool odd) {
    switch (draw_.Below(odd ? 24 : 19)) {
      case 0:
        return "LL101";
      case 1:
      case 2:
        return AnyId("L");
      case 3:
      case 4:
      case 5:
      case 6:
      case 7:
      case 8:
        return AnyId("S");
      case 19:
        return ">PAUSE<";
      case 20:
      case 21:
        return ">TIME<";
      case 22:
        return draw_.Of({"SGONE", "MGONE", "X1"});
      case 23:
        return draw_.Of({"", "s0001", "m0001", "m0002"});
      default:
        return AnyId("M");
    }
  }

  void Template(const std::string& name, const std::vector<std::string>& ids) {
    std::vector<std::string> lines;
    lines.reserve(ids.size() + 1);
    for (const std::string& id : ids) lines.push_back(Text(id) + ',' + Text(id.empty() ? "" : "Title"));
    if (!draw_.Chance(4)) lines.push_back("\"\",\"\"");
    script_.push_back(Put("C:\\QXTEMPLT\\" + name, lines));
    made_.templates.push_back(name);
  }

  /// Stop sets every few minutes of the run, beginning shortly after it does.
  std::vector<std::string> DrawSets(bool odd) {
    std::vector<std::string> rows;
    for (int minute = draw_.Between(1, 6); minute < 32; minute += draw_.Between(1, 9)) {
      rows.push_back(HourMinuteAmPm(After(made_.begins, minute * kMinute)));
      for (int i = draw_.Below(5); i > 0; --i) rows.push_back(DrawRow(odd));
    }
    return rows;
  }

  std::vector<std::string> DrawList(bool odd) {
    std::vector<std::string> rows;
    for (int i = draw_.Between(1, draw_.Chance(30) ? 30 : 8); i > 0; --i) rows.push_back(DrawRow(odd));
    if (odd && draw_.Chance(10)) rows.push_back("06:30 PM");
    return rows;
  }

  void MakeTemplates() {
    const bool odd = draw_.Chance(60);
    for (const int days : {0, 1}) {
      const std::string day = UpperCased(DayName(After(made_.begins, days * kDay)));
      if (!draw_.Chance(10)) Template(day + ".TPD", DrawSets(odd));
      if (!draw_.Chance(10)) Template(day + ".TPT", DrawList(odd));
    }
    Template("GALA.TPL", DrawSets(odd));
    Template("SHOW.TPP", DrawList(odd));
    std::vector<std::string> rotation;
    for (int i = draw_.Below(8); i > 0; --i) rotation.push_back(AnyId("S"));
    Template("ROTATWIN.DTA", rotation);
  }

  Draw& draw_;
  Script& script_;
  Lengths lengths_;
  MadeStation made_;
};

}  // namespace

MadeStation MakeStation(Draw& draw, Script& script) {
  return Maker(draw, script).Make();
}

std::string Put(const std::string& path, const std::vector<std::string>& lines) {
  std::string statement = "put " + path;
  for (const std::string& line : lines) statement += ' ' + script::Quoted(line);
  return statement;
}

std::string Text(const std::string& value) {
  return '"' + value + '"';
}

std::vector<std::string> DrawRandomSettings(Draw& draw, int break_type) {
  return {"2",
          std::to_string(draw.Between(1, 4)),
          std::to_string(draw.Between(1, 6)),
          std::to_string(draw.Between(1, 4)),
          draw.Of({"0", "1", "1"}),
          "1",
          std::to_string(break_type),
          draw.Of({"0", "1"}),
          draw.Of({"0", "1"}),
          draw.Of({"0", "0", "10", "45"})};
}

std::vector<std::string> DrawDataFile(Draw& draw, const MadeRecording& recording, int milliseconds,
                                      const CivilTime& now) {
  std::vector<std::string> values = {draw.Chance(3) ? "[New]" : ShortestSeconds(milliseconds), recording.id,
                                     std::string(1, recording.drive)};
  if (recording.id.front() == 'S') {
    values.insert(values.end(),
                  {"Account", "Spot", DrawDate(draw, now, {-30, -1, 0, 1}),
                   DrawDate(draw, now, {-1, 0, 0, 1, 30}), draw.Of({"", "A", "B", "C"}), "A", ""});
  } else if (recording.id.front() == 'M') {
    values.insert(values.end(), {"Artist", "Title", "A", "01-01-26", "2026"});
  } else {
    values.insert(values.end(), {"Liner", "A", "G", "01-01-26", ""});
  }
  for (std::string& value : values) value = Text(value);
  return values;
}

}  // namespace quixair::hunt
