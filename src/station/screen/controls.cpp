#include "station/screen/controls.h"

#include <algorithm>
#include <utility>

#include "station/platform/event_gate.h"
#include "station/platform/files.h"
#include "station/platform/text.h"
#include "station/screen/screen.h"

namespace quixair {
namespace {

constexpr std::string_view kFolderAbove = "..";
constexpr std::size_t kRootLength = 3;  // of a drive, a colon, a backslash

bool IsRoot(std::string_view path) {
  return path.size() <= kRootLength;
}

std::string FolderAbove(const std::string& path) {
  return path.substr(0, std::max(path.rfind('\\'), kRootLength));
}

}  // namespace

std::string_view NameOf(ControlKind kind) {
  switch (kind) {
    case ControlKind::kLabel:
      return "Label";
    case ControlKind::kTextBox:
      return "TextBox";
    case ControlKind::kListBox:
      return "ListBox";
    case ControlKind::kCheckBox:
      return "CheckBox";
    case ControlKind::kOptionButton:
      return "OptionButton";
    case ControlKind::kButton:
      return "Button";
    case ControlKind::kFrame:
      return "Frame";
    case ControlKind::kFileListBox:
      return "FileListBox";
    case ControlKind::kDirListBox:
      return "DirListBox";
    case ControlKind::kDriveListBox:
      return "DriveListBox";
    case ControlKind::kTimer:
      return "Timer";
    case ControlKind::kRecorder:
      return "Recorder";
    case ControlKind::kMedia:
      return "MediaControl";
    case ControlKind::kGrid:
      return "Grid";
    case ControlKind::kMenu:
      return "Menu";
  }
  return "Control";
}

Control::Control(ControlOwner& owner, std::string name, ControlKind kind)
    : screen_(owner.owner_screen()), frame_(owner.owner_frame()), name_(std::move(name)), kind_(kind) {
  screen_.Register(*this);
}

void Control::Changed(Aspect aspect) {
  screen_.ControlChanged(*this, aspect);
}

void Control::RaiseForPerson(const std::function<void()>& event) {
  if (!visible_to_person() || !enabled_for_person()) return;
  screen_.platform().gate.Enter([this, &event] { screen_.RunGuarded(event); });
}

void Control::Show(bool visible) {
  if (std::exchange(visible_, visible) != visible) Changed(Aspect::kVisible);
}

void Control::Enable(bool enabled) {
  if (std::exchange(enabled_, enabled) != enabled) Changed(Aspect::kEnabled);
}

bool Control::visible_to_person() const {
  return visible_ && (frame_ == nullptr || frame_->visible_to_person());
}

bool Control::enabled_for_person() const {
  return enabled_ && (frame_ == nullptr || frame_->enabled_for_person());
}

void Control::SetForeColor(std::optional<Color> color) {
  if (std::exchange(fore_color_, color) != color) Changed(Aspect::kColors);
}

void Control::SetBackColor(std::optional<Color> color) {
  if (std::exchange(back_color_, color) != color) Changed(Aspect::kColors);
}

void Control::SetHint(std::string hint) {
  hint_ = std::move(hint);
  Changed(Aspect::kHint);
}

void Control::SetFocus() {
  Changed(Aspect::kFocus);
}

void Control::LeaveFocus() {
  RaiseForPerson([this] {
    if (on_lost_focus) on_lost_focus();
  });
}

CaptionedControl::CaptionedControl(ControlOwner& owner, std::string name, ControlKind kind,
                                   std::string caption)
    : Control(owner, std::move(name), kind), caption_(std::move(caption)) {}

void CaptionedControl::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Changed(Aspect::kText);
}

void Button::Click() {
  RaiseForPerson([this] {
    if (on_click) on_click();
  });
}

void Frame::Click() {
  RaiseForPerson([this] {
    if (on_click) on_click();
  });
}

void TextBox::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  Changed(Aspect::kText);
}

void TextBox::SetMaxLength(int length) {
  if (std::exchange(max_length_, length) != length) Changed(Aspect::kText);
}

void TextBox::TypeKey(char key) {
  RaiseForPerson([this, key] {
    if (read_only()) return;
    char typed = key;
    if (on_key_press) on_key_press(typed);
    if (typed == 0) return;
    if (max_length_ > 0 && static_cast<int>(text_.size()) >= max_length_) return;
    SetText(text_ + typed);
    if (on_change) on_change();
  });
}

void TextBox::PressEnter() {
  RaiseForPerson([this] {
    if (on_enter) on_enter();
  });
}

