#include "speech/speechd/SpeechdBackEnd.h"

#include <poll.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <optional>
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
constexpr auto TryHungAgainAfter = seconds(600);  // or as soon as it answers
constexpr std::size_t LongestPiece = 2000;
constexpr int MostFailures = 2;  // the second one after reconnecting

constexpr const char* Preparations[] = {"SET SELF PRIORITY MESSAGE", "SET SELF NOTIFICATION BEGIN ON",
                                        "SET SELF NOTIFICATION END ON", "SET SELF NOTIFICATION CANCEL ON",
                                        "SET SELF NOTIFICATION INDEX_MARKS ON"};

constexpr int IndexMark = 700, Begin = 701, End = 702, Canceled = 703;

std::string ClientName(const char* part) {
  const char* user = std::getenv("USER");
  return std::string("SET SELF CLIENT_NAME ") + (user && *user ? user : "user") + ":qvescalc:" + part;
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

}  // namespace

// The piece that is being spoken.
struct SpeechdBackEnd::Passage {
  const Utterance& Text;
  Playing& Now;
  TextPiece* Piece = nullptr;
  std::string Message = {};  // the server's number for it
  bool Ended = false;
  TimePoint Deadline = {};    // for what is to come next
  TimePoint NextAnswer = {};  // when to look whether the server still answers

  // The marks up to the given one, or all: none is left out when the server has lost one.
  void ReachMarks(const std::string* last) {
    auto& marks = Piece->InnerMarks;
    auto end = marks.begin();
    while (end != marks.end() && !(last && std::to_string(end->Number) == *last)) ++end;
    if (end != marks.end()) ++end;
    for (auto at = marks.begin(); at != end; ++at) Now.ReachMark(at->Number);
    marks.erase(marks.begin(), end);
  }

  void Take(const SpeechdReply& event) {
    if (event.Lines.empty() || event.Lines[0] != Message) return;
    if (event.Code == Begin) {
      Deadline = SteadyClock::now() + LongestUntilEnd + LongestByte * Piece->Text.size();
      for (const std::int32_t number : std::exchange(Piece->FirstMarks, {})) Now.ReachMark(number);
    }
    if (event.Code == IndexMark && event.Lines.size() > 2) ReachMarks(&event.Lines[2]);
    if (event.Code == End) ReachMarks(nullptr);
    Ended = Ended || event.Code == End || event.Code == Canceled;
  }
};

SpeechdBackEnd::SpeechdBackEnd(Wake& changed, bool eager)
    : Changed(changed), Eager(eager), ListAt(SteadyClock::now() + (eager ? EagerListAfter : ListAfter)) {
  const int language = LanguageIdOf(DesktopLanguage());
  Known.push_back({{"Speech Dispatcher", "speech-dispatcher", "default", language}, "", this});
}

const std::vector<Voice>& SpeechdBackEnd::Voices() {
  return Known;
}

bool SpeechdBackEnd::Play(const Utterance& text, Playing& playing) {
  if (!Eager) ListAt = TimePoint::max();  // the voice that is wanted is found already
  if (!Usable()) return false;
  Passage passage{text, playing};
  for (TextPiece& piece : CutText(text.Text, text.Marks, LongestPiece)) {
    passage.Piece = &piece;
    while (!playing.Stopped() && !PlayPiece(passage)) {
      DropLink();
      if (++Failures < MostFailures) continue;
      GiveUp();
      return false;
    }
    playing.Spoken += piece.Text.size();
  }
  return true;
}

// False: the server has failed.
bool SpeechdBackEnd::PlayPiece(Passage& passage) {
  if (!Say(passage) || !Follow(passage)) return false;
  if (passage.Now.Stopped()) return passage.Ended || Do("CANCEL SELF", SteadyClock::now() + LongestAnswer);
  Failures = 0;
  return true;
}

bool SpeechdBackEnd::Say(Passage& passage) {
  const TextPiece& piece = *passage.Piece;
  const bool markup = !piece.InnerMarks.empty();
  const Manner wanted = MannerOf(passage.Text, markup);
  // A connection's settings can be changed but not unset.
  const auto unset = [&](const auto& setting) { return !wanted.contains(setting.first); };
  if (std::any_of(LinkManner.begin(), LinkManner.end(), unset)) Link.reset();
  if (!Link && !Connect()) return false;
  const TimePoint deadline = SteadyClock::now() + LongestAnswer;
  for (const auto& [name, value] : wanted) {
    if (LinkManner[name] != value && !Do("SET SELF " + name + " " + value, deadline)) return false;
    LinkManner[name] = value;
  }
  if (!Do("SPEAK", deadline)) return false;
  const std::string text = markup ? SsmlOf(piece.Text, piece.InnerMarks) : piece.Text;
  const auto queued = Link->Ask(SpeechdText(text), deadline);
  if (!queued || queued->Lines.empty()) return false;
  passage.Message = queued->Lines[0];
  passage.Ended = false;
  passage.Deadline = SteadyClock::now() + LongestUntilBegin;
  passage.NextAnswer = SteadyClock::now() + AnswerEvery;
  return true;
}

