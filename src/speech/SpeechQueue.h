// The one queue of texts, and the thread that plays them one after another.
#pragma once

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "platform/Outside.h"
#include "platform/TTS.h"
#include "speech/SpeechBackEnd.h"

namespace qves {

/// What a speaker and its texts have in common. Used on the calculator's thread only.
struct SpeakerRecord {
  TtsSpeaker* Speaker = nullptr;  ///< null once it is gone
  std::uint64_t Silenced = 0;     ///< how often: marks of before are not reported any more
};

/// Which voice an engine has. Used on the queue's thread only.
struct EngineVoice {
  TtsChooser Choose;
  std::optional<Voice> Chosen = {};
  std::size_t Among = 0;  ///< how many voices there were to choose from
};

struct QueuedText {
  Utterance What;
  std::shared_ptr<EngineVoice> Engine;
  std::shared_ptr<SpeakerRecord> Speaker;
  bool Interrupts = false;     ///< what its speaker says or has waiting
  std::uint64_t Silenced = 0;  ///< how often its speaker had been, when it came
};

class SpeechQueue : public std::enable_shared_from_this<SpeechQueue> {
 public:
  explicit SpeechQueue(EventPump& pump) : Pump(&pump) {}

  /// Before Run: first those that are listed, in order of preference, then those that only stand in for them.
  void Add(std::unique_ptr<SpeechBackEnd> backEnd, bool listed);

  /// What follows is called on the calculator's thread and returns at once.
  /// Behind all other texts or, when it interrupts, in place of its speaker's.
  void Speak(QueuedText text);
  void Silence(const std::shared_ptr<SpeakerRecord>& speaker);
  bool Busy(const SpeakerRecord& speaker) const;
  std::vector<TtsEngineInfo> Engines() const;
  /// Null: nobody listens. What is still on its way is dropped.
  void SetListener(TtsListener* listener);
  /// Ends Run soon. Nothing is reported or spoken any more, and the pump is not used.
  void Close();

  /// The thread: returns after Close, with the back ends destroyed.
  void Run();
  /// What back ends are to wait with.
  Wake& Changed() { return Woken; }

 private:
  std::optional<QueuedText> Next();
  void Finish(const QueuedText& text);
  void Play(QueuedText& text);
  void Choose(EngineVoice& engine) const;
  std::vector<SpeechBackEnd*> InOrder(const Voice& voice) const;
  void ListVoices();
  TimePoint Rest();
  bool Drop(const SpeakerRecord& speaker);
  bool BusyNow(const SpeakerRecord& speaker) const;
  void Report(std::function<void(TtsListener&)> event);
  void ReportStopped(const std::shared_ptr<SpeakerRecord>& speaker);
  void ReportMark(const QueuedText& text, std::int32_t number);

  /// Its events reach the listener on the calculator's thread, which alone reads and writes it.
  struct Ear {
    TtsListener* Listener;
  };

  EventPump* Pump;
  Wake Woken;
  std::vector<std::unique_ptr<SpeechBackEnd>> BackEnds;  // of the thread, once it runs
  std::size_t Listed = 0;                                // how many of them
  std::atomic<bool> Closed = false;
  std::atomic<bool> StopCurrent = false;

  mutable std::mutex Mutex;  // of what follows
  std::deque<QueuedText> Texts;
  const SpeakerRecord* Current = nullptr;  // whose text is being played
  std::vector<Voice> Voices;               // changed by the thread only
  std::shared_ptr<Ear> CurrentEar;         // null: nobody listens, or the queue is closed
};

}  // namespace qves
