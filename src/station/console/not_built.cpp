#include "station/console/not_built.h"

namespace quixair {

NotBuilt::NotBuilt(const Platform& platform) : Screen(platform, "NotBuilt", "Not Built Yet") {
  Command1.on_click = [this] { Unload(); };
}

void NotBuilt::Prepare(const ScreenOpening& opening) {
  Label1.SetCaption("This screen is not built yet: " + opening.title);
}

}  // namespace quixair