SpeechdBackEnd::Manner SpeechdBackEnd::MannerOf(const Utterance& text, bool markup) const {
  Manner manner{{"SSML_MODE", markup ? "on" : "off"}};
  if (text.Speaking.Owner == this && !text.Speaking.Key.empty()) {
    manner["OUTPUT_MODULE"] = text.Speaking.Info.Product;
    manner["SYNTHESIS_VOICE"] = text.Speaking.Key;
  }
  const VoiceSettings& settings = text.Settings;
  const auto set = [&](const char* name, int value) { manner[name] = std::to_string(value); };
  if (settings.WordsPerMinute != UnsetSpeed) set("RATE", SpeechdRate(settings.WordsPerMinute));
  if (settings.Volume != UnsetVolume) set("VOLUME", SpeechdVolume(settings.Volume));
  if (settings.Pitch) set("PITCH", SpeechdPitch(*settings.Pitch));
  return manner;
}

// Until the piece is over or stopped. False: the server has failed.
bool SpeechdBackEnd::Follow(Passage& passage) {
  while (true) {
    Changed.Clear();
    while (const auto event = Link->NextEvent()) passage.Take(*event);
    if (passage.Ended || passage.Now.Stopped()) return true;
    if (Link->Lost() || SteadyClock::now() >= passage.Deadline || !StillAnswers(passage)) return false;
    Changed.Wait(std::min(passage.Deadline, passage.NextAnswer), Link->Descriptor(), POLLIN);
  }
}

bool SpeechdBackEnd::StillAnswers(Passage& passage) {
  if (SteadyClock::now() < passage.NextAnswer) return true;
  passage.NextAnswer = SteadyClock::now() + AnswerEvery;
  return Do("HISTORY GET CLIENT_ID", SteadyClock::now() + LongestAnswer);
}

bool SpeechdBackEnd::Connect() {
  Tried = true;
  if (Open(Hanging ? LongestSecondAnswer : LongestAnswer)) return true;
  if (Hanging) return false;
  Server.Start(SteadyClock::now() + LongestStart);
  return Open(LongestAnswer);
}

bool SpeechdBackEnd::Open(milliseconds longest) {
  const int socket = Server.Connect();
  if (socket < 0) return false;
  Link = std::make_unique<SpeechdConnection>(socket);
  LinkManner.clear();
  const auto done = [&, deadline = SteadyClock::now() + longest](const std::string& command) {
    return Do(command, deadline);
  };
  if (done(ClientName("main")) && std::all_of(std::begin(Preparations), std::end(Preparations), done)) {
    Hanging.reset();
    DownUntil = {};
    return true;
  }
  DropLink();
  return false;
}

bool SpeechdBackEnd::Do(const std::string& command, TimePoint deadline) {
  const auto answer = Link->Ask(command, deadline);
  return answer && answer->Code / 100 == 2;
}

void SpeechdBackEnd::DropLink() {
  if (!Link || Link->Lost()) {
    Link.reset();
  } else if (Link->Hangs()) {
    Hanging = std::move(Link);
  } else {
    Do("CANCEL SELF", SteadyClock::now());  // what has not begun is not to begin later
    Link.reset();
  }
}

void SpeechdBackEnd::GiveUp() {
  Failures = 0;
  DownUntil = SteadyClock::now() + (Hanging ? TryHungAgainAfter : seconds(TryAgainAfter));
}

bool SpeechdBackEnd::Usable() {
  if (Hanging && Hanging->HasAnswered()) {
    Hanging.reset();
    DownUntil = {};
  }
  return SteadyClock::now() >= DownUntil;
}

TimePoint SpeechdBackEnd::Rest() {
  if (Eager && !Tried) Connect();
  if (SteadyClock::now() < ListAt) return ListAt;
  ListAt = ListVoices() ? TimePoint::max() : SteadyClock::now() + ListAfter;
  return ListAt;
}

// False: a text has come, which goes first, or the server hangs.
bool SpeechdBackEnd::ListVoices() {
  const int socket = Eager || Server.Runs() ? Server.Connect() : -1;
  if (socket < 0) return true;
  SpeechdConnection connection(socket);
  const auto ask = [&, deadline = SteadyClock::now() + LongestList](const std::string& command) {
    const auto answer = connection.Ask(command, deadline, &Changed);
    return answer ? answer->Lines : std::vector<std::string>();
  };
  ask(ClientName("voices"));
  std::vector<Voice> found;
  for (const std::string& module : ask("LIST OUTPUT_MODULES")) {
    ask("SET SELF OUTPUT_MODULE " + module);
    for (Voice& voice : VoicesOf(module, ask("LIST SYNTHESIS_VOICES"))) {
      voice.Owner = this;
      found.push_back(std::move(voice));
    }
  }
  if (connection.Hangs()) return false;
  std::move(found.begin(), found.end(), std::back_inserter(Known));
  return true;
}

}  // namespace qves
