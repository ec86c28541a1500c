// The back end that speaks through the desktop's speech-dispatcher server.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "speech/SpeechBackEnd.h"
#include "speech/speechd/SpeechdConnection.h"
#include "speech/speechd/SpeechdServer.h"

namespace qves {

class SpeechdBackEnd : public SpeechBackEnd {
 public:
  /// `eager`: connects at once and starts a server when none runs. Otherwise a server is started with the
  /// first text only, and only the voices of one that runs already are listed.
  SpeechdBackEnd(Wake& changed, bool eager);
  const std::vector<Voice>& Voices() override;
  bool Play(const Utterance& text, Playing& playing) override;
  TimePoint Rest() override;

 private:
  /// What a connection has been told to speak like, by the server's names; what is not in it is as the user
  /// has it in the server's own settings.
  using Manner = std::map<std::string, std::string>;
  struct Passage;

  Manner MannerOf(const Utterance& text, bool markup) const;
  bool PlayPiece(Passage& passage);
  bool Say(Passage& passage);
  bool Follow(Passage& passage);
  bool StillAnswers(Passage& passage);
  bool Connect();
  bool Open(std::chrono::milliseconds longest);
  bool Do(const std::string& command, TimePoint deadline);
  bool Usable();
  void DropLink();
  void GiveUp();
  bool ListVoices();

  Wake& Changed;
  bool Eager;
  SpeechdServer Server;
  std::vector<Voice> Known;
  TimePoint ListAt;
  bool Tried = false;  // to connect
  std::unique_ptr<SpeechdConnection> Link;
  Manner LinkManner;
  std::unique_ptr<SpeechdConnection> Hanging;  // owes an answer: when that comes, the server is back
  int Failures = 0;                            // since a text was spoken to its end
  TimePoint DownUntil;
};

}  // namespace qves
