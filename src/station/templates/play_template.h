#pragma once

// PickPlayTemplate and SatPlayTemplate, the ways from the menu to the playback of a template. They look and
// choose alike; PlayTemplate is what they share, and what comes of a choice is each one's own.

#include <optional>

#include "station/screen/screen.h"
#include "station/templates/template_choice.h"

namespace quixair {

struct PlayTemplateFamily {
  const char* screen;
  const char* title;
  const char* custom_pattern;
  const char* daily_pattern;
};

class PlayTemplate : public Screen {
 public:
  PlayTemplate(const Platform& platform, const PlayTemplateFamily& family);
  void Load() override;

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};
  Label Label1{*this, "Label1", "Custom Templates:"};
  FileListBox File1{*this, "File1"};
  Label Label2{*this, "Label2", "Daily Templates:"};
  FileListBox File2{*this, "File2"};
  Button Done{*this, "Done", "&Done"};
  Button Refresh{*this, "Refresh", "&Refresh"};
  Button Quit{*this, "Quit", "&Quit"};

 protected:
  /// Hands the template over and starts what plays it; a fault leaves the screen open.
  virtual Status Play(const ChosenTemplate& chosen) = 0;

 private:
  void Choose(const ChosenTemplate& chosen);
  void List();

  const PlayTemplateFamily& family_;
  TemplateChoice choice_{File1, File2, Done};
};

class PickPlayTemplate : public PlayTemplate {
 public:
  explicit PickPlayTemplate(const Platform& platform);

 protected:
  Status Play(const ChosenTemplate& chosen) override;
};

class SatPlayTemplate : public PlayTemplate {
 public:
  explicit SatPlayTemplate(const Platform& platform);

 protected:
  Status Play(const ChosenTemplate& chosen) override;

 private:
  std::optional<int> store_value_;  // as the last choice left it; not every choice sets it
};

}  // namespace quixair
