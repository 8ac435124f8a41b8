#include "station/utilities/library_report.h"

#include <algorithm>

namespace quixair {
namespace {

using As = PrintedColumn::As;
using enum Field;

constexpr int kNumberTwips = 750;
constexpr int kFileNameTwips = 1000;
constexpr std::size_t kFirstShown = kFileNameColumn + 1;

const LibraryReport kSpots = {
    .kind = RecordingKind::kSpot,
    .singular = "Spot",
    .plural = "Spots",
    .shown = {{"Account", 1500, kAccount},
              {"Title", 1500, kTitle},
              {"Length", 900, kLength},
              {"Start Date", 900, kStartDate},
              {"Kill Date", 1000, kKillDate},
              {"Prod.", 500, kProduct},
              {"Annc.", 500, kAnnouncer},
              {"Drive", 500, kDrive}},
    .name_field = kAccount,
    .title_field = kTitle,
    .title = "Quixair SPOT Listings    -  Created on: ",
    .after_date = "    Page: ",
    .heads = " I.D.      Account         Title             Len.  (Min.)  Start    Kill  P A D ",
    .printed = {{{6}, 1},
                {{13, Fit::kLabel}, 2},
                {{29, Fit::kLabel}, 3},
                {{45, Fit::kRoom}, 4},
                {{51}, 4, As::kMinutes},
                {{57}, 5},
                {{66}, 6},
                {{75}, 7},
                {{77}, 8},
                {{79}, 9}}};

const LibraryReport kMusic = {
    .kind = RecordingKind::kMusic,
    .singular = "Music",
    .plural = "Music",
    .shown = {{"Artist", 2000, kArtist},
              {"Title", 2000, kTitle},
              {"Length", 900, kLength},
              {"Start Date", 900, kStartDate},
              {"From", 600, kFromYear},
              {"Rotat", 500, kRotation},
              {"Drive", 500, kDrive}},
    .name_field = kArtist,
    .title_field = kTitle,
    .title = "  The Quixair MUSIC Listings     -  Created on: ",
    .after_date = "    Page: ",
    .heads = "     I.D.         Artist            Title        Len.   (Min.)   Start  From  Dr",
    .printed = {{{7}, 1},
                {{14, Fit::kLabel}, 2},
                {{32, Fit::kLabel}, 3},
                {{50, Fit::kRoom}, 4},
                {{57}, 4, As::kMinutes},
                {{64}, 5},
                {{73}, 6},
                {{79}, 8}}};

const LibraryReport kLiners = {
    .kind = RecordingKind::kLiner,
    .singular = "Liner",
    .plural = "Liners",
    .shown = {{"Title", 2000, kTitle},
              {"Announcer", 1000, kAnnouncer},
              {"Type", 500, kLinerType},
              {"Length", 900, kLength},
              {"Start Date", 900, kStartDate},
              {"Kill Date", 1000, kKillDate},
              {"Drive", 500, kDrive}},
    .name_field = kAnnouncer,
    .title_field = kTitle,
    .title = "  The Quixair LINER Listings     -  Created: ",
    .after_date = "   Page: ",
    .heads = "     I.D.    Description      Anc Typ Len.  (Min.)    Start      Kill    Dr",
    .printed = {{{6}, 1},
                {{13, Fit::kLabel}, 2},
                {{34}, 3},
                {{37}, 4},
                {{40, Fit::kRoom}, 5},
                {{46}, 5, As::kMinutes},
                {{54}, 6},
                {{64}, 7},
                {{75}, 8}}};

std::vector<std::string> HeadOf(const LibraryReport& report, const std::string& date, int page) {
  const std::string rule(kPageColumns, '-');
  return {std::string(kPageColumns, '^'), report.title + date + report.after_date + std::to_string(page),
          rule, report.heads, rule};
}

std::vector<TabbedText> EntryOf(const LibraryReport& report, const GridRow& row) {
  const auto first = row.begin() + static_cast<std::ptrdiff_t>(kFirstShown);
  const bool empty = std::all_of(first, first + static_cast<std::ptrdiff_t>(report.shown.size()),
                                 [](const std::string& cell) { return cell.empty(); });
  std::vector<TabbedText> texts = {{1, row[kNumberColumn]}};
  if (empty) return texts;
  std::vector<ReportColumn> columns;
  std::vector<std::string> values;
  for (const PrintedColumn& printed : report.printed) {
    columns.push_back(printed.column);
    const std::string& cell = row[printed.cell];
    values.push_back(printed.as == As::kMinutes ? '(' + MinutesText(cell) + ')' : cell);
  }
  for (TabbedText& text : Fitted(columns, values)) texts.push_back(std::move(text));
  return texts;
}

}  // namespace

const LibraryReport& LibraryReportOf(RecordingKind kind) {
  return kind == RecordingKind::kSpot ? kSpots : kind == RecordingKind::kMusic ? kMusic : kLiners;
}

std::vector<GridColumn> GridColumnsOf(const LibraryReport& report) {
  std::vector<GridColumn> columns(kGridColumns);
  columns[kNumberColumn].pixels = PixelsFromTwips(kNumberTwips);
  columns[kFileNameColumn] = {"Filename", PixelsFromTwips(kFileNameTwips)};
  for (std::size_t i = 0; i < report.shown.size(); ++i) {
    columns[kFirstShown + i] = {report.shown[i].head, PixelsFromTwips(report.shown[i].twips)};
  }
  return columns;
}

GridRow LibraryRow(const LibraryReport& report, Files& files, const std::string& id) {
  GridRow row(kGridColumns);
  row[kFileNameColumn] = row[kFileNameKey] = id;
  Recording recording(id);
  if (!recording.Read(files).ok()) return row;
  for (std::size_t i = 0; i < report.shown.size(); ++i)
    row[kFirstShown + i] = recording.value(report.shown[i].field);
  row[kNameKey] = recording.value(report.name_field);
  row[kTitleKey] = recording.value(report.title_field);
  return row;
}

std::vector<PrintedPage> LibraryPages(const LibraryReport& report, const std::vector<GridRow>& rows,
                                      const std::string& date) {
  ReportPages pages([&report, &date](int page) { return HeadOf(report, date, page); });
  for (const GridRow& row : rows) {
    if (pages.page_full()) pages.NewPage();
    pages.AddEntry(EntryOf(report, row));
  }
  return pages.Take();
}

}  // namespace quixair
