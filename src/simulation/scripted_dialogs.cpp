#include "simulation/scripted_dialogs.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "station/platform/text.h"

namespace quixair::simulation {
namespace {

std::vector<Answer> Offered(int style) {
  switch (style & box_style::kButtonMask) {
    case box_style::kOkCancel:
      return {Answer::kOk, Answer::kCancel};
    case box_style::kYesNoCancel:
      return {Answer::kYes, Answer::kNo, Answer::kCancel};
    case box_style::kYesNo:
      return {Answer::kYes, Answer::kNo};
    default:
      return {Answer::kOk};
  }
}

}  // namespace

std::string_view NameOf(Answer answer) {
  switch (answer) {
    case Answer::kOk:
      return "OK";
    case Answer::kCancel:
      return "Cancel";
    case Answer::kYes:
      return "Yes";
    case Answer::kNo:
      return "No";
  }
  return {};
}

Answer ScriptedDialogs::MessageBox(std::string_view text, int style, std::string_view title) {
  ShownBox box{.input = false,
               .style = style,
               .title = std::string(title),
               .text = std::string(text),
               .offered = {},
               .answer = {}};
  const std::vector<Answer> offered = Offered(style);
  Answer answer = offered.back();
  const std::optional<std::string> wanted = TakeAnswer(box);
  const auto match = std::find_if(offered.begin(), offered.end(), [&](Answer candidate) {
    return wanted && EqualsIgnoringCase(NameOf(candidate), *wanted);
  });
  if (match != offered.end()) answer = *match;
  box.answer = NameOf(answer);
  shown_.push_back(box);
  if (on_box) on_box(box);
  if (match == offered.end() && !otherwise && on_unexpected) on_unexpected(box);
  return answer;
}

std::optional<std::string> ScriptedDialogs::TakeAnswer(const ShownBox& box) {
  if (on_open) on_open();
  if (answers_.empty()) {
    const auto same = [&box](const ShownBox& other) {
      return other.title == box.title && other.text == box.text;
    };
    // A box that refuses what was typed may stand in between.
    const auto from = shown_.end() - std::min<std::ptrdiff_t>(2, std::ssize(shown_));
    return otherwise && std::any_of(from, shown_.end(), same) ? std::string() : otherwise;
  }
  std::string answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::string ScriptedDialogs::InputBox(std::string_view prompt, std::string_view title,
                                      const InputOffer& offer) {
  std::string offered(offer.text);
  if (offer.use == InputOffer::Use::kBeginning) offered += '|';
  std::string answer = AnswerTyped({.input = true,
                                    .style = 0,
                                    .title = std::string(title),
                                    .text = std::string(prompt),
                                    .offered = std::move(offered),
                                    .answer = {}});
  if (offer.limit > 0) answer.resize(std::min(answer.size(), static_cast<std::size_t>(offer.limit)));
  return answer;
}

std::optional<RecordingFormat> ScriptedDialogs::FormatBox(const RecordingFormat& initial) {
  return ParseRecordingFormat(AnswerTyped({.input = true,
                                           .style = 0,
                                           .title = "Recording format",
                                           .text = InWords(initial),
                                           .offered = {},
                                           .answer = {}}));
}

std::string ScriptedDialogs::AnswerTyped(ShownBox box) {
  const std::optional<std::string> answer = TakeAnswer(box);
  box.answer = answer.value_or(std::string());
  shown_.push_back(box);
  if (on_box) on_box(box);
  if (!answer && on_unexpected) on_unexpected(box);
  return box.answer;
}

}  // namespace quixair::simulation
