#pragma once

// The named controls that screens are made of: small holders of what a person sees and does, without a
// toolkit, geometry or painting. A front end shows them and is told of each change through the screen's
// observer; a person's act comes in through the functions of the section "acts of a person", which do nothing
// on a control that is hidden or disabled, and which raise the control's event through the EventGate. The
// station itself sets values freely; that raises no event.
//
//   class ErrorLog : public Screen {
//     Button Command1{*this, "Command1", "&View Error Log"};
//     ...
//     Command1.on_click = [this] { View(); };
//
// Texts are bytes of the station's code page. A control registers its name with its screen; its owner is the
// screen or the frame it lies in. Everything here belongs to the user interface thread.

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "station/platform/media.h"
#include "station/platform/run_time_error.h"
#include "station/platform/timers.h"

namespace quixair {

class Control;
class Frame;
class Screen;

enum class ControlKind {
  kLabel,
  kTextBox,
  kListBox,
  kCheckBox,
  kOptionButton,
  kButton,
  kFrame,
  kFileListBox,
  kDirListBox,
  kDriveListBox,
  kTimer,
  kMedia,
  kRecorder,
  kGrid,
  kMenu
};
std::string_view NameOf(ControlKind kind);

/// A colour of the screen; none is the front end's own.
struct Color {
  std::uint32_t rgb = 0;  // 0xRRGGBB
  bool operator==(const Color&) const = default;
};
inline constexpr Color kYellow{0xFFFF00};     // palette colour 14
inline constexpr Color kWhite{0xFFFFFF};      // palette colour 15
inline constexpr Color kPaleGreen{0xC0FFC0};  // plain value 12648384

/// What of a control changed.
enum class Aspect {
  kText,
  kVisible,
  kEnabled,
  kColors,
  kRows,
  kSelection,
  kTicked,
  kFocus,
  kHint,
  kTransport,
  kTopRow,
  kColumns
};

/// What controls can lie in: a screen or one of its frames.
class ControlOwner {
 public:
  virtual Screen& owner_screen() = 0;
  virtual Frame* owner_frame() = 0;

 protected:
  ~ControlOwner() = default;
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& name() const { return name_; }
  ControlKind kind() const { return kind_; }
  Screen& screen() const { return screen_; }
  Frame* frame() const { return frame_; }

  bool visible() const { return visible_; }
  bool enabled() const { return enabled_; }
  void Show(bool visible = true);
  void Hide() { Show(false); }
  void Enable(bool enabled = true);
  void Disable() { Enable(false); }
  /// Visible itself and every frame around it.
  bool visible_to_person() const;
  bool enabled_for_person() const;

  std::optional<Color> fore_color() const { return fore_color_; }
  std::optional<Color> back_color() const { return back_color_; }
  void SetForeColor(std::optional<Color> color);
  void SetBackColor(std::optional<Color> color);

  /// A short explanation that a front end shows when asked for it.
  const std::string& hint() const { return hint_; }
  void SetHint(std::string hint);

  void SetFocus();
  std::function<void()> on_lost_focus;  // of boxes and drive lists

  /// Caption or text, as a person would read it off the control.
  virtual std::string shown_text() const { return {}; }

  // acts of a person
  void LeaveFocus();

 protected:
  Control(ControlOwner& owner, std::string name, ControlKind kind);
  void Changed(Aspect aspect);
  /// Raises `event` through the gate when a person could have caused it.
  void RaiseForPerson(const std::function<void()>& event);

 private:
  Screen& screen_;
  Frame* frame_;
  std::string name_;
  ControlKind kind_;
  bool visible_ = true;
  bool enabled_ = true;
  std::optional<Color> fore_color_;
  std::optional<Color> back_color_;
  std::string hint_;
};

/// A control with a caption; "&" marks the access key.
class CaptionedControl : public Control {
 public:
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption);
  std::string shown_text() const override { return caption_; }

 protected:
  CaptionedControl(ControlOwner& owner, std::string name, ControlKind kind, std::string caption);

 private:
  std::string caption_;
};

class Label : public CaptionedControl {
 public:
  Label(ControlOwner& owner, std::string name, std::string caption = {})
      : CaptionedControl(owner, std::move(name), ControlKind::kLabel, std::move(caption)) {}
};

class Button : public CaptionedControl {
 public:
  Button(ControlOwner& owner, std::string name, std::string caption)
      : CaptionedControl(owner, std::move(name), ControlKind::kButton, std::move(caption)) {}
  std::function<void()> on_click;

