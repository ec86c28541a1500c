// The back end that speaks through the desktop's speech-dispatcher server.
#pragma once

#include <chrono>
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
  const std::vector<Voice>& Voices() override { return Known; }
  bool Play(Utterance& text, Playing& playing) override;
  TimePoint Rest() override;

 private:
  /// The commands that tell a connection what to speak like. What none of them sets is as the user has it in
  /// the server's own settings; as a setting cannot be unset, another manner needs another connection.
  using Manner = std::vector<std::string>;
  static Manner MannerOf(const Utterance& text);

  bool PlayPiece(const MarkedText& piece, Playing& playing);
  bool Good() const { return Link && Link->Good(); }
  bool Hangs() const { return Link && Link->Hangs(); }
  bool Connect(const Manner& manner);
  bool Open(const Manner& manner, std::chrono::milliseconds longest);
  bool GiveUp();
  bool Usable();
  bool ListVoices();

  Wake& Changed;
  bool Eager;
  SpeechdServer Server;
  std::vector<Voice> Known;
  TimePoint ListAt;
  bool Tried = false;  // to connect
  std::unique_ptr<SpeechdConnection>
      Link;  // one that owes an answer is kept: when that comes, the server is back
  Manner LinkManner;
  TimePoint DownUntil;
};

}  // namespace qves
