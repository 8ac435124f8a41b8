#pragma once

// PrintRecordingsMDI, the "Print Recordings Utility": loads all recordings of a kind into a grid, sorts them,
// cuts them to a range and prints a listing. It reads the library and never writes to it. Loading goes in
// portions; meanwhile only Quit answers.

#include "station/screen/grid.h"
#include "station/screen/portioned_work.h"
#include "station/screen/screen.h"
#include "station/utilities/library_report.h"
#include "station/utilities/print_steps.h"

namespace quixair {

class PrintRecordingsMDI : public Screen {
 public:
  explicit PrintRecordingsMDI(const Platform& platform);
  void Load() override;

  Label Label3{*this, "Label3"};  // "PRINT SPOTS"
  Grid MSFlexGrid1{*this, "MSFlexGrid1"};

  Frame Frame1{*this, "Frame1", "Select Recording Type:"};
  Button Command7{Frame1, "Command7", "&Spots"};
  Button Command8{Frame1, "Command8", "&Music"};
  Button Command9{Frame1, "Command9", "&Liners"};

  Frame Frame2{*this, "Frame2", "Select Sort:"};
  Button Command15{Frame2, "Command15", "&File Name"};
  Button Command16{Frame2, "Command16", "&Account/Artist"};
  Button Command19{Frame2, "Command19", "&Title"};
  Button Command17{Frame2, "Command17", "&Cancel"};

  Frame Frame3{*this, "Frame3", "Select Range"};
  Label Label1{Frame3, "Label1", "Lowest:"};
  TextBox Text2{Frame3, "Text2"};
  Label Label2{Frame3, "Label2", "Highest:"};
  TextBox Text3{Frame3, "Text3"};
  Button Command23{Frame3, "Command23", "&Done"};
  Button Command24{Frame3, "Command24", "&Cancel"};

  TextBox Text1{*this, "Text1", TextBox::Use::kShow};  // banner
  TextBox Text4{*this, "Text4", TextBox::Use::kShow};  // how far the loading is
  TextBox Text5{*this, "Text5", TextBox::Use::kShow};  // what was done last
  Label Label4{*this, "Label4",
               "To change Default Printer:  Start>Settings>Printers>Dbl Click on Desired Printer > Click on "
               "'Set as Default'"};
  Label Label5{*this, "Label5"};  // the default printer

  Button Command1{*this, "Command1", "So&rt"};
  Button Command3{*this, "Command3", "&Print All"};
  Button Command4{*this, "Command4", "Print &Range"};
  Button Command21{*this, "Command21", "R&estart"};
  Button Command2{*this, "Command2", "&Quit"};

  Timer Timer1{*this, "Timer1"};        // looks who the default printer is
  Timer LoadTimer{*this, "LoadTimer"};  // the portions of loading

 private:
  void StartOver();
  void ShowBanner();
  void ShowDefaultPrinter();
  /// One of the three frames, or none.
  void ShowFrame(Frame* shown);
  void EnablePrinting(bool enabled);

  void LoadKind(RecordingKind kind);
  void TellNoFiles();
  void ShowLoaded();
  void SortBy(std::size_t key, const char* words);
  void OpenRange();
  void PrintTypedRange();
  PrintRange Listed() const;
  void RemoveItems(int first, int last);
  void PrintAll();
  void CancelPrinting();

  const LibraryReport* report_ = nullptr;  // of the kind that was chosen
  std::vector<std::string> ids_;
  std::vector<GridRow> loaded_;
  PortionedWork work_{LoadTimer};
};

}  // namespace quixair
