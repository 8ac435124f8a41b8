#include "station/console/splash.h"

#include "station/platform/version.h"

namespace quixair {

Splash::Splash(const Platform& platform) : Screen(platform, "frmSplash", "Quixair") {
  lblVersion.SetCaption("Version " + std::to_string(kVersionMajor) + '.' + std::to_string(kVersionMinor) +
                        '.' + std::to_string(kVersionRevision));
  Frame1.on_click = [this] { Unload(); };
}

}  // namespace quixair
