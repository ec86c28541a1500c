#include "speech/speechd/SpeechdPlayer.h"

#include <charconv>
#include <utility>

#include "speech/SpeechScales.h"

namespace qves {
namespace {

using std::chrono::milliseconds;

constexpr auto LongestCall = milliseconds(1000);
constexpr auto LongestSpawn = milliseconds(4000);
constexpr auto LongestUntilBegin = milliseconds(1500);
constexpr auto AnswerEvery = milliseconds(1000);
constexpr auto ListingAllowance = milliseconds(4000);  // a server that lists its voices is slow
constexpr auto LongestUntilEnd = milliseconds(5000);   // and for each byte of the text:
constexpr auto LongestByte = milliseconds(250);
constexpr std::size_t LongestPiece = 2000;
constexpr int MostFailures = 2;  // the second one after reconnecting

std::optional<int> Differing(std::optional<int> value, int unset, int (*scale)(int)) {
  return value && *value != unset ? std::optional<int>(scale(*value)) : std::nullopt;
}

// Makes the settings of the connection that differ from the wanted ones the wanted ones.
int SetManner(SPDConnection& connection, const SpeechdManner& is, const SpeechdManner& wanted) {
  int result = 0;
  const auto set = [&](bool differs, auto call) {
    if (differs && result >= 0) result = call();
  };
  set(wanted.Module != is.Module, [&] { return spd_set_output_module(&connection, wanted.Module.c_str()); });
  set(wanted.VoiceName != is.VoiceName,
      [&] { return spd_set_synthesis_voice(&connection, wanted.VoiceName.c_str()); });
  set(wanted.Rate != is.Rate, [&] { return spd_set_voice_rate(&connection, *wanted.Rate); });
  set(wanted.Volume != is.Volume, [&] { return spd_set_volume(&connection, *wanted.Volume); });
  set(wanted.Pitch != is.Pitch, [&] { return spd_set_voice_pitch(&connection, *wanted.Pitch); });
  set(wanted.Markup != is.Markup,
      [&] { return spd_set_data_mode(&connection, wanted.Markup ? SPD_DATA_SSML : SPD_DATA_TEXT); });
  return result;
}

}  // namespace

bool SpeechdManner::CanBecome(const SpeechdManner& wanted) const {
  const auto settable = [](const auto& is, const auto& want) { return !is || want; };
  return (VoiceName.empty() || !wanted.VoiceName.empty()) && settable(Rate, wanted.Rate) &&
         settable(Volume, wanted.Volume) && settable(Pitch, wanted.Pitch);
}

SpeechdManner MannerOf(const Utterance& text, int backEnd) {
  SpeechdManner manner;
  if (text.Speaking->BackEnd == backEnd) {
    SpeechdVoiceKey key = UnpackKey(text.Speaking->Key);
    manner.Module = std::move(key.Module);
    manner.VoiceName = std::move(key.Name);
  }
  const VoiceSettings& settings = text.Settings;
  manner.Rate = Differing(settings.WordsPerMinute, UnsetSpeed, SpeechdRate);
  manner.Volume = Differing(settings.Volume, UnsetVolume, SpeechdVolume);
  if (settings.Pitch) manner.Pitch = FromFraction(*settings.Pitch, -100, 100);
  return manner;
}

// The piece that is being spoken.
struct SpeechdPlayer::Passage {
  const Utterance& Text;
  PlayControl& Control;
  TextPiece* Piece = nullptr;
  SpeechdManner Manner;
  std::shared_ptr<std::atomic<int>> Message;  // the server's number for it
  bool Begun = false;
  bool Ended = false;
  SteadyClock::time_point Deadline;    // for what is to come next
  SteadyClock::time_point NextAnswer;  // when to look whether the server still answers

  void ReachFirstMarks() {
    for (const std::int32_t number : std::exchange(Piece->FirstMarks, {})) Text.Ticket.ReachMark(number);
  }

  // The marks up to the given one, or all: none is left out when the server has lost one.
  void ReachMarks(std::optional<std::int32_t> last) {
    auto& marks = Piece->InnerMarks;
    auto end = marks.begin();
    while (end != marks.end() && end->Number != last) ++end;
    if (end != marks.end()) ++end;
    for (auto at = marks.begin(); at != end; ++at) Text.Ticket.ReachMark(at->Number);
    marks.erase(marks.begin(), end);
  }

