#pragma once

// ErasePickCustom and EraseSimSatCustom: one screen on the custom templates of either family. Daily templates
// are not offered.

#include "station/screen/screen.h"

namespace quixair {

struct EraseTemplateFamily {
  const char* screen;
  const char* title;
  const char* pattern;
};

class EraseTemplate : public Screen {
 public:
  EraseTemplate(const Platform& platform, const EraseTemplateFamily& family);
  void Load() override;

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};
  Label Label1{*this, "Label1", "Custom Templates:"};
  FileListBox File1{*this, "File1"};
  Button EraseNow{*this, "Erase", "&Erase"};
  Button Quit{*this, "Quit", "&Quit"};

 private:
  void List();
  void Erase();

  const EraseTemplateFamily& family_;
};

class ErasePickCustom : public EraseTemplate {
 public:
  explicit ErasePickCustom(const Platform& platform);
};

class EraseSimSatCustom : public EraseTemplate {
 public:
  explicit EraseSimSatCustom(const Platform& platform);
};

}  // namespace quixair
