#include "station/templates/template_choice.h"

#include "station/console/station_paths.h"
#include "station/screen/screen.h"

namespace quixair {

TemplateChoice::TemplateChoice(ListBox& custom, ListBox& daily, Button& done)
    : custom_(custom), daily_(daily), done_(done) {
  Connect(custom, daily);
  Connect(daily, custom);
  done.on_click = [this] { Choose(ChosenTemplate::Way::kDone); };
}

void TemplateChoice::Connect(ListBox& list, ListBox& other) {
  list.on_click = [this, &list, &other] {
    other.Select(-1);
    done_.Enable();
    if (on_pick) on_pick(list.selected_text());
  };
  list.on_double_click = [this] { Choose(ChosenTemplate::Way::kDoubleClick); };
  list.on_enter = [this] { Choose(ChosenTemplate::Way::kEnter); };
}

void TemplateChoice::Reset() {
  custom_.Select(-1);
  daily_.Select(-1);
  done_.Disable();
}

void TemplateChoice::Choose(ChosenTemplate::Way way) {
  const bool daily = custom_.selected_index() < 0;
  const ListBox& list = daily ? daily_ : custom_;
  if (list.selected_index() < 0) return;
  on_choose({.name = list.selected_text(), .way = way, .daily = daily});
}

bool ListIsOnTheAir(Screens& screens) {
  constexpr const char* kPickList = "PickListForm1";
  const Screen* on_air = screens.OnTheAir();
  if (on_air == nullptr || on_air->name() != kPickList) return false;
  screens.Open(kPickList);
  return true;
}

void ShowTemplates(FileListBox& list, const std::string& pattern) {
  list.SetPattern(pattern);
  list.SetPath(std::string(station_paths::kTemplateFolder));
}

}  // namespace quixair
