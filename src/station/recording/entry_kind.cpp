#include "station/recording/entry_kind.h"

namespace quixair {
namespace {

constexpr const char* kTakenThenSave = " is the selected file.  Edit data if needed, then 'Save'";
constexpr const char* kSoftware = "Quixair";

const EntryKind kSpot = {.kind = RecordingKind::kSpot,
                         .screen = "RecordSpot",
                         .title = "Spot Record",
                         .capture_screen = "RecordITSpot",
                         .list_caption = "Existing Spots:",
                         .pattern = "s*",
                         .id_cue = "Enter Filename - Do not include 'S'",
                         .new_hint = "",
                         .first_keys = {{'s', "Did you know the S is inserted automatically for you?"},
                                        {'S', "Did you know the S is inserted automatically for you?"}},
                         .editable = "[Only Spots are Editable in this mode - 'S' ",
                         .file_taken = kTakenThenSave,
                         .wrong_last_file = "The last file recorded was not a Spot file!",
                         .software = kSoftware,
                         .plays_mp3 = false,
                         .audition_done = ""};
const EntryKind kMusic = {.kind = RecordingKind::kMusic,
                          .screen = "RecordASong",
                          .title = "Music Record",
                          .capture_screen = "RecordIt",
                          .list_caption = "Existing Songs:",
                          .pattern = "m*",
                          .id_cue = "Enter Filename - Do not include 'M'",
                          .new_hint = "",
                          .first_keys = {{'m', "Did you know the M is inserted automatically for you?"},
                                         {'M', "Did you know the M is inserted automatically for you?"}},
                          .editable = "[Only Music is Editable in this mode - 'M' ",
                          .file_taken = " is the selected file.  Edit data if needed, then 'Finished'",
                          .wrong_last_file = "The last file recorded was not a Music file!",
                          .software = "Qx-Air",
                          .plays_mp3 = true,
                          .audition_done = "&Done"};
const EntryKind kLiner = {.kind = RecordingKind::kLiner,
                          .screen = "RecordLiner",
                          .title = "Liner Record",
                          .capture_screen = "RecordITLiner",
                          .list_caption = "Existing Liners:",
                          .pattern = "l*",
                          .id_cue = "Enter Filename - Do not include 'L'",
                          .new_hint = "Special Liner Designations: LL = Legal I.D. :  LM = Liner Type 2",
                          .first_keys = {{'l', "This item will be a Legal I.D."},
                                         {'L', "This item will be a Legal I.D."},
                                         {'m', "This item will be a Type 2 Liner (Magic call)"},
                                         {'M', "This item will be a Type 2 Liner (magic call)"}},
                          .editable = "[Only Liners are Editable in this mode - 'L' ",
                          .file_taken = kTakenThenSave,
                          .wrong_last_file = "The last file recorded was not a Liner file!",
                          .software = kSoftware,
                          .plays_mp3 = false,
                          .audition_done = ""};

}  // namespace

const EntryKind& EntryKindOf(RecordingKind kind) {
  switch (kind) {
    case RecordingKind::kSpot:
      return kSpot;
    case RecordingKind::kMusic:
      return kMusic;
    case RecordingKind::kLiner:
      break;
  }
  return kLiner;
}

}  // namespace quixair