void TextBox::Edit(std::string text) {
  RaiseForPerson([this, &text] {
    if (read_only() || text == text_) return;
    if (max_length_ > 0) text.resize(std::min(text.size(), static_cast<std::size_t>(max_length_)));
    SetText(std::move(text));
    if (on_change) on_change();
  });
}

void ListBox::AddRow(std::string row) {
  if (order_ == Order::kAsAdded) {
    rows_.push_back(std::move(row));
  } else {
    const auto before = [](const std::string& a, const std::string& b) { return LessIgnoringCase(a, b); };
    const auto place = std::upper_bound(rows_.begin(), rows_.end(), row, before);
    for (int& selected : selected_)
      selected += selected >= place - rows_.begin() ? 1 : 0;  // the same row stays
    rows_.insert(place, std::move(row));
  }
  Changed(Aspect::kRows);
}

void ListBox::SetRow(int index, std::string row) {
  rows_.at(static_cast<std::size_t>(index)) = std::move(row);
  Changed(Aspect::kRows);
}

void ListBox::RemoveRow(int index) {
  rows_.erase(rows_.begin() + index);
  std::erase(selected_, index);
  for (int& selected : selected_) selected -= selected > index ? 1 : 0;
  Changed(Aspect::kRows);
}

void ListBox::Clear() {
  if (rows_.empty()) return;
  rows_.clear();
  selected_.clear();
  Changed(Aspect::kRows);
}

void ListBox::SetRows(std::vector<std::string> rows) {
  rows_ = std::move(rows);
  selected_.clear();
  Changed(Aspect::kRows);
}

void ListBox::SetTopRow(int index) {
  top_row_ = index;
  Changed(Aspect::kTopRow);
}

std::string ListBox::selected_text() const {
  return selected_.empty() ? std::string() : row(selected_.front());
}

void ListBox::SelectRows(std::vector<int> rows) {
  std::erase_if(rows, [this](int index) { return index < 0 || index >= row_count(); });
  if (std::exchange(selected_, rows) != rows) Changed(Aspect::kSelection);
}

void ListBox::PersonSelects(std::vector<int> rows) {
  RaiseForPerson([this, &rows] {
    std::erase_if(rows, [this](int index) { return index < 0 || index >= row_count(); });
    if (!several_ && rows.size() > 1) rows.resize(1);
    selected_ = std::move(rows);
    Changed(Aspect::kSelection);
    if (on_click) on_click();
  });
}

void ListBox::DoubleClick() {
  RaiseForPerson([this] {
    if (on_double_click) on_double_click();
  });
}

void ListBox::PressEnter() {
  RaiseForPerson([this] {
    if (on_enter) on_enter();
  });
}

void FileListBox::SetPath(std::string path) {
  path_ = std::move(path);
  Refresh();
}

void FileListBox::SetPattern(std::string pattern) {
  pattern_ = std::move(pattern);
  Refresh();
}

void FileListBox::Refresh() {
  if (path_.empty()) {
    Clear();
    return;
  }
  SetRows(Names());
}

void FileListBox::CatchUp() {
  std::vector<std::string> names = Names();
  if (names == rows()) return;
  std::vector<int> chosen;
  for (const int index : selected_rows()) {
    const auto found = std::find(names.begin(), names.end(), row(index));
    if (found != names.end()) chosen.push_back(static_cast<int>(found - names.begin()));
  }
  SetRows(std::move(names));
  SelectRows(std::move(chosen));
}

std::vector<std::string> FileListBox::Names() const {
  if (path_.empty()) return {};
  std::vector<std::string> names = screen().platform().files.List(path_, pattern_).value_or({});
  std::stable_sort(names.begin(), names.end(),
                   [](const std::string& a, const std::string& b) { return LessIgnoringCase(a, b); });
  return names;
}

DirListBox::DirListBox(ControlOwner& owner, std::string name)
    : ListBox(owner, std::move(name), ControlKind::kDirListBox, Order::kAsAdded) {
  on_double_click = on_enter = [this] { GoIn(); };
}

Status DirListBox::SetPath(std::string path) {
  Result<std::vector<std::string>> folders = screen().platform().files.ListFolders(path);
  if (!folders.ok()) return folders.status();
  path_ = std::move(path);
  ShowFolders(std::move(folders).value());
  return {};
}

void DirListBox::Refresh() {
  ShowFolders(screen().platform().files.ListFolders(path_).value_or({}));
}

std::string DirListBox::FileIn(std::string_view name) const {
  return IsRoot(path_) ? path_ + std::string(name) : path_ + '\\' + std::string(name);
}

void DirListBox::GoIn() {
  if (selected_index() < 0) return;
  const std::string target = selected_text() == kFolderAbove ? FolderAbove(path_) : FileIn(selected_text());
  if (!SetPath(target).ok()) {
    Refresh();  // it has gone since it was listed
    return;
  }
  if (on_change) on_change();
}

