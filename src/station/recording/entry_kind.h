#pragma once

// What the three entry screens differ in, as data.

#include <vector>

#include "station/library/recording.h"

namespace quixair {

/// What the hint line says when this is the first key of an id.
struct FirstKeyHint {
  char key;
  const char* hint;
};

struct EntryKind {
  RecordingKind kind;
  const char* screen;
  const char* title;
  const char* capture_screen;
  const char* list_caption;
  const char* pattern;  // of the list of recordings
  const char* id_cue;   // beside the id of a new recording
  const char* new_hint;
  std::vector<FirstKeyHint> first_keys;
  const char* editable;         // what can be edited here, for the box of Edit Data
  const char* file_taken;       // behind the name of the file that was chosen
  const char* wrong_last_file;  // Re-Record Last, and the last file is of another kind
  const char* software;         // as the box of a missing folder calls it
  bool plays_mp3;               // as well as .wav
  const char* audition_done;    // what the record button says during an audition; empty: it is off
};

const EntryKind& EntryKindOf(RecordingKind kind);

}  // namespace quixair
