#include <SDL.h>
#include <dlfcn.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <set>
#include <string_view>

#include "sound/audio_driver.h"

namespace quixair::sound {
namespace {

// The library has a driver for the newer kind of server too, but that one falls silent for good when its
// server dies; the server speaks the older protocol as well.
constexpr const char* kDrivers = "pulseaudio,alsa";
// 43 ms. A quarter of it had gaps on an idle machine.
constexpr Uint16 kBufferFrames = 2048;
constexpr Uint16 kInputFrames = 1024;

void SayNothing(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                const char* /*format*/, ...) {}

/// The sound card library writes ten lines to the error output at every try to open a card that is not there: once a
/// second, for weeks. The screen says it better.
void HushSoundCardLibrary() {
  using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
  using SetHandler = int (*)(Handler);
  void* const library = dlopen("libasound.so.2", RTLD_LAZY);
  if (library == nullptr) return;
  const auto set_handler = reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler"));
  if (set_handler != nullptr) set_handler(&SayNothing);
}

/// How much the sound server holds of what was handed to it, unless the user's environment says otherwise. The library
/// asks for one buffer only, and a machine that was busy for longer than that was heard: gaps of 70 ms.
constexpr const char* kServerMilliseconds = "150";

class SdlInput;

/// The library is one for the whole process: opening and closing are done one at a time, and quitting it takes
/// the inputs with it, whose numbers may then mean other devices.
class SdlLibrary {
 public:
  std::mutex mutex;
  std::set<SdlInput*> inputs;  // under the mutex
};

class SdlDevice : public AudioDevice {
 public:
  explicit SdlDevice(std::shared_ptr<SdlLibrary> library) : library_(std::move(library)) {}
  ~SdlDevice() override {
    const std::scoped_lock lock(library_->mutex);
    if (id_ != 0) SDL_CloseAudioDevice(id_);
  }

  bool Open() {
    const std::scoped_lock lock(library_->mutex);
    SDL_AudioSpec wanted{};
    wanted.freq = kMixRate;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = 2;
    wanted.samples = kBufferFrames;
    wanted.callback = &Feed;
    wanted.userdata = this;
    id_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, &granted_, SDL_AUDIO_ALLOW_FREQUENCY_CHANGE);
    return id_ != 0;
  }

  int rate() const override { return granted_.freq; }

  void Start(DeviceFeed& feed) override {
    feed_ = &feed;
    SDL_PauseAudioDevice(id_, 0);
  }

  bool Connected() const override { return SDL_GetAudioDeviceStatus(id_) != SDL_AUDIO_STOPPED; }

 private:
  static void SDLCALL Feed(void* self, Uint8* bytes, int count) {
    auto* frames = static_cast<StereoFrame*>(static_cast<void*>(bytes));
    static_cast<SdlDevice*>(self)->feed_->Feed(
        {frames, static_cast<std::size_t>(count) / sizeof(StereoFrame)}, std::chrono::steady_clock::now());
  }

  std::shared_ptr<SdlLibrary> library_;
  SDL_AudioDeviceID id_ = 0;
  SDL_AudioSpec granted_{};
  DeviceFeed* feed_ = nullptr;  // set before the device starts
};

/// The system converts to the rate that is asked for: the library's own conversion drops samples.
class SdlInput : public InputDevice {
 public:
  SdlInput(std::shared_ptr<SdlLibrary> library, InputSink& sink)
      : library_(std::move(library)), sink_(sink) {}
  ~SdlInput() override {
    const std::scoped_lock lock(library_->mutex);
    Close();
  }

  bool Open(int rate) {
    const std::scoped_lock lock(library_->mutex);
    if (SDL_WasInit(SDL_INIT_AUDIO) == 0) return false;
    SDL_AudioSpec wanted{};
    wanted.freq = rate;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = 2;
    wanted.samples = kInputFrames;
    wanted.callback = &Take;
    wanted.userdata = this;
    const SDL_AudioDeviceID id = SDL_OpenAudioDevice(nullptr, 1, &wanted, nullptr, 0);
    if (id == 0) return false;
    id_ = id;
    library_->inputs.insert(this);
    SDL_PauseAudioDevice(id, 0);
    return true;
  }

