#pragma once

// ExportTemplate and ImportTemplate, the ways of a template out of the template folder and into it. Both go
// through the drives and folders of the station and copy one file; TransferTemplate is what they share. A
// fault of the copy is told by its number, and the screen stays open for another try.

#include <string>

#include "station/console/folder_choice.h"
#include "station/platform/run_time_error.h"
#include "station/screen/screen.h"
#include "station/templates/template_choice.h"

namespace quixair {

class TransferTemplate : public Screen {
 public:
  TransferTemplate(const Platform& platform, std::string name, std::string title);

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};
  DriveListBox Drive1{*this, "Drive1"};
  DirListBox Dir1{*this, "Dir1"};
  FileListBox File3{*this, "File3"};  // what lies in the folder

 protected:
  /// What is copied, and what the person reads on the way.
  struct Transfer {
    std::string from, to;
    std::string ready_title, ready_text;
    std::string copying, copied;
    std::string done_title, done_text;
  };

  /// Drive C and its root.
  void ShowFirstFolder() { folder_.ShowFirst(); }
  /// Asks, copies and tells; true when it was copied.
  bool CopyNow(const Transfer& transfer);
  virtual void FolderChanged() {}
  virtual void TellFault(const Status& fault) = 0;

 private:
  FolderChoice folder_{Drive1, Dir1, File3, FolderChoice::Missing::kBackToDriveBefore};
};

class ExportTemplate : public TransferTemplate {
 public:
  explicit ExportTemplate(const Platform& platform);
  /// The title, and the patterns of the custom and of the daily templates.
  void Prepare(const ScreenOpening& opening) override;
  void PrepareAgain(const ScreenOpening& opening) override { Prepare(opening); }

  Label Label1{*this, "Label1", "Custom Templates:"};
  FileListBox File1{*this, "File1"};
  Label Label2{*this, "Label2", "Daily Templates:"};
  FileListBox File2{*this, "File2"};
  Label Label3{*this, "Label3", "Files at the Destination:"};
  Button ExportNow{*this, "ExportNow", "&Export Now"};
  Button Quit{*this, "Quit", "&Quit"};

 protected:
  void FolderChanged() override;
  void TellFault(const Status& fault) override;

 private:
  void Export();

  TemplateChoice choice_{File1, File2, ExportNow};
  std::string name_;
  bool destination_chosen_ = false;
};

class ImportTemplate : public TransferTemplate {
 public:
  explicit ImportTemplate(const Platform& platform);
  /// The title, the pattern of both lists, and the captions over them.
  void Prepare(const ScreenOpening& opening) override;
  void PrepareAgain(const ScreenOpening& opening) override { Prepare(opening); }

  Label Label1{*this, "Label1"};
  Label Label2{*this, "Label2"};
  FileListBox File1{*this, "File1"};  // the templates in use
  Button ImportNow{*this, "ImportNow", "&Import Now"};
  Button Quit{*this, "Quit", "&Quit"};

 protected:
  void FolderChanged() override;
  void TellFault(const Status& fault) override;

 private:
  void Accept();
  void Import();
};

}  // namespace quixair
