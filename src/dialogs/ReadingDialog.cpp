#include "dialogs/ReadingDialog.h"

#include <utility>

#include "dialogs/RichText.h"
#include "model/CaretKeys.h"
#include "services/MessageIds.h"
#include "text/Text.h"

namespace qves {
namespace {

ControlSpec MakeReaderSpec(const ReadingDialogSpec& spec) {
  return {.Name = spec.ReaderName,
          .Kind = ControlKind::Reader,
          .NameMessage = spec.TitleMessage,
          .HelpMessage = spec.HelpMessage};
}

ControlSpec MakeOkSpec() {
  return {.Name = "lcbOK",
          .CaptionMessage = OkMessage,
          .HelpMessage = OkHelpMessage,
          .Cell = {1, 0, 0},
          .Traits = DefaultButton | CancelButton};
}

}  // namespace

ReadingDialog::ReadingDialog(const ReadingDialogSpec& spec, RichText document, Services& services,
                             DialogFrame& frame)
    : Form(std::string(spec.FormName), services.Messages.GetMessage(spec.TitleMessage)),
      IsReport(spec.IsReport),
      ReaderSpec(MakeReaderSpec(spec)),
      OkSpec(MakeOkSpec()),
      Common(services),
      Frame(frame) {
  const MessageStore& messages = services.Messages;
  const std::string& ok = messages.GetMessage(OkMessage);
  Document = static_cast<Reader*>(&Add(std::make_unique<Reader>(
      ReaderSpec, "", messages.GetMessage(spec.TitleMessage), messages.GetMessage(spec.HelpMessage))));
  Add(std::make_unique<Button>(OkSpec, ok, ReplaceAll(ok, "&", ""), messages.GetMessage(OkHelpMessage)));
  Document->Document = std::move(document);
  Document->Text = PlainText(Document->Document);
  Sentences = FindSentences(Document->Text);
}

void ReadingDialog::Form_Load() {
  if (!Common.Settings.DontSpeak) Common.Speech.AttachSpeakingControls(*this, Common.Verbosity);
  PlaceFocus(*Document);
  const bool introduces = IsReport && Common.Settings.Detail == FullSpeech;
  if (introduces)
    Common.Speech.SpeakText(Document->HelpText);
  else if (Sentences.empty())
    OnGotFocus(*Document);  // without it nothing at all would be heard
  ReadOn(introduces);
}

void ReadingDialog::Form_Unload() {
  Frame.SetReadingTarget(nullptr);
  Common.Speech.StopSpeech();
  Common.Speech.DetachSpeakingControls(*this);
}

/// From the sentence where the reading stopped; a document that has been read to its end begins anew.
void ReadingDialog::ReadOn(bool queued) {
  if (Sentences.empty() || Document->Speaking.Quiescent || !Common.Speech.IsAloud()) return;
  if (Sentence >= Sentences.size()) Sentence = 0;
  Frame.SetReadingTarget(this);
  Reading = true;
  const std::size_t start = Sentences[Sentence].Start;
  std::vector<BookMark> marks;
  for (std::size_t i = Sentence + 1; i < Sentences.size(); ++i)
    marks.push_back({Sentences[i].Start - start, static_cast<std::int32_t>(i)});
  HeardAll = false;
  marks.push_back({Document->Text.size() - start, static_cast<std::int32_t>(Sentences.size())});
  ShowSentence();
  Common.Speech.ReadAloud(std::string_view(Document->Text).substr(start), marks, queued, Numbers());
}

void ReadingDialog::ShowSentence() {
  Document->SpokenStart = Document->Caret = Sentences[Sentence].Start;
  Document->SpokenLength = Sentences[Sentence].Length;
  ReaderMoved(*Document);
}

bool ReadingDialog::StopReading() {
  if (!std::exchange(Reading, false)) return false;
  Common.Speech.StopSpeech();
  return true;
}

/// A mark of a reading that has been stopped may still be on its way: it moves nothing. The last mark stands
/// behind the text.
void ReadingDialog::NotifyBookMark(int bookMark, TtsSpeaker&) {
  const auto sentence = static_cast<std::size_t>(bookMark);
  HeardAll = sentence == Sentences.size();
  if (!Reading || bookMark < 0 || sentence >= Sentences.size() || sentence <= Sentence) return;
  Sentence = sentence;
  ShowSentence();
}

/// A voice that has failed stops before the end: the reading goes on from there when it is back.
void ReadingDialog::NotifySpeechStopped(TtsSpeaker&) {
  if (!Reading) return;
  Frame.SetReadingTarget(nullptr);
  Reading = false;
  if (HeardAll) Sentence = Sentences.size();
  Document->SpokenLength = 0;
  ReaderMoved(*Document);
}

void ReadingDialog::OnClick(Control& control) {
  if (&control != Document) Frame.CloseDialog(*this);
}

void ReadingDialog::OnGotFocus(Control& control) {
  if (control.Speaking.Quiescent) return;
  Reading = false;  // its words silence the reading
  Common.Speech.SpeakText(control.SpokenName);
}

KeyUse ReadingDialog::OnControlKey(Control& control, const KeyEvent& event) {
  const bool isReader = &control == Document;
  const bool stopped = isReader && StopReading();  // as any key does
  if (event.Code == KeyF1 || event.Code == KeyF7) {
    Common.Speech.SpeakText(event.Code == KeyF1 ? control.HelpText : control.SpokenName, Prose);
    return KeyUse::Used;
  }
  if (isReader && ReaderKey(event)) return KeyUse::Used;
  return stopped ? KeyUse::PassedOn : KeyUse::Unused;
}

bool ReadingDialog::ReaderKey(const KeyEvent& event) {
  if (event.Code == KeyF5) {
    ReadOn(false);
    return true;
  }
  return !Document->Text.empty() && MoveCaret(event);
}

/// The highlight goes: nothing is being read, and the eye is to be led to the caret.
bool ReadingDialog::MoveCaret(const KeyEvent& event) {
  const auto move = MoveByKey(Document->Text, Document->Caret, event);
  if (!move) return false;
  Document->Caret = move->Caret;
  Document->SpokenLength = 0;
  ReaderMoved(*Document);
  if (move->IsCharacter)
    Common.Speech.SpeakText(Common.Speech.SpeakableChar(move->Said));
  else
    Common.Speech.SpeakText(move->Said, {0, 0, Numbers()});
  return true;
}

}  // namespace qves
