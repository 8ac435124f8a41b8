#include <gtest/gtest.h>

#include "station/library/recording.h"
#include "support/station_fixture.h"

namespace quixair::testing {
namespace {

constexpr const char* kEditor = "ArtistTitle";

class ArtistTitleTest : public StationFixture {
 protected:
  void Open() {
    StartConsole();
    Menu("ArtistTitleEditor");
    Advance(10s);
  }
  void Fill(std::string_view field, std::string text) { Find<TextBox>(kEditor, field).Edit(std::move(text)); }
  /// The id of the song in a row; the folder's order is its own.
  std::string IdOfRow(std::size_t row) {
    const std::string name = Rows(kEditor, "List1").at(row);
    return name.substr(0, name.find('.'));
  }
  std::string Data(const std::string& id) { return FileText("QXDATA/" + id + ".DAT"); }
};

TEST_F(ArtistTitleTest, FewerThanTwoSongs_AreToldAndNothingOpens) {
  AddSpot("S1", 30000);
  for (const int songs : {0, 1}) {
    if (songs == 1) AddSong("M1", 30000);
    QueueAnswer("OK");
    Open();
    EXPECT_EQ(boxes().back().title, "Not Enough Music!");
    EXPECT_FALSE(IsOpen(kEditor));
  }
}

TEST_F(ArtistTitleTest, Songs_AreListedInTheFoldersOrderAndTheFirstIsLoaded) {
  for (const char* id : {"M3", "M1", "M2"}) AddSong(id, 30000, "Artist of " + std::string(id));
  AddLiner("L1", 1000);
  Open();
  EXPECT_EQ(Shown(kEditor, "Text1"), "3");
  std::vector<std::string> order;
  for (const std::string& id : ListRecordings(station_.platform().files, "M*.DAT"))
    order.push_back(id + ".DAT  ");
  EXPECT_EQ(Rows(kEditor, "List1"), order);
  const std::string first = IdOfRow(0);
  const std::pair<const char*, std::string> fields[] = {{"artisttext", "Artist of " + first},
                                                        {"titletext", "Title of " + first},
                                                        {"RotationText", "A"},
                                                        {"fromyeartext", "2026"},
                                                        {"startdatetext", "01-01-26"},
                                                        {"lengthtext", "30"},
                                                        {"idtext", first},
                                                        {"drivetext", "C"}};
  for (const auto& [field, text] : fields) EXPECT_EQ(Shown(kEditor, field), text) << field;
  const std::pair<const char*, int> limits[] = {
      {"artisttext", 20}, {"titletext", 20}, {"RotationText", 1}, {"fromyeartext", 4}};
  for (const auto& [field, limit] : limits)
    EXPECT_EQ(Find<TextBox>(kEditor, field).max_length(), limit) << field;
  Click(kEditor, "Command3", {"OK"});
  EXPECT_EQ(boxes().back().title, "How to use the data file editor");
}

TEST_F(ArtistTitleTest, Save_WritesTheFourFieldsAndGoesToTheNext) {
  for (const char* id : {"M1", "M2", "M3"}) AddSong(id, 30000);
  Open();
  const std::string id = IdOfRow(0);
  Fill("artisttext", "Ida Rue");
  Fill("titletext", "Glass, Hours");
  Fill("RotationText", "B");
  Fill("fromyeartext", "1999");
  Click(kEditor, "Command1");
  EXPECT_EQ(Data(id),
            "\"30\"\r\n\"" + id +
                "\"\r\n\"C\"\r\n\"Ida Rue\"\r\n\"Glass, Hours\"\r\n\"B\"\r\n\"01-01-26\"\r\n\"1999\"\r\n");
  EXPECT_EQ(Shown(kEditor, "idtext"), IdOfRow(1));
  EXPECT_EQ(Find<ListBox>(kEditor, "List1").selected_index(), 1);
}

TEST_F(ArtistTitleTest, GoneBackTo_ASongShowsItsOldTextsAndASaveWritesThemBack) {
  for (const char* id : {"M1", "M2"}) AddSong(id, 30000, "Old");
  Open();
  const std::string before = Data(IdOfRow(0));
  Fill("artisttext", "New");
  Click(kEditor, "Command1");
  EXPECT_NE(Data(IdOfRow(0)), before);
  auto& list = Find<ListBox>(kEditor, "List1");
  list.PersonSelects({0});
  EXPECT_EQ(Shown(kEditor, "idtext"), IdOfRow(1)) << "a single click loads nothing";
  list.DoubleClick();
  EXPECT_EQ(Shown(kEditor, "artisttext"), "Old");
  Click(kEditor, "Command1");
  EXPECT_EQ(Data(IdOfRow(0)), before);
}

TEST_F(ArtistTitleTest, LastSong_StaysEmptiedAndAFurtherSaveWritesTheEmptyBoxes) {
  for (const char* id : {"M1", "M2"}) AddSong(id, 30000);
  Open();
  Click(kEditor, "Command1");
  Click(kEditor, "Command1");
  EXPECT_EQ(Find<ListBox>(kEditor, "List1").selected_index(), 1);
  for (const char* field :
       {"artisttext", "titletext", "RotationText", "fromyeartext", "startdatetext", "idtext"})
    EXPECT_EQ(Shown(kEditor, field), "") << field;
  Click(kEditor, "Command1");
  const std::string id = IdOfRow(1);
  EXPECT_EQ(Data(id),
            "\"30\"\r\n\"" + id + "\"\r\n\"C\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"01-01-26\"\r\n\"\"\r\n");
}

TEST_F(ArtistTitleTest, TornFile_LoadsWithEmptyFieldsAndIsRewrittenWhole) {
  PutFile("QXDATA/M1.DAT", "\"30\"\r\n\"M1\"\r\n");
  PutFile("QXDATA/M2.DAT", "\"30\"\r\n\"M2\"\r\n");
  Open();
  const std::string id = IdOfRow(0);
  EXPECT_EQ(Shown(kEditor, "idtext"), id);
  EXPECT_EQ(Shown(kEditor, "artisttext"), "");
  Fill("artisttext", "Found");
  Click(kEditor, "Command1");
  EXPECT_EQ(Data(id), "\"30\"\r\n\"" + id + "\"\r\n\"\"\r\n\"Found\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
}

TEST_F(ArtistTitleTest, AskedForAgain_ShowsTheSongsThatCameUnlessAnEditWouldBeLost) {
  for (const char* id : {"M1", "M2"}) AddSong(id, 30000);
  std::filesystem::create_directories(folder_.path() / "D" / "QXWAVE");
  StartConsole();
  station_.platform().capture.set_drive('D');
  Menu("ArtistTitleEditor");
  EXPECT_EQ(station_.platform().capture.drive(), 'C') << "a new recording is offered drive C now";
  Click(kEditor, "Command1");
  const std::string loaded = Shown(kEditor, "idtext");
  Fill("artisttext", "Typed");
  AddSong("M3", 30000);
  Menu("ArtistTitleEditor");
  EXPECT_EQ(Shown(kEditor, "artisttext"), "Typed");
  EXPECT_EQ(Shown(kEditor, "Text1"), "2");
  Find<ListBox>(kEditor, "List1").DoubleClick();
  Menu("ArtistTitleEditor");
  EXPECT_EQ(Shown(kEditor, "Text1"), "3");
  EXPECT_EQ(Shown(kEditor, "idtext"), loaded) << "where the editor stood";
  for (const char* id : {"M1", "M2"}) std::filesystem::remove(Host("QXDATA/" + std::string(id) + ".DAT"));
  Menu("ArtistTitleEditor", {"OK"});
  EXPECT_FALSE(IsOpen(kEditor)) << "too few";
}

TEST_F(ArtistTitleTest, SaveThatFails_IsToldAndTheSongStaysInTheBoxes) {
  for (const char* id : {"M1", "M2"}) AddSong(id, 30000);
  Open();
  const std::string id = IdOfRow(0);
  Fill("artisttext", "Kept");
  std::filesystem::remove(Host("QXDATA/" + id + ".DAT"));
  std::filesystem::create_directories(Host("QXDATA/" + id + ".DAT"));
  Click(kEditor, "Command1", {"OK"});
  EXPECT_NE(boxes().back().text.find(id + ".DAT was not saved."), std::string::npos);
  EXPECT_EQ(Shown(kEditor, "artisttext"), "Kept");
  EXPECT_TRUE(station_.running());
}

TEST_F(ArtistTitleTest, LargeLibrary_IsReadInPortionsWithTheScreenLocked) {
  AddLibrary(1000, 0, 0);
  StartConsole();
  Menu("ArtistTitleEditor");
  EXPECT_NE(Shown(kEditor, "Text2").find(" of 1000"), std::string::npos);
  EXPECT_FALSE(Find<Button>(kEditor, "Command1").enabled());
  EXPECT_TRUE(Find<Button>(kEditor, "Command2").enabled()) << "leaving is possible at any time";
  Advance(10s);
  EXPECT_EQ(Shown(kEditor, "Text1"), "1000");
  EXPECT_TRUE(Find<Button>(kEditor, "Command1").enabled());
}

}  // namespace
}  // namespace quixair::testing
