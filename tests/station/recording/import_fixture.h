#pragma once

// What the tests of the import screens share: sources on drive C in a folder of their own, and an operator who
// chooses files by their names.

#include <algorithm>

#include "station/console/value_form.h"
#include "support/station_fixture.h"

namespace quixair::testing {

class ImportFixture : public StationFixture {
 protected:
  void PutSource(std::string_view name, int milliseconds) {
    PutFile("NEW/" + std::string(name), std::to_string(milliseconds));
  }
  void Choose(std::string_view screen, std::string_view list, const std::vector<std::string>& wanted) {
    auto& box = Find<ListBox>(screen, list);
    std::vector<int> rows;
    for (const std::string& row : wanted) {
      const auto found = std::find(box.rows().begin(), box.rows().end(), row);
      if (found == box.rows().end()) throw std::runtime_error("no such row: " + row);
      rows.push_back(static_cast<int>(found - box.rows().begin()));
    }
    box.PersonSelects(rows);
  }
  void GoInto(std::string_view screen, const std::string& folder) {
    Choose(screen, "Dir1", {folder});
    Find<DirListBox>(screen, "Dir1").DoubleClick();
  }
  bool IsThere(std::string_view path) const { return std::filesystem::exists(Host(path)); }
  std::vector<std::string> FilesIn(std::string_view folder) const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Host(folder)))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string Field(std::string_view id, std::size_t line) {
    const std::string content = FileText("QXDATA/" + std::string(id) + ".DAT");
    std::vector<std::string> values = ReadValues(content, line);
    return values.size() < line ? "<none>" : values[line - 1];
  }
  /// Titles of the boxes since `first`.
  std::vector<std::string> TitlesSince(std::size_t first) {
    std::vector<std::string> titles;
    for (std::size_t i = first; i < boxes().size(); ++i) titles.push_back(boxes()[i].title);
    return titles;
  }
};

}  // namespace quixair::testing
