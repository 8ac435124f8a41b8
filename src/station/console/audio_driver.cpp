#include "station/console/audio_driver.h"

#include "station/platform/files.h"
#include "station/platform/programs.h"

namespace quixair {

void RegisterAudioDriver(const Platform& platform) {
  // A host that needs no components has no such file to copy.
  SkipAndGoOn(platform.files.Copy("C:\\QXAIR\\MMREGOCX.EXE", "C:\\Windows\\System\\MMREGOCX.EXE"));
  platform.programs.Run("C:\\Windows\\System\\MMREGOCX.EXE MMTypesX.OCX MMWaveX.OCX");
}

}  // namespace quixair
