#include "script/trace.h"

#include "script/script_language.h"
#include "station/platform/text.h"

namespace quixair::script {
namespace {

using Act = simulation::ChannelEvent::Act;

const char* NameOf(Act act) {
  switch (act) {
    case Act::kOpen:
      return "Open";
    case Act::kPlay:
      return "Play";
    case Act::kPause:
      return "Pause";
    case Act::kPrev:
      return "Prev";
    case Act::kClose:
      return "Close";
    case Act::kEnd:
      return "end";
  }
  return "";
}

const char* NameOf(WindowState window) {
  switch (window) {
    case WindowState::kMinimised:
      return "minimised";
    case WindowState::kMaximised:
      return "maximised";
    case WindowState::kNormal:
      break;
  }
  return "normal";
}

}  // namespace

std::string InWords(const simulation::ShownBox& box) {
  const std::string said = Quoted(box.title) + ' ' + Quoted(box.text) + " -> ";
  return box.input ? "input " + said + Quoted(box.answer)
                   : "box " + std::to_string(box.style) + ' ' + said + box.answer;
}

Trace::Trace(simulation::SimulatedStation& station, std::ostream& out) : station_(station), out_(out) {
  station.dialogs().on_box = [this](const simulation::ShownBox& box) { Event(InWords(box)); };
  station.media().on_event = [this](const simulation::ChannelEvent& event) { Channel(event); };
  station.programs().on_run = [this](const std::string& command_line, WindowState window) {
    Event("run " + Quoted(command_line) + ' ' + NameOf(window));
  };
  station.programs().on_keys = [this](const std::string& keys) { Event("keys " + Quoted(keys)); };
  station.printer().on_print = [this](const simulation::PrintJob& job) { Print(job); };
  station.session_start().on_set = [this](bool starts) {
    Event(std::string("session start ") + (starts ? "on" : "off"));
  };
  station.on_screen = [this](const std::string& screen, bool opened) {
    Event("screen " + screen + (opened ? " open" : " close"));
  };
  station.on_end = [this](int exit_code) { Event("end " + std::to_string(exit_code)); };
  station.on_fault = [this](const std::string& what) { Event("fault " + Quoted(what)); };
}

void Trace::Event(const std::string& text) {
  if (!quiet_) out_ << Stamp(station_.time().Now()) << ' ' << text << '\n';
}

void Trace::Print(const simulation::PrintJob& job) {
  if (quiet_) return;
  Event("print " + Quoted(job.title) + ' ' + std::to_string(job.pages.size()) + " pages -> " +
        std::string(simulation::NameOf(job.outcome)));
  for (const PrintedPage& page : job.pages) {
    for (const std::string& line : page) out_ << "  | " << ToUtf8(line) << '\n';
  }
}

void Trace::Channel(const simulation::ChannelEvent& event) {
  if (quiet_) return;
  std::string text = "channel " + std::to_string(event.channel) + ' ' + NameOf(event.act);
  if (event.act == Act::kOpen) text += ' ' + ToUtf8(event.file) + ' ' + std::to_string(event.length);
  Event(text);
}

}  // namespace quixair::script
