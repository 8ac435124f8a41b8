#include "station/recording/artist_title.h"

#include <algorithm>

#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/files.h"
#include "station/platform/recorder.h"

namespace quixair {
namespace {

constexpr std::size_t kFewest = 2;
constexpr int kNameLimit = 20;
constexpr int kYearLimit = 4;

std::string PathOf(const std::string& file) {
  return std::string(station_paths::kDataFolder) + '\\' + file;
}

}  // namespace

ArtistTitle::ArtistTitle(const Platform& platform) : Screen(platform, "ArtistTitle", "Data File Editor") {
  artisttext.SetMaxLength(kNameLimit);
  titletext.SetMaxLength(kNameLimit);
  RotationText.SetMaxLength(1);
  fromyeartext.SetMaxLength(kYearLimit);
  Command1.Disable();
  List1.on_double_click = List1.on_enter = [this] { LoadSelected(); };
  Command1.on_click = [this] { SaveItem(); };
  Command2.on_click = [this] { Unload(); };
  Command3.on_click = [this] { ShowHelp(); };
}

void ArtistTitle::Load() {
  platform_.capture.set_drive('C');
  songs_.clear();
  read_ = 0;
  loaded_ = 0;
  Command1.Disable();
  for (std::string& file : SongFiles()) {
    Recording song(file.substr(0, file.rfind('.')));
    songs_.push_back({.file = std::move(file), .recording = std::move(song)});
  }
  if (songs_.size() < kFewest) {
    platform_.dialogs.MessageBox(
        "You must record at least two song files before\nusing this module. Please make at least two\n"
        "music recordings and then try again...",
        box_style::kOk, "Not Enough Music!");
    return Unload();
  }
  for (Control* control :
       std::initializer_list<Control*>{&List1, &artisttext, &titletext, &RotationText, &fromyeartext}) {
    control->Disable();
  }
  reading_.Start({.step = [this] { return ReadSong(); },
                  .progress =
                      [this] {
                        Text2.SetText("Reading the songs: " + std::to_string(read_) + " of " +
                                      std::to_string(songs_.size()));
                      },
                  .done = [this] { ShowAll(); }});
}

void ArtistTitle::PrepareAgain(const ScreenOpening&) {
  const std::vector<std::string> files = SongFiles();
  const bool same = std::equal(files.begin(), files.end(), songs_.begin(), songs_.end(),
                               [](const std::string& file, const Song& song) { return file == song.file; });
  if (same || IsEdited()) return;
  begin_at_ = songs_[loaded_].file;
  Load();
}

std::vector<std::string> ArtistTitle::SongFiles() const {
  return platform_.files.List(station_paths::kDataFolder, "M*.DAT").value_or({});
}

bool ArtistTitle::IsEdited() const {
  return Command1.enabled() && !idtext.text().empty() &&
         Edited().Format() != songs_[loaded_].recording.Format();
}

bool ArtistTitle::ReadSong() {
  Song& song = songs_[read_++];
  SkipAndGoOn(song.recording.Parse(platform_.files.Read(PathOf(song.file)).value_or({})));
  return read_ < songs_.size();
}

void ArtistTitle::ShowAll() {
  std::vector<std::string> rows;
  rows.reserve(songs_.size());
  for (const Song& song : songs_) rows.push_back(song.file + "  ");
  List1.SetRows(std::move(rows));
  for (Control* control :
       std::initializer_list<Control*>{&List1, &artisttext, &titletext, &RotationText, &fromyeartext}) {
    control->Enable();
  }
  Text1.SetText(std::to_string(songs_.size()));
  Text2.SetText("Select the number at which to begin editing.   Then click.");
  const auto first =
      std::find_if(songs_.begin(), songs_.end(), [this](const Song& song) { return song.file == begin_at_; });
  List1.Select(first == songs_.end() ? 0 : static_cast<int>(first - songs_.begin()));
  LoadSelected();
  List1.SetFocus();
}

void ArtistTitle::LoadSelected() {
  if (List1.selected_index() < 0) return;
  loaded_ = static_cast<std::size_t>(List1.selected_index());
  ShowFields(songs_[loaded_].recording);
  Command1.Enable();
}

Recording ArtistTitle::Edited() const {
  Recording edited = songs_[loaded_].recording;
  edited.Set(Field::kArtist, artisttext.text());
  edited.Set(Field::kTitle, titletext.text());
  edited.Set(Field::kRotation, RotationText.text());
  edited.Set(Field::kFromYear, fromyeartext.text());
  return edited;
}

void ArtistTitle::SaveItem() {
  const Song& song = songs_[loaded_];
  const Status saved = platform_.files.Write(PathOf(song.file), Edited().Format(), Durability::kFlushed);
  if (!saved.ok()) return TellFileFault(platform_.dialogs, saved, song.file + " was not saved.");
  ShowFields(Recording(""));
  if (loaded_ + 1 == songs_.size()) return;
  List1.Select(static_cast<int>(loaded_ + 1));
  LoadSelected();
  artisttext.SetFocus();
}

void ArtistTitle::ShowFields(const Recording& song) {
  artisttext.SetText(song.value(Field::kArtist));
  titletext.SetText(song.value(Field::kTitle));
  RotationText.SetText(song.value(Field::kRotation));
  fromyeartext.SetText(song.value(Field::kFromYear));
  startdatetext.SetText(song.value(Field::kStartDate));
  lengthtext.SetText(song.value(Field::kLength));
  idtext.SetText(song.value(Field::kRecordingId));
  drivetext.SetText(song.value(Field::kDrive));
}

void ArtistTitle::ShowHelp() {
  platform_.dialogs.MessageBox(
      "Select the position at which to start by clicking the appropriate item.  Items are listed in the "
      "order "
      "they appear on the hard drive (not alphabetical).  Edit the item selected.  The only editable fields "
      "are artist, title, rotation, and from year.  When the item has been edited, press 'save item'.  That "
      "particular item will be saved and the next item in the list will then appear - ready for editing.  "
      "Again, when you have edited that item press 'Save Item' to save and load the next entry. If you do "
      "not "
      "press 'Save Item' before moving another item, any changes made will be lost.  Use Quit to end the "
      "editing session at anytime.  NEVER use double quotes in the data fields as this will damage the data "
      "file.  Use this utility at your own risk.",
      box_style::kOk, "How to use the data file editor");
}

}  // namespace quixair
