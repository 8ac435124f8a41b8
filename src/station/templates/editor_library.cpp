#include "station/templates/editor_library.h"

#include <algorithm>

namespace quixair {
namespace {

constexpr std::size_t kBlanksBeforeIndex = 15;
constexpr std::size_t kMostFields = 10;
constexpr int kProgressStep = 500;

std::string Padded(const std::string& text, std::size_t width) {
  std::string padded = text.substr(0, width);
  padded.resize(width, ' ');
  return padded;
}

using Fields = std::vector<std::string>;

std::string SpotRow(const Fields& f) {
  return Padded(f[1], 8) + Padded(f[3], 15) + Padded(f[4], 15) + Padded(f[0], 7) + Padded(f[5], 9) +
         Padded(f[6], 9) + Padded(f[7], 2) + f[8];
}
std::string MusicRow(const Fields& f) {
  return Padded(f[1], 8) + Padded(f[3], 20) + Padded(f[4], 20) + Padded(f[0], 8) + f[7];
}
std::string LinerRow(const Fields& f) {
  return Padded(f[1], 8) + Padded(f[3], 15) + Padded(f[4], 1) + Padded(f[5], 1) + Padded(f[0], 7) +
         Padded(f[6], 9) + Padded(f[7], 11);
}

struct KindOfList {
  const char* pattern;
  std::string (*row)(const Fields&);
};
KindOfList Of(RecordingKind kind) {
  switch (kind) {
    case RecordingKind::kSpot:
      return {"S*.DAT", SpotRow};
    case RecordingKind::kMusic:
      return {"M*.DAT", MusicRow};
    case RecordingKind::kLiner:
      break;
  }
  return {"L*.DAT", LinerRow};
}

}  // namespace

EditorList LoadEditorList(Files& files, RecordingKind kind, const std::function<void(int)>& progress) {
  const KindOfList list_kind = Of(kind);
  EditorList list;
  const std::vector<std::string> ids = ListRecordings(files, list_kind.pattern);
  list.recordings.reserve(ids.size());
  list.rows.reserve(ids.size());
  for (const std::string& id : ids) {
    const Fields fields = ReadLeadingFields(files, id, kMostFields);
    list.recordings.push_back({fields[1], fields[3], fields[4], fields[0]});
    const std::string index = std::to_string(list.recordings.size());
    const std::string blanks(kBlanksBeforeIndex + 4 - std::min<std::size_t>(4, index.size()), ' ');
    list.rows.push_back(list_kind.row(fields) + blanks + index);
    if (list.recordings.size() % kProgressStep == 0) progress(static_cast<int>(list.recordings.size()));
  }
  return list;
}

}  // namespace quixair
