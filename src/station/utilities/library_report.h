#pragma once

// The listings of the library, as data of each kind of recording: what the screen says, the grid's heads and
// widths, and the printed columns. A row of the grid holds the row's number, up to nine shown cells and the
// three keys that it is sorted by.

#include <string>
#include <string_view>
#include <vector>

#include "station/library/recording.h"
#include "station/platform/files.h"
#include "station/screen/grid.h"
#include "station/utilities/report_pages.h"

namespace quixair {

inline constexpr std::size_t kNumberColumn = 0;
inline constexpr std::size_t kFileNameColumn = 1;  // the file's own name, whatever id it holds
inline constexpr std::size_t kFileNameKey = 10;
inline constexpr std::size_t kNameKey = 11;  // account of a spot, artist of a song, announcer of a liner
inline constexpr std::size_t kTitleKey = 12;
inline constexpr std::size_t kGridColumns = 13;

/// A printed column and the grid's cell that it prints.
struct PrintedColumn {
  ReportColumn column;
  std::size_t cell;
  enum class As { kText, kMinutes } as = As::kText;
};

struct LibraryReport {
  RecordingKind kind;
  const char *singular, *plural;  // "Spot", "Spots"
  /// Shown behind the file name.
  struct Shown {
    const char* head;
    int twips;
    Field field;
  };
  std::vector<Shown> shown;
  Field name_field, title_field;  // of the sort keys
  const char *title, *after_date, *heads;
  std::vector<PrintedColumn> printed;
};

const LibraryReport& LibraryReportOf(RecordingKind kind);

/// Thirteen columns; those without a head are hidden.
std::vector<GridColumn> GridColumnsOf(const LibraryReport& report);

/// The row of a data file. One that cannot be read in full leaves it empty, but for its name.
GridRow LibraryRow(const LibraryReport& report, Files& files, const std::string& id);

std::vector<PrintedPage> LibraryPages(const LibraryReport& report, const std::vector<GridRow>& rows,
                                      const std::string& date);

}  // namespace quixair