  /// Under the library's mutex.
  void Close() {
    if (const SDL_AudioDeviceID id = id_.exchange(0); id != 0) SDL_CloseAudioDevice(id);
    library_->inputs.erase(this);
  }

  bool Connected() const override {
    const SDL_AudioDeviceID id = id_;
    return id != 0 && SDL_GetAudioDeviceStatus(id) != SDL_AUDIO_STOPPED;
  }

 private:
  static void SDLCALL Take(void* self, Uint8* bytes, int count) {
    auto* input = static_cast<SdlInput*>(self);
    if (!input->Connected()) return;  // a dead device goes on with silence
    const auto* frames = static_cast<const StereoFrame*>(static_cast<const void*>(bytes));
    input->sink_.Take({frames, static_cast<std::size_t>(count) / sizeof(StereoFrame)});
  }

  std::shared_ptr<SdlLibrary> library_;
  InputSink& sink_;
  std::atomic<SDL_AudioDeviceID> id_ = 0;
};

class SdlInputDriver : public InputDriver {
 public:
  explicit SdlInputDriver(std::shared_ptr<SdlLibrary> library) : library_(std::move(library)) {}
  std::unique_ptr<InputDevice> Open(int rate, InputSink& sink) override {
    auto input = std::make_unique<SdlInput>(library_, sink);
    if (!input->Open(rate)) return nullptr;
    return input;
  }

 private:
  std::shared_ptr<SdlLibrary> library_;
};

class SdlDriver : public AudioDriver {
 public:
  explicit SdlDriver(std::shared_ptr<SdlLibrary> library) : library_(std::move(library)) {}

  bool Start() override {
    const std::scoped_lock lock(library_->mutex);
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Quixair");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Program");
    SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, kDrivers, SDL_HINT_NORMAL);
    setenv("PULSE_LATENCY_MSEC", kServerMilliseconds, 0);
    HushSoundCardLibrary();
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    // Nobody fetches them.
    SDL_EventState(SDL_AUDIODEVICEADDED, SDL_IGNORE);
    SDL_EventState(SDL_AUDIODEVICEREMOVED, SDL_IGNORE);
    return true;
  }

  void Stop() override {
    const std::scoped_lock lock(library_->mutex);
    while (!library_->inputs.empty()) (*library_->inputs.begin())->Close();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }

  bool FirstChoice() const override { return DriverName() != "alsa"; }
  bool OneDeviceOnly() const override { return DriverName() == "alsa"; }

  // Asked of the list of devices, which is guarded; the library's answer on the default device is not, and
  // may be freed while it is read.
  bool LeadsNowhere() const override {
    if (SDL_GetNumAudioDevices(0) != 1) return false;
    const char* const name = SDL_GetAudioDeviceName(0, 0);
    // What sound servers call the output that they make up when the last card is gone.
    return name != nullptr && std::string_view(name) == "Dummy Output";
  }

  std::unique_ptr<AudioDevice> Open() override {
    auto device = std::make_unique<SdlDevice>(library_);
    if (!device->Open()) return nullptr;
    return device;
  }

 private:
  static std::string_view DriverName() {
    const char* name = SDL_GetCurrentAudioDriver();
    return name == nullptr ? std::string_view() : std::string_view(name);
  }

  std::shared_ptr<SdlLibrary> library_;
};

}  // namespace

SdlDrivers MakeSdlDrivers() {
  const auto library = std::make_shared<SdlLibrary>();
  return {std::make_unique<SdlDriver>(library), std::make_unique<SdlInputDriver>(library)};
}

}  // namespace quixair::sound
