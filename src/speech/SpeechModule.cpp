#include "speech/SpeechModule.h"

#include <dlfcn.h>

#include <filesystem>
#include <iostream>

namespace qves {
namespace {

namespace fs = std::filesystem;

constexpr const char* ModuleName = "libqvescalc-speech.so";

/// No voices: everything stays silent.
class NoSpeech : public TTS {
 public:
  int Count() const override { return 0; }
  TtsEngineInfo Item(int) const override { return {}; }
  std::unique_ptr<TtsEngine> Open(int) override { return nullptr; }
  void SetListener(TtsListener*) override {}
};

using Maker = TTS* (*)(SpeechChoice, EventPump*);

/// The module beside the program, or in the library folder of an installed one.
void* OpenModule() {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  for (const fs::path& path : {folder / ModuleName, folder.parent_path() / "lib" / "qvescalc" / ModuleName})
    if (fs::exists(path, error)) return ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  return nullptr;
}

}  // namespace

std::unique_ptr<TTS> LoadSpeech(SpeechChoice choice, EventPump& pump) {
  if (choice == SpeechChoice::Off) return std::make_unique<NoSpeech>();
  void* module = OpenModule();
  const auto make = module ? reinterpret_cast<Maker>(::dlsym(module, "QvesMakeSpeech")) : nullptr;
  if (make) return std::unique_ptr<TTS>(make(choice, &pump));
  const char* reason = ::dlerror();
  std::cerr << "no speech: " << (reason ? reason : "the speech module is missing") << "\n";
  return std::make_unique<NoSpeech>();
}

}  // namespace qves
