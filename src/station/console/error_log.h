#pragma once

// ErrorLog, the small screen from which the engineer reads and clears the station's error log.

#include "station/screen/screen.h"

namespace quixair {

class ErrorLog : public Screen {
 public:
  explicit ErrorLog(const Platform& platform);

  Button Command1{*this, "Command1", "&View Error Log"};
  Button Command2{*this, "Command2", "&Clear Error Log"};
  Button Command3{*this, "Command3", "E&xit Window"};

 private:
  void Clear();
};

}  // namespace quixair
