#include "station/picklist/pick_list_overlap.h"

#include <string>

#include "station/library/recording.h"
#include "station/picklist/pick_list_form1.h"
#include "station/picklist/pick_list_playback.h"

namespace quixair {
namespace {
constexpr int kTogetherMilliseconds = 1000;  // Random playback says ten seconds
}

void PickListOverlap::Tick() {
  PickListState& state = context_.state;
  if (state.run_over) return;
  AbortCompeting();
  if (!MayOverlap()) return;
  const MediaControl& first = context_.screen.Channels.MMControl1;
  // A run that waits for its operator, at a local break, is not this tick's to move on.
  if (first.Mode() != ChannelMode::kPlaying || state.ActiveChannel == 2) return;
  // Exact to the overlap set, where Random playback starts a second before it.
  const double start = first.Length() / 1000.0 - context_.screen.Overlap.seconds();
  if (start > first.Position() / 1000.0) return;
  state.OverlapActive = 1;
  engine_.ShowRemaining(true);
  ++state.CurrentEvent;
  engine_.PlayNextEvent();
}

void PickListOverlap::AbortCompeting() {
  ChannelBank& channels = context_.screen.Channels;
  if (!channels.TwoSongsBegan(kTogetherMilliseconds)) return;
  context_.faults.Add("Competing Overlap Aborted", " Competing Overlap Aborted");
  channels.MMControl2.Command(ChannelCommand::kClose);
}

bool PickListOverlap::MayOverlap() const {
  const PickListState& state = context_.state;
  if (state.AudioPaused == 1 || state.CurrentEvent >= context_.events.EventCount() ||
      context_.screen.Overlap.seconds() == 0 || state.LiveRequested == 1 || state.OverlapActive == 1) {
    return false;
  }
  const std::string& current = context_.current_id();
  const std::string& next = context_.events.next_id(state.CurrentEvent);
  if (IsTimeEvent(current) || IsSpotId(current)) return false;
  // A lower-case ">p" passes: known, and kept.
  if (IsTimeEvent(next) || next.starts_with(">P") || IsSpotId(next)) return false;
  return context_.screen.Channels.MMControl2.Mode() == ChannelMode::kNotOpen && next != current;
}

}  // namespace quixair
