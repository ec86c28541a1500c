#include "speech/speechd/SpeechdBackEnd.h"

#include <poll.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <utility>

#include "speech/LanguageIds.h"
#include "speech/SpeechText.h"

namespace qves {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr auto LongestAnswer = milliseconds(1000);
constexpr auto LongestSecondAnswer = milliseconds(400);  // of a server that has just not answered
constexpr auto LongestStart = milliseconds(4000);
constexpr auto LongestList = seconds(5);
constexpr auto LongestUntilBegin = milliseconds(1500);
constexpr auto AnswerEvery = milliseconds(1000);
constexpr auto LongestUntilEnd = milliseconds(5000);  // and for each byte of the text:
constexpr auto LongestByte = milliseconds(250);
constexpr auto ListAfter = milliseconds(3000);  // the start has the machine for itself
constexpr auto EagerListAfter = milliseconds(1500);
constexpr auto TryAgainAfter = seconds(30);
constexpr std::size_t LongestPiece = 2000;
constexpr int MostTries = 2;  // of a piece, each with a connection of its own

constexpr const char* Preparations[] = {"SET SELF PRIORITY MESSAGE", "SET SELF NOTIFICATION ALL ON"};

constexpr Scale ServerScale = {-100, 100};

constexpr int Begin = 701, End = 702, Canceled = 703;

std::string ClientName() {
  const char* user = std::getenv("USER");
  return std::string("SET SELF CLIENT_NAME ") + (user && *user ? user : "user") + ":qvescalc:main";
}

// A text as the protocol takes it: it ends at a line with nothing but a dot.
std::string Wrapped(const std::string& text) {
  return (text.starts_with('.') ? "." : "") + text + "\r\n.";
}

bool Done(SpeechdConnection& link, const std::string& command, TimePoint deadline) {
  const auto answer = link.Ask(command, deadline);
  return answer && answer->Code / 100 == 2;
}

TimePoint In(SteadyClock::duration time) {
  return SteadyClock::now() + time;
}

// "name<tab>language<tab>variant". A module with variants marks the voices proper, one in a hundred, as being
// none. Others tell something else there.
std::vector<Voice> VoicesOf(const std::string& module, const std::vector<std::string>& lines) {
  const auto isPlain = [](const std::string& line) { return line.ends_with("\tnone"); };
  const bool plainOnly = std::any_of(lines.begin(), lines.end(), isPlain);
  std::vector<Voice> found;
  for (const std::string& line : lines) {
    if (plainOnly && !isPlain(line)) continue;
    const std::string name = line.substr(0, line.find('\t'));
    const std::string rest = line.substr(std::min(name.size() + 1, line.size()));
    found.push_back({{module, module, name, LanguageIdOf(rest.substr(0, rest.find('\t')))}, name, nullptr});
  }
  return found;
}

// The piece that is being spoken.
struct Passage {
  const MarkedText& Piece;
  Playing& Now;
  std::string Message = {};  // the server's number for it
  bool Ended = false;
  TimePoint Deadline = In(LongestUntilBegin);  // for what is to come next

  // Those at the piece's start, or all others.
  void ReachMarks(bool first) const {
    for (const BookMark& mark : Piece.Marks)
      if ((mark.Offset == 0) == first) Now.ReachMark(mark.Number);
  }

  void Take(const SpeechdReply& event) {
    if (event.Lines.empty() || event.Lines[0] != Message) return;
    if (event.Code == Begin) {
      Deadline = In(LongestUntilEnd + LongestByte * Piece.Text.size());
      ReachMarks(true);
    }
    if (event.Code == End) ReachMarks(false);
    Ended = event.Code == End || event.Code == Canceled;
  }
};

// Until the piece is over or stopped. False: the server has failed.
bool Follow(SpeechdConnection& link, Passage& passage) {
  while (true) {
    passage.Now.Changed.Clear();
    for (auto event = link.NextEvent(); event && !passage.Ended; event = link.NextEvent())
      passage.Take(*event);
    if (passage.Ended) return true;
    if (passage.Now.Stopped()) return Done(link, "CANCEL SELF", In(LongestAnswer));
    if (!link.Good() || SteadyClock::now() >= passage.Deadline) return false;
    const TimePoint look = std::min(passage.Deadline, In(AnswerEvery));
    WaitFor({link.Descriptor(), POLLIN, 0}, look, passage.Now.Changed.Descriptor());
    if (SteadyClock::now() >= look && !Done(link, "HISTORY GET CLIENT_ID", In(LongestAnswer))) return false;
  }
}

}  // namespace

SpeechdBackEnd::SpeechdBackEnd(Wake& changed, bool eager)
    : Changed(changed), Eager(eager), ListAt(In(eager ? EagerListAfter : ListAfter)) {
  const int language = LanguageIdOf(DesktopLanguage());
  Known.push_back({{"Speech Dispatcher", "speech-dispatcher", "default", language}, "", this});
}

