#include "station/templates/build_template1.h"

#include "station/console/settings_files.h"
#include "station/console/station_paths.h"
#include "station/platform/dialogs.h"
#include "station/platform/text.h"
#include "station/templates/template_editor.h"

namespace quixair {
namespace {

constexpr std::array<const char*, 4> kTitles = {"Pick-List Playback Select", "Pick-List Playback Select",
                                                "Simple-Sat Playback Select",
                                                "Random Spot/PSA Rotation File"};
constexpr std::size_t kFewest = 2;

std::string Counted(std::size_t count, const char* what) {
  return std::to_string(count) + what;
}

}  // namespace

BuildTemplate1::BuildTemplate1(const Platform& platform)
    : Screen(platform, "BuildTemplate1", "Template Editor"),
      editor_(std::make_unique<TemplateEditor>(*this)) {
  for (Control* control :
       std::array<Control*, 7>{&Frame1, &Frame2, &List1, &List4, &Label7, &Text8, &Command15}) {
    control->Hide();
  }
  Command10.on_click = [this] { ShowLibrary(List3); };
  Command11.on_click = [this] { ShowLibrary(List1); };
  Command12.on_click = [this] { ShowLibrary(List4); };
}

BuildTemplate1::~BuildTemplate1() = default;

void BuildTemplate1::Load() {
  if (!LoadLibrary() || !SetUpMode()) {
    Unload();
    return;
  }
  FillLists();
  editor_->SetLoaded();
}

void BuildTemplate1::CloseWindow() {
  editor_->Quit();
}

bool BuildTemplate1::LoadLibrary() {
  return LoadKind(music, RecordingKind::kMusic, "song", "Music") &&
         LoadKind(spots, RecordingKind::kSpot, "spot", "Spots") &&
         LoadKind(liners, RecordingKind::kLiner, "liner", "Liners");
}

bool BuildTemplate1::LoadKind(EditorList& list, RecordingKind kind, const char* word,
                              const char* title_word) {
  list = LoadEditorList(platform_.files, kind, [this, title_word](int count) {
    Text3.SetText(std::to_string(count) + ' ' + title_word + " Files Present");
    Repaint();
  });
  if (list.recordings.size() >= kFewest) return true;
  const std::string kind_word = kind == RecordingKind::kMusic ? "music" : word;
  platform_.dialogs.MessageBox("You must record at least two " + std::string(word) +
                                   " files before\nusing this module. Please make at least two\n" +
                                   kind_word + " recordings and then try again...",
                               box_style::kExclamation, std::string("Not Enough ") + title_word + '!');
  return false;
}

bool BuildTemplate1::SetUpMode() {
  const int pik_mode = ReadNumberSetting(platform_.files, station_paths::kPikMode);
  ShowLibrary(List3);
  if (pik_mode >= 0 && pik_mode < static_cast<int>(kTitles.size())) {
    SetTitle(kTitles[static_cast<std::size_t>(pik_mode)]);
  }
  editor_->SetMode(pik_mode);
  return editor_->plays() || editor_->LoadTemplate();
}

void BuildTemplate1::FillLists() {
  List1.SetRows(music.rows);
  List3.SetRows(spots.rows);
  List4.SetRows(liners.rows);
  Text3.SetText(Counted(spots.rows.size(), " Spot Files Present / ") +
                Counted(music.rows.size(), " Music Files Present / ") +
                Counted(liners.rows.size(), " Liner Files Present..."));
  std::vector<std::string> numbers;
  for (int number = 1; number <= 1999; ++number) {
    numbers.push_back((number < 10 ? "0" : "") + std::to_string(number));
  }
  List5.SetRows(numbers);
  List6.SetRows(std::move(numbers));
}

ListBox& BuildTemplate1::shown_library() {
  return List1.visible() ? List1 : List3.visible() ? List3 : List4;
}

void BuildTemplate1::ShowLibrary(ListBox& list) {
  struct Library {
    ListBox& list;
    Button& button;
    const EditorList& files;
    const char *label, *columns, *count;
  };
  const std::array<Library, 3> libraries = {
      Library{List3, Command10, spots, "Existing Files:  [Spots]",
              " I.D.   Account         Title            Len    Start    Kill   P A", " Spot Files Present"},
      Library{List1, Command11, music, "Existing Files:  [Music]",
              " I.D.     Artist                 Title            Len   From Yr.", " Music Files Present"},
      Library{List4, Command12, liners, "Existing Files:  [Liners]",
              " I.D.   Description     Announcer Type     Len      Start    Kill   ",
              " Liner Files Present"}};
  for (const Library& library : libraries) {
    const bool shown = &library.list == &list;
    library.list.Show(shown);
    library.button.Enable(!shown);
    if (!shown) continue;
    FilesLabel.SetCaption(library.label);
    ColumnsLabel.SetCaption(library.columns);
    Text3.SetText(Counted(library.files.recordings.size(), library.count));
  }
  list.SetFocus();
}

}  // namespace quixair