  void Take(const SpeechdEvent& event);
};

void SpeechdPlayer::Passage::Take(const SpeechdEvent& event) {
  if (int(event.Message) != *Message) return;
  if (event.Type == SPD_EVENT_BEGIN) {
    Begun = true;
    Deadline = SteadyClock::now() + LongestUntilEnd + LongestByte * Piece->Text.size();
    ReachFirstMarks();
  } else if (event.Type == SPD_EVENT_INDEX_MARK) {
    std::int32_t number = 0;
    const char* end = event.Mark.data() + event.Mark.size();
    const auto parsed = std::from_chars(event.Mark.data(), end, number);
    if (parsed.ec == std::errc() && parsed.ptr == end) ReachMarks(number);
  } else if (event.Type == SPD_EVENT_END || event.Type == SPD_EVENT_CANCEL) {
    Ended = true;
    if (event.Type == SPD_EVENT_END) ReachMarks(std::nullopt);
  }
}

SpeechdPlayer::SpeechdPlayer(int backEnd, bool eager, std::shared_ptr<SpeechdHealth> health,
                             std::shared_ptr<SpeechdVoiceList> voices)
    : BackEnd(backEnd), Eager(eager), Health(std::move(health)), Voices(std::move(voices)) {}

void SpeechdPlayer::Start(Signal& wake) {
  if (Eager) Connect(wake);
}

bool SpeechdPlayer::Play(const Utterance& text, PlayControl& control) {
  std::vector<TextPiece> pieces = CutText(text.Text, text.Marks, LongestPiece);
  Passage passage{text, control, {}, {}, {}, {}, {}, {}, {}};
  for (TextPiece& piece : pieces) {
    passage.Piece = &piece;
    while (!control.Interrupted() && !PlayPiece(passage)) {
      Link.reset();
      if (++Failures < MostFailures) continue;
      Failures = 0;
      return false;
    }
    control.Spoken += piece.Text.size();
  }
  return true;
}

// False: the link is of no more use.
bool SpeechdPlayer::PlayPiece(Passage& passage) {
  passage.Manner = MannerOf(passage.Text, BackEnd);
  passage.Manner.Markup = !passage.Piece->InnerMarks.empty();
  if (Link && !Manner.CanBecome(passage.Manner)) Link.reset();
  if (!Link && !Connect(passage.Control.Wake)) return false;
  if (!Say(passage) || !Follow(passage)) return false;
  if (passage.Control.Interrupted()) return passage.Ended || Cancel();
  Failures = 0;
  return true;
}

bool SpeechdPlayer::Connect(Signal& wake) {
  Manner = {};
  SpeechdLink::Result result = TryOpen(false, LongestCall, wake);
  if (result == SpeechdLink::Result::Refused) result = TryOpen(true, LongestSpawn, wake);
  if (result != SpeechdLink::Result::Done) Link.reset();
  return result == SpeechdLink::Result::Done;
}

SpeechdLink::Result SpeechdPlayer::TryOpen(bool spawn, milliseconds longest, Signal& wake) {
  Link = std::make_unique<SpeechdLink>([known = Health] { known->DownUntil = 0; });
  const SpeechdLink::Result result = Link->Open(spawn, longest, wake);
  Health->Hung = result == SpeechdLink::Result::NoAnswer;
  return result;
}

bool SpeechdPlayer::Say(Passage& passage) {
  const TextPiece& piece = *passage.Piece;
  const std::string text = passage.Manner.Markup ? SsmlOf(piece.Text, piece.InnerMarks) : piece.Text;
  passage.Message = std::make_shared<std::atomic<int>>(-1);
  passage.Begun = passage.Ended = false;
  const auto say = [is = Manner, wanted = passage.Manner, text,
                    message = passage.Message](SPDConnection& connection) {
    if (SetManner(connection, is, wanted) < 0) return -1;
    return *message = spd_say(&connection, SPD_MESSAGE, text.c_str());
  };
  if (!Do(say)) return false;
  Manner = passage.Manner;
  passage.Deadline = SteadyClock::now() + LongestUntilBegin;
  if (Voices->Listing()) passage.Deadline += ListingAllowance;
  passage.NextAnswer = SteadyClock::now() + AnswerEvery;
  return true;
}

// False: the server has failed.
bool SpeechdPlayer::Follow(Passage& passage) {
  while (!passage.Control.Interrupted()) {
    const std::uint64_t seen = passage.Control.Wake.Count();
    if (FollowEvents(passage)) return true;
    if (SteadyClock::now() >= passage.Deadline || !StillAnswers(passage)) return false;
    passage.Control.Wake.Wait(seen, std::min(passage.Deadline, passage.NextAnswer));
  }
  return true;
}

// True: the piece is over.
bool SpeechdPlayer::FollowEvents(Passage& passage) {
  while (const auto event = Link->NextEvent()) passage.Take(*event);
  return passage.Ended;
}

// A server that has died tells nothing: it has to be asked.
bool SpeechdPlayer::StillAnswers(Passage& passage) {
  if (SteadyClock::now() < passage.NextAnswer) return true;
  passage.NextAnswer = SteadyClock::now() + AnswerEvery;
  return Do([](SPDConnection& connection) { return spd_execute_command(&connection, AskClientNumber); });
}

bool SpeechdPlayer::Cancel() {
  return Do([](SPDConnection& connection) { return spd_cancel(&connection); });
}

bool SpeechdPlayer::Do(SpeechdLink::Call call) {
  const auto longest = Voices->Listing() ? LongestCall + ListingAllowance : LongestCall;
  const SpeechdLink::Result result = Link->Do(std::move(call), longest);
  Health->Hung = result == SpeechdLink::Result::NoAnswer;
  return result == SpeechdLink::Result::Done;
}

}  // namespace qves
