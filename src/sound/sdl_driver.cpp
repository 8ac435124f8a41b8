#include <SDL.h>
#include <dlfcn.h>

#include <chrono>
#include <cstdlib>
#include <string_view>

#include "sound/audio_driver.h"

namespace quixair::sound {
namespace {

// The library has a driver for the newer kind of server too, but that one falls silent for good when its
// server dies; the server speaks the older protocol as well.
constexpr const char* kDrivers = "pulseaudio,alsa";
// 43 ms. A quarter of it had gaps on an idle machine.
constexpr Uint16 kBufferFrames = 2048;

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

class SdlDevice : public AudioDevice {
 public:
  ~SdlDevice() override {
    if (id_ != 0) SDL_CloseAudioDevice(id_);
  }

  bool Open() {
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

  SDL_AudioDeviceID id_ = 0;
  SDL_AudioSpec granted_{};
  DeviceFeed* feed_ = nullptr;  // set before the device starts
};

class SdlDriver : public AudioDriver {
 public:
  bool Start() override {
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

  void Stop() override { SDL_QuitSubSystem(SDL_INIT_AUDIO); }

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
    auto device = std::make_unique<SdlDevice>();
    if (!device->Open()) return nullptr;
    return device;
  }

 private:
  static std::string_view DriverName() {
    const char* name = SDL_GetCurrentAudioDriver();
    return name == nullptr ? std::string_view() : std::string_view(name);
  }
};

}  // namespace

std::unique_ptr<AudioDriver> MakeSdlDriver() {
  return std::make_unique<SdlDriver>();
}

}  // namespace quixair::sound
