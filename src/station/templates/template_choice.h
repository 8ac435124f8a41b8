#pragma once

// The choice of one template out of two lists, the operator's own and the daily ones, which several screens
// offer alike: a choice in one list takes back that of the other and enables Done; a double click, Enter and
// Done mean the same choice. The screen owns it beside its controls.

#include <functional>
#include <string>

#include "station/platform/screens.h"
#include "station/screen/controls.h"

namespace quixair {

struct ChosenTemplate {
  enum class Way { kDone, kEnter, kDoubleClick };
  std::string name;
  Way way = Way::kDone;
  bool daily = false;
};

class TemplateChoice {
 public:
  /// The controls outlive this.
  TemplateChoice(ListBox& custom, ListBox& daily, Button& done);
  TemplateChoice(const TemplateChoice&) = delete;
  TemplateChoice& operator=(const TemplateChoice&) = delete;

  /// A click in a list, before anything is decided; may be left empty.
  std::function<void(const std::string& name)> on_pick;
  std::function<void(const ChosenTemplate& chosen)> on_choose;

  /// Nothing is chosen, and Done waits for a choice.
  void Reset();

 private:
  void Connect(ListBox& list, ListBox& other);
  void Choose(ChosenTemplate::Way way);

  ListBox& custom_;
  ListBox& daily_;
  Button& done_;
};

/// A list is on the air, which its screen has come forward to say: nothing is to be handed over to it.
bool ListIsOnTheAir(Screens& screens);

/// The template folder's files that match.
void ShowTemplates(FileListBox& list, const std::string& pattern);

}  // namespace quixair
