#include "station/templates/event_list_screen.h"

#include <utility>

namespace quixair {
namespace {

bool CanAct(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kButton:
    case ControlKind::kListBox:
    case ControlKind::kCheckBox:
      return true;
    case ControlKind::kTextBox:
      return !static_cast<const TextBox&>(control).read_only();
    default:
      return false;
  }
}

}  // namespace

EventListScreen::EventListScreen(const Platform& platform, const EventListKind& kind)
    : Screen(platform, kind.screen, kind.title),
      kind_(kind),
      libraries_{Library{EditorList(RecordingKind::kMusic, kind.columns), List1, Command11,
                         "Existing Files:  [Music]", " Music Files Present", "NO MUSIC FILES FOUND"},
                 Library{EditorList(RecordingKind::kSpot, kind.columns), List3, Command10,
                         "Existing Files:  [Spots]", " Spot Files Present", "NO SPOT FILES FOUND"},
                 Library{EditorList(RecordingKind::kLiner, kind.columns), List4, Command12,
                         "Existing Files:  [Liners]", " Liner Files Present", "NO LINER FILES FOUND"}} {
  for (Control* control : std::array<Control*, 5>{&List1, &List4, &Label7, &Text8, &Command15}) {
    control->Hide();
  }
  for (const Library& library : libraries_) {
    library.button.on_click = [this, &list = library.list] { ShowLibrary(list); };
  }
}

ListBox& EventListScreen::shown_library() {
  return List1.visible() ? List1 : List3.visible() ? List3 : List4;
}

void EventListScreen::ShowLibrary(ListBox& list) {
  for (const Library& library : libraries_) {
    const bool shown = &library.list == &list;
    library.list.Show(shown);
    library.button.Enable(!shown);
    if (!shown) continue;
    FilesLabel.SetCaption(library.label);
    ColumnsLabel.SetCaption(LibraryHeading(library.files.kind(), library.files.columns()));
    Text3.SetText(std::to_string(library.files.count()) + library.what);
  }
  SetRestingFocus();
}

void EventListScreen::ListLibrary() {
  for (Library& library : libraries_) library.files.List(platform_.files);
}

void EventListScreen::StartLoading() {
  loading_ = true;
  left_ = false;
  HoldControls();
  load_.Start({.step =
                   [this] {
                     const Step step = LoadStep();
                     left_ = step == Step::kLeft;
                     return step == Step::kMore;
                   },
               .progress = {},
               .done =
                   [this] {
                     if (left_) return Unload();
                     FinishLoading();
                   }});
}

EventListScreen::Step EventListScreen::LoadStep() {
  for (Library& library : libraries_) {
    if (library.files.complete()) continue;
    const std::string id = library.files.next();
    const Status read = library.files.ReadNext(platform_.files);
    Text3.SetText(std::to_string(library.files.recordings().size()) + library.what);
    return read.ok() || GoOnAfter(read, id) ? Step::kMore : Step::kLeft;
  }
  return LoadMore();
}

void EventListScreen::FinishLoading() {
  loading_ = false;
  for (Library& library : libraries_) library.list.SetRows(library.files.TakeRows());
  Text3.SetText(CountsText());
  FreeControls();
  Loaded();
}

std::string EventListScreen::CountsText() const {
  const auto counted = [](const Library& library) {
    return std::to_string(library.files.count()) + library.what;
  };
  const auto& [music, spots, liners] = libraries_;
  return counted(spots) + " / " + counted(music) + " / " + counted(liners) + "...";
}

void EventListScreen::HoldControls() {
  for (Control* control : controls()) {
    if (control == &Command9 || !CanAct(*control) || !control->enabled()) continue;
    control->Disable();
    held_.push_back(control);
  }
}

void EventListScreen::FreeControls() {
  for (Control* control : std::exchange(held_, {})) control->Enable();
  SetRestingFocus();
}

}  // namespace quixair
