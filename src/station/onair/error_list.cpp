#include "station/onair/error_list.h"

#include "station/screen/screen.h"

namespace quixair {

ErrorList::ErrorList(Screen& owner) : ListBox(owner, "List6") {}

void ErrorList::AddFault(std::string row) {
  AddRow(std::move(row));
  if (row_count() > kMostRows) RemoveRow(1);  // below the heading
}

}  // namespace quixair