bool SpeechdBackEnd::Play(Utterance& text, Playing& playing) {
  if (!Eager) ListAt = TimePoint::max();  // the voice that is wanted is found already
  if (!Usable()) return false;
  const Manner manner = MannerOf(text);
  while (!text.Text.empty()) {
    const MarkedText piece = FirstPiece(text, LongestPiece);
    for (int tries = 0; !playing.Stopped(); ++tries) {
      const bool ready = Good() && LinkManner == manner;
      if (tries == MostTries || (!ready && !Connect(manner))) return GiveUp();
      if (PlayPiece(piece, playing)) break;
    }
    DropFront(text, piece.Text.size());
  }
  return true;
}

// False: the server has failed.
bool SpeechdBackEnd::PlayPiece(const MarkedText& piece, Playing& playing) {
  const TimePoint deadline = In(LongestAnswer);
  if (!Done(*Link, "SPEAK", deadline)) return false;
  const auto queued = Link->Ask(Wrapped(piece.Text), deadline);
  if (!queued || queued->Lines.empty()) return false;
  Passage passage{piece, playing, queued->Lines[0]};
  if (Follow(*Link, passage)) return true;
  if (!Good()) return false;
  Link->Ask("CANCEL SELF", SteadyClock::now());  // what has not begun is not to begin later
  Link.reset();
  return false;
}

SpeechdBackEnd::Manner SpeechdBackEnd::MannerOf(const Utterance& text) {
  Manner manner;
  const auto set = [&](const char* name, const std::string& value) {
    manner.push_back(std::string("SET SELF ") + name + " " + value);
  };
  const auto scale = [&](const char* name, int value) { set(name, std::to_string(value)); };
  const VoiceSettings& settings = text.Settings;
  if (!text.Speaking.Key.empty()) set("OUTPUT_MODULE", text.Speaking.Info.Product);
  if (!text.Speaking.Key.empty()) set("SYNTHESIS_VOICE", text.Speaking.Key);
  if (settings.WordsPerMinute != UnsetSpeed) scale("RATE", SpeechdRate(settings.WordsPerMinute));
  if (settings.Volume != UnsetVolume) scale("VOLUME", Scaled(settings.Volume, VolumeScale, ServerScale));
  if (settings.Pitch) scale("PITCH", Scaled(*settings.Pitch, PitchScale, ServerScale));
  return manner;
}

bool SpeechdBackEnd::Connect(const Manner& manner) {
  Tried = true;
  const bool hung = Hangs();
  if (Open(manner, hung ? LongestSecondAnswer : LongestAnswer)) return true;
  if (Hangs()) return false;
  Server.Start(In(LongestStart));
  return Open(manner, LongestAnswer);
}

bool SpeechdBackEnd::Open(const Manner& manner, milliseconds longest) {
  const int socket = Server.Connect();
  if (socket < 0) return false;
  auto link = std::make_unique<SpeechdConnection>(socket);
  const auto done = [&, deadline = In(longest)](const std::string& command) {
    return Done(*link, command, deadline);
  };
  const bool open = done(ClientName()) &&
                    std::all_of(std::begin(Preparations), std::end(Preparations), done) &&
                    std::all_of(manner.begin(), manner.end(), done);
  if (!open && !link->Hangs()) return false;
  Link = std::move(link);
  LinkManner = manner;
  DownUntil = {};
  return open;
}

bool SpeechdBackEnd::GiveUp() {
  DownUntil = Hangs() ? TimePoint::max() : In(TryAgainAfter);
  return false;
}

bool SpeechdBackEnd::Usable() {
  if (Hangs() && Link->HasAnswered()) {
    Link.reset();
    DownUntil = {};
  }
  return SteadyClock::now() >= DownUntil;
}

TimePoint SpeechdBackEnd::Rest() {
  if (Eager && !Tried) Connect({});
  if (SteadyClock::now() < ListAt) return ListAt;
  ListAt = ListVoices() ? TimePoint::max() : In(ListAfter);
  return ListAt;
}

// False: a text has come, which goes first, or the server has failed.
bool SpeechdBackEnd::ListVoices() {
  const int socket = Server.Connect();
  if (socket < 0) return true;
  SpeechdConnection connection(socket);
  const auto ask = [&, deadline = In(LongestList)](const std::string& command) {
    const auto answer = connection.Ask(command, deadline, Changed.Descriptor());
    return answer ? answer->Lines : std::vector<std::string>();
  };
  ask(ClientName());
  std::vector<Voice> found;
  for (const std::string& module : ask("LIST OUTPUT_MODULES")) {
    ask("SET SELF OUTPUT_MODULE " + module);
    for (Voice& voice : VoicesOf(module, ask("LIST SYNTHESIS_VOICES"))) {
      voice.Owner = this;
      found.push_back(std::move(voice));
    }
  }
  if (!connection.Good()) return false;
  std::move(found.begin(), found.end(), std::back_inserter(Known));
  return true;
}

}  // namespace qves