  // acts of a person
  void Click();
};

class Frame : public CaptionedControl, public ControlOwner {
 public:
  Frame(ControlOwner& owner, std::string name, std::string caption = {})
      : CaptionedControl(owner, std::move(name), ControlKind::kFrame, std::move(caption)) {}
  Screen& owner_screen() override { return screen(); }
  Frame* owner_frame() override { return this; }
  std::function<void()> on_click;

  // acts of a person
  void Click();
};

class TextBox : public Control {
 public:
  /// A read-only box only shows; a person cannot type in it.
  enum class Use { kShow, kEnter };
  TextBox(ControlOwner& owner, std::string name, Use use = Use::kEnter)
      : Control(owner, std::move(name), ControlKind::kTextBox), use_(use) {}

  const std::string& text() const { return text_; }
  void SetText(std::string text);
  bool read_only() const { return use_ == Use::kShow; }
  int max_length() const { return max_length_; }  // 0 is no limit
  void SetMaxLength(int length);
  std::string shown_text() const override { return text_; }

  std::function<void()> on_change;
  /// Sees each typed character before it reaches the text, and may replace it; 0 refuses it.
  std::function<void(char& key)> on_key_press;
  std::function<void()> on_enter;

  // acts of a person
  void TypeKey(char key);
  void PressEnter();
  /// The whole text as an editor left it, for front ends that edit by themselves.
  void Edit(std::string text);

 private:
  Use use_;
  std::string text_;
  int max_length_ = 0;
};

/// Rows of text, counted from 0; at most one is selected, or several in a list that allows it.
class ListBox : public Control {
 public:
  enum class Order { kAsAdded, kSorted };
  ListBox(ControlOwner& owner, std::string name, Order order = Order::kAsAdded)
      : ListBox(owner, std::move(name), ControlKind::kListBox, order) {}

  int row_count() const { return static_cast<int>(rows_.size()); }
  const std::string& row(int index) const { return rows_.at(static_cast<std::size_t>(index)); }
  const std::vector<std::string>& rows() const { return rows_; }
  void AddRow(std::string row);
  void SetRow(int index, std::string row);
  void RemoveRow(int index);
  void Clear();
  /// All rows at once, as they stand; nothing is selected afterwards.
  void SetRows(std::vector<std::string> rows);

  /// The row that a front end shows first, as far as its list is long enough.
  int top_row() const { return top_row_; }
  void SetTopRow(int index);

  /// -1 when nothing is selected.
  int selected_index() const { return selected_.empty() ? -1 : selected_.front(); }
  const std::vector<int>& selected_rows() const { return selected_; }
  /// Empty when nothing is selected.
  std::string selected_text() const;
  /// -1 or an index that does not exist selects nothing.
  void Select(int index) { SelectRows({index}); }
  void SelectRows(std::vector<int> rows);
  void AllowSeveral(bool allowed = true) { several_ = allowed; }
  bool several() const { return several_; }

  std::function<void()> on_click;
  std::function<void()> on_double_click;
  std::function<void()> on_enter;

  // acts of a person
  void PersonSelects(std::vector<int> rows);
  void DoubleClick();
  void PressEnter();

 protected:
  ListBox(ControlOwner& owner, std::string name, ControlKind kind, Order order)
      : Control(owner, std::move(name), kind), order_(order) {}

 private:
  Order order_;
  int top_row_ = 0;
  bool several_ = false;
  std::vector<std::string> rows_;
  std::vector<int> selected_;
};

/// The names of the files of a folder that match a pattern.
class FileListBox : public ListBox {
 public:
  FileListBox(ControlOwner& owner, std::string name)
      : ListBox(owner, std::move(name), ControlKind::kFileListBox, Order::kSorted) {}
  void SetPath(std::string path);
  void SetPattern(std::string pattern);
  const std::string& path() const { return path_; }
  const std::string& pattern() const { return pattern_; }
  /// Lists the folder anew; a folder that cannot be read shows no rows.
  void Refresh();
  /// The same for a person in the middle of something: the files chosen stay chosen.
  void CatchUp();

 private:
  std::vector<std::string> Names() const;

  std::string path_;
  std::string pattern_ = "*.*";
};

