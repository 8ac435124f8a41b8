#include "station/random/item_step.h"

#include "station/console/station_paths.h"
#include "station/library/item_resolution.h"
#include "station/library/recording.h"
#include "station/random/random_form1.h"
#include "station/random/random_run.h"

namespace quixair {

AirItem AirItemOf(const RandomContext& context, const WorkingItem& item, ItemOrigin origin, int row) {
  const std::string extension =
      FindAudioFile(context.platform.files, item.Drive, item.RecordingId).value_or(std::string());
  return {.id = item.RecordingId,
          .path = station_paths::AudioFile(item.Drive, item.RecordingId, extension),
          .first_text = item.first_text,
          .title = item.Title,
          .origin = origin,
          .row = row};
}

std::optional<std::string> RefusalOfSpot(RandomContext& context, const std::string& id) {
  if (!IsSpotId(id)) return std::nullopt;
  Files& files = context.platform.files;
  const SpotDateSwitch date_check = ReadSpotDateSwitch(files);
  if (date_check == SpotDateSwitch::kUnknown)
    context.screen.Switches.Check4.SetCaption(SpotDateCaption(date_check));
  if (date_check != SpotDateSwitch::kOn) return std::nullopt;
  Recording spot(id);
  SkipAndGoOn(spot.Read(files));
  return SpotDateRefusal(spot.value(Field::kStartDate), spot.value(Field::kKillDate),
                         context.platform.clock.Now());
}

void TellRefusal(RandomContext& context, const std::string& row) {
  context.air.faults.Add(row, ' ' + row);
}

void ShowItem(RandomContext& context, const WorkingItem& item, const std::string& id) {
  RandomForm1& screen = context.screen;
  context.air.status.Tell(PlaybackText(context.run.StopSetActive));
  for (std::size_t row = 0; row < 4; ++row) screen.CurrLabel[row].SetForeColor(kWhite);
  screen.CurrLabel[0].SetCaption(' ' + item.RecordingId + "  " + item.first_text);
  screen.CurrLabel[1].SetCaption(' ' + item.Title);
  screen.CurrLabel[2].SetCaption(" Length:   " + item.Length);
  screen.CurrLabel[3].SetCaption(" Elapsed: ");
  context.run.shown_id = id;
}

std::string PlaybackText(bool stop_set) {
  return stop_set ? std::string(33, ' ') + "Digital Audio Playback in Progress - [Stop Set]"
                  : std::string(48, ' ') + "Digital Audio Playback in Progress";
}

}  // namespace quixair
