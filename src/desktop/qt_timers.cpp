#include "desktop/qt_timers.h"

#include <algorithm>

namespace quixair::desktop {

struct QtTimers::Entry {
  std::function<void()> tick;
  Milliseconds interval{0};
  Milliseconds due{0};
  bool running = false;
};

class QtTimers::Shots : public TimerShots {
 public:
  Shots(QtTimers& timers, std::shared_ptr<Entry> entry) : timers_(timers), entry_(std::move(entry)) {}
  Shots(const Shots&) = delete;
  Shots& operator=(const Shots&) = delete;
  ~Shots() override {
    entry_->running = false;
    std::erase(timers_.entries_, entry_);
  }

  void Start(std::chrono::milliseconds interval) override {
    entry_->interval = interval;
    entry_->due = timers_.now_() + interval;
    entry_->running = true;
    timers_.Wake();
  }
  void Stop() override { entry_->running = false; }

 private:
  QtTimers& timers_;
  std::shared_ptr<Entry> entry_;
};

QtTimers::QtTimers(std::function<Milliseconds()> now) : now_(std::move(now)) {
  alarm_.setTimerType(Qt::PreciseTimer);
  alarm_.setSingleShot(true);
  QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { RunDue(); });
}

QtTimers::~QtTimers() = default;

QtTimers::Milliseconds QtTimers::SteadyNow() {
  return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

std::unique_ptr<TimerShots> QtTimers::MakeTimer(std::function<void()> tick) {
  auto entry = std::make_shared<Entry>();
  entry->tick = std::move(tick);
  entries_.push_back(entry);
  return std::make_unique<Shots>(*this, std::move(entry));
}

std::shared_ptr<QtTimers::Entry> QtTimers::NextDue(Milliseconds latest) const {
  std::shared_ptr<Entry> next;
  for (const auto& entry : entries_) {
    if (!entry->running || entry->due > latest) continue;
    if (next == nullptr || entry->due < next->due) next = entry;
  }
  return next;
}

void QtTimers::RunDue() {
  // What falls due during these ticks waits for the next round, so that a busy timer cannot hold the event
  // loop.
  const Milliseconds round = now_();
  while (const std::shared_ptr<Entry> entry = NextDue(round)) {  // shared: the tick may destroy its own timer
    entry->due += entry->interval;
    if (entry->due <= round) entry->due = round + entry->interval;  // missed shots are not made up for
    Wake();  // the tick may wait in a box, and the others go on meanwhile
    entry->tick();
  }
  Wake();
}

void QtTimers::Wake() {
  const std::shared_ptr<Entry> next = NextDue(Milliseconds::max());
  if (next == nullptr) {
    alarm_.stop();
    return;
  }
  alarm_.start(std::max(Milliseconds(0), next->due - now_()));
}

}  // namespace quixair::desktop