void DirListBox::ShowFolders(std::vector<std::string> names) {
  Clear();
  if (!IsRoot(path_)) AddRow(std::string(kFolderAbove));
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return LessIgnoringCase(a, b); });
  for (std::string& name : names) AddRow(std::move(name));
}

void DriveListBox::Refresh() {
  const char selected = drive();
  Clear();
  for (const char letter : screen().platform().files.DriveLetters()) AddRow({letter, ':'});
  SelectDrive(selected);
}

void DriveListBox::SelectDrive(char letter) {
  const auto found = std::find_if(rows().begin(), rows().end(), [letter](const std::string& row) {
    return row.front() == UpperCased(letter);
  });
  Select(found == rows().end() ? -1 : static_cast<int>(found - rows().begin()));
}

void CheckBox::Tick(bool ticked) {
  if (std::exchange(ticked_, ticked) != ticked) Changed(Aspect::kTicked);
}

void CheckBox::PersonTicks(bool ticked) {
  RaiseForPerson([this, ticked] {
    if (ticked_ == ticked) return;
    Tick(ticked);
    if (on_click) on_click();
  });
}

void OptionButton::Select(bool selected) {
  if (std::exchange(selected_, selected) == selected) return;
  Changed(Aspect::kTicked);
  if (!selected) return;
  for (Control* other : screen().controls()) {
    if (other == this || other->kind() != ControlKind::kOptionButton || other->frame() != frame()) continue;
    static_cast<OptionButton*>(other)->Select(false);
  }
}

void OptionButton::PersonSelects() {
  RaiseForPerson([this] {
    Select();
    if (on_click) on_click();
  });
}

Timer::Timer(ControlOwner& owner, std::string name)
    : Control(owner, std::move(name), ControlKind::kTimer),
      shots_(screen().platform().timers.MakeTimer([this] { Tick(); })) {}

void Timer::SetInterval(std::chrono::milliseconds interval) {
  if (std::exchange(interval_, interval) == interval) return;
  if (std::exchange(running_, false)) shots_->Stop();
  Apply();
}

void Timer::SetEnabled(bool enabled) {
  Enable(enabled);
  Apply();
}

void Timer::Apply() {
  const bool wanted = enabled() && interval_.count() > 0;
  if (std::exchange(running_, wanted) == wanted) return;
  if (wanted) {
    shots_->Start(interval_);
  } else {
    shots_->Stop();
  }
}

void Timer::Tick() {
  if (in_tick_ || !on_tick) return;  // a tick that waits in a box is not entered a second time
  screen().platform().gate.Enter([this] {
    struct InTick {
      explicit InTick(bool& flag) : flag_(flag) { flag_ = true; }
      ~InTick() { flag_ = false; }  // here, since behind the gate a screen unloaded by its own tick is gone
      bool& flag_;
    } const in_tick(in_tick_);
    screen().RunGuarded(on_tick);
  });
}

MediaControl::MediaControl(ControlOwner& owner, std::string name, int number)
    : Control(owner, std::move(name), ControlKind::kMedia),
      player_(screen().platform().media.MakePlayer(number)) {}

void MediaControl::Command(ChannelCommand command) {
  switch (command) {
    case ChannelCommand::kOpen:
      player_->Open(file_name_, screen().platform().files.HostPath(file_name_));
      break;
    case ChannelCommand::kPlay:
      player_->Play();
      break;
    case ChannelCommand::kPause:
      player_->Pause();
      break;
    case ChannelCommand::kPrev:
      player_->Rewind();
      break;
    case ChannelCommand::kClose:
      player_->Close();
      break;
  }
  Changed(Aspect::kTransport);
}

void MediaControl::ClickPlay() {
  RaiseForPerson([this] {
    if (on_play_click) on_play_click();
  });
}

void MediaControl::ClickPause() {
  RaiseForPerson([this] {
    if (on_pause_click) on_pause_click();
  });
}

MenuItem::MenuItem(ControlOwner& owner, std::string name, std::string caption)
    : CaptionedControl(owner, std::move(name), ControlKind::kMenu, std::move(caption)) {}

MenuItem::MenuItem(MenuItem& parent, std::string name, std::string caption)
    : CaptionedControl(parent.screen(), std::move(name), ControlKind::kMenu, std::move(caption)),
      parent_(&parent) {
  parent.items_.push_back(this);
}

void MenuItem::Choose() {
  RaiseForPerson([this] {
    if (on_click) on_click();
  });
}

}  // namespace quixair
