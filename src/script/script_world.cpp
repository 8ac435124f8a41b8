// The statements that are not an operator's: what the world does to a station, and how the person at it behaves.

#include <algorithm>
#include <array>
#include <utility>

#include "script/script_runner.h"
#include "station/platform/text.h"

namespace quixair::script {
namespace {

using simulation::FileAct;

constexpr std::array<std::pair<std::string_view, FileAct>, 6> kActs = {{{"read", FileAct::kRead},
                                                                        {"write", FileAct::kWrite},
                                                                        {"append", FileAct::kAppend},
                                                                        {"delete", FileAct::kDelete},
                                                                        {"copy", FileAct::kCopy},
                                                                        {"list", FileAct::kList}}};

FileAct ActNamed(std::string_view name) {
  const auto* const found =
      std::find_if(kActs.begin(), kActs.end(), [&](const auto& act) { return act.first == name; });
  if (found == kActs.end()) throw ScriptError("no act on files: " + ToUtf8(name));
  return found->second;
}

void Done(const Status& status, const Word& path) {
  if (status.ok()) return;
  throw CannotBeDone("cannot be done to " + ToUtf8(path.text) + " [Error " + std::to_string(status.number()) +
                     ']');
}

/// "lost" or "back".
bool IsLost(const Word& word) {
  if (word.text != "lost" && word.text != "back") throw ScriptError("lost or back is wanted");
  return word.text == "lost";
}

}  // namespace

void ScriptRunner::TryStatement(const Arguments& words) {
  try {
    Execute(words);
  } catch (const CannotBeDone&) {  // nobody could: then nobody does
  }
}

void ScriptRunner::AnswerOthersStatement(const Arguments& words) {
  station_.dialogs().otherwise = words[0].text;
}

void ScriptRunner::ThinkStatement(const Arguments& words) {
  station_.thinking = SpanOf(words[0].text);
}

void ScriptRunner::SeedStatement(const Arguments& words) {
  station_.Seed(static_cast<std::uint64_t>(WholeNumberOf(words[0].text)));
}

void ScriptRunner::PutStatement(const Arguments& words) {
  std::string bytes;
  for (std::size_t i = 1; i < words.size(); ++i) bytes += words[i].text + "\r\n";
  Done(world_.Put(words[0].text, bytes), words[0]);
}

void ScriptRunner::AudioStatement(const Arguments& words) {
  Done(world_.PutAudio(words[0].text, SpanOf(words[1].text)), words[0]);
}

void ScriptRunner::TearStatement(const Arguments& words) {
  Done(world_.Tear(words[0].text, static_cast<std::uintmax_t>(WholeNumberOf(words[1].text))), words[0]);
}

void ScriptRunner::RemoveStatement(const Arguments& words) {
  Done(world_.Remove(words[0].text), words[0]);
}

void ScriptRunner::AwayStatement(const Arguments& words) {
  Done(world_.TakeAway(words[0].text), words[0]);
}

void ScriptRunner::BackStatement(const Arguments& words) {
  Done(world_.BringBack(words[0].text), words[0]);
}

void ScriptRunner::FailStatement(const Arguments& words) {
  const auto error = static_cast<RunTimeError>(WholeNumberOf(words[2].text));
  for (std::string_view rest = words[0].text; !rest.empty();) {
    const std::size_t end = std::min(rest.find(','), rest.size());
    station_.files().Fail(ActNamed(rest.substr(0, end)), words[1].text, error);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

void ScriptRunner::OutputStatement(const Arguments& words) {
  if (IsLost(words[0])) return world_.LoseOutput();
  station_.media().output_trouble.clear();
}

void ScriptRunner::InputStatement(const Arguments& words) {
  if (IsLost(words[0])) return world_.LoseInput();
  station_.capture().input_there = true;
}

void ScriptRunner::MendStatement(const Arguments&) {
  world_.Mend();
}

}  // namespace quixair::script