/// The folders below a folder, and ".." for the one above it; a double click or Enter goes into one.
class DirListBox : public ListBox {
 public:
  DirListBox(ControlOwner& owner, std::string name);
  /// "C:\" or "C:\QXTEMPLT".
  const std::string& path() const { return path_; }
  char drive() const { return path_.empty() ? '\0' : path_.front(); }
  /// 71 when the drive is not there, 76 when the folder is not: then the list stays where it was.
  Status SetPath(std::string path);
  /// Lists the folder anew; one that cannot be read shows the way up only.
  void Refresh();
  /// The full path of a file of this folder.
  std::string FileIn(std::string_view name) const;

  /// A person went into another folder.
  std::function<void()> on_change;

 private:
  void GoIn();
  void ShowFolders(std::vector<std::string> names);

  std::string path_;
};

/// The drives of the station as "C:", whether their directories are there or not.
class DriveListBox : public ListBox {
 public:
  DriveListBox(ControlOwner& owner, std::string name)
      : ListBox(owner, std::move(name), ControlKind::kDriveListBox, Order::kAsAdded) {}
  void Refresh();
  /// 0 when none is selected.
  char drive() const { return selected_index() < 0 ? '\0' : selected_text().front(); }
  void SelectDrive(char letter);
};

class CheckBox : public CaptionedControl {
 public:
  CheckBox(ControlOwner& owner, std::string name, std::string caption)
      : CaptionedControl(owner, std::move(name), ControlKind::kCheckBox, std::move(caption)) {}
  bool ticked() const { return ticked_; }
  void Tick(bool ticked);
  std::function<void()> on_click;  // the new state is in place

  // acts of a person
  void PersonTicks(bool ticked);

 private:
  bool ticked_ = false;
};

/// One of the options of a frame or screen: setting one clears its neighbours.
class OptionButton : public CaptionedControl {
 public:
  OptionButton(ControlOwner& owner, std::string name, std::string caption)
      : CaptionedControl(owner, std::move(name), ControlKind::kOptionButton, std::move(caption)) {}
  bool selected() const { return selected_; }
  void Select(bool selected = true);
  std::function<void()> on_click;

  // acts of a person
  void PersonSelects();

 private:
  bool selected_ = false;
};

/// Ticks while it is enabled and its interval is more than 0. Not shown.
class Timer : public Control {
 public:
  /// Enabled, with interval 0: it ticks once an interval is set.
  Timer(ControlOwner& owner, std::string name);
  std::chrono::milliseconds interval() const { return interval_; }
  /// Setting the interval that is in force changes nothing.
  void SetInterval(std::chrono::milliseconds interval);
  void SetEnabled(bool enabled);
  std::function<void()> on_tick;

 private:
  void Tick();
  void Apply();

  std::chrono::milliseconds interval_{0};
  bool running_ = false;
  bool in_tick_ = false;
  std::unique_ptr<TimerShots> shots_;
};

/// A playback channel with the properties that the screens use, and its transport bar.
class MediaControl : public Control {
 public:
  /// `number` is the channel's, from 1.
  MediaControl(ControlOwner& owner, std::string name, int number);

  void SetFileName(std::string path) { file_name_ = std::move(path); }
  const std::string& file_name() const { return file_name_; }
  /// A failed kOpen is known by Length 0.
  void Command(ChannelCommand command);

  ChannelMode Mode() const { return player_->Mode(); }
  std::int32_t Length() const { return player_->Length(); }
  std::int32_t Position() const { return player_->Position(); }
  Levels TakeLevels() { return player_->TakeLevels(); }

  void SetNotify(bool notify) { notify_ = notify; }
  bool notify() const { return notify_; }

  std::function<void()> on_play_click;
  std::function<void()> on_pause_click;

  // acts of a person
  void ClickPlay();
  void ClickPause();

 private:
  std::unique_ptr<MediaPlayer> player_;
  std::string file_name_;
  bool notify_ = false;
};

/// An item of a menu tree; one with items of its own opens them, another raises its click.
class MenuItem : public CaptionedControl {
 public:
  /// A top item of the screen's menu.
  MenuItem(ControlOwner& owner, std::string name, std::string caption);
  MenuItem(MenuItem& parent, std::string name, std::string caption);
  MenuItem* parent() const { return parent_; }
  const std::vector<MenuItem*>& items() const { return items_; }
  std::function<void()> on_click;

  // acts of a person
  void Choose();

 private:
  MenuItem* parent_ = nullptr;
  std::vector<MenuItem*> items_;
};

}  // namespace quixair
