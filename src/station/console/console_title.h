#pragma once

// The title of the main window: the program's name and the station's own line.

#include <string>
#include <string_view>

namespace quixair {

inline std::string ConsoleTitle(std::string_view station_line) {
  return "Quixair 4   " + std::string(station_line);
}

}  // namespace quixair
