#include "hunt/script_text.h"

namespace quixair::hunt {
namespace {

bool IsAct(const std::string& statement) {
  const std::string act = statement.starts_with("try ") ? statement.substr(4) : statement;
  for (const char* word :
       {"click ", "doubleclick ", "select ", "menu ", "close ", "enter ", "type ", "powercut"}) {
    if (act.starts_with(word)) return true;
  }
  return false;
}

}  // namespace

Script InAPersonsTime(const Script& script) {
  Script spaced;
  for (const std::string& statement : script) {
    if (IsAct(statement) && !spaced.empty() && IsAct(spaced.back())) spaced.push_back("advance 250ms");
    spaced.push_back(statement);
  }
  return spaced;
}

}  // namespace quixair::hunt
