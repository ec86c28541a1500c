// What every view is: a form made from tables, an engine behind it, and the rules of focus, help and keys.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <string_view>

#include "engine/Announcer.h"
#include "engine/EntryEngine.h"
#include "model/Form.h"
#include "model/KeyMap.h"
#include "services/Services.h"
#include "views/ClickHandlers.h"
#include "views/MenuIds.h"
#include "views/Telling.h"
#include "views/ViewFrame.h"

namespace qves {

/// The tables of one view.
struct ViewTables {
  std::string_view FormName;
  std::span<const ControlSpec> Controls;
  std::span<const PanelSpec> Panels = {};
  std::span<const KeyRow> KeyMap = {};
  std::span<const MenuSpec> Menus = MenuTable;
  std::span<const ClickRow> Clicks = {};  ///< of the controls that this view has alone
  std::string_view RestingControl = {};   ///< where the focus goes, without a word, after a key has acted
};

class View : public Form, protected EngineHost {
 public:
  View(const ViewTables& tables, Services& services, ViewFrame& frame);

  void Form_Load() override;
  void Form_Unload() override;
  void NotifyKeyDown(bool& handled, const KeyEvent& event) override;
  bool DescribeKey(const KeyEvent& event) override;
  void Form_KeyUp(int keyCode) override;
  void Returned() override;

 protected:
  /// The view's engine; each view gives its own once, in its constructor.
  void UseEngine(std::unique_ptr<EntryEngine> engine) { Engine = std::move(engine); }

  // EngineHost
  void ShowDisplay(std::string_view text) override { SetText(*Display, text); }
  void ExtendDisplay(std::string_view text) override { AppendText(*Display, text); }
  void ShowMemory(std::string_view indicator) override {
    if (MemoryBox) SetText(*MemoryBox, indicator);
  }
  void Record(FinishedCalculation calculation) override;

  /// What is chosen on the form: check boxes and lists of options; and the points chosen in lists of data.
  struct Choices {
    std::array<int, 4> Options{};
    std::array<int, 2> Points{};
  };
  Choices TakeChoices() const;
  void PutChoices(const Choices& choices);
  /// Something has been done: a step of that name, where it has changed the calculation.
  virtual void NoteStep(const std::string& /*name*/) {}
  /// Takes a step back, or does it again: its name; null where there is none.
  virtual const std::string* UndoStep() { return nullptr; }
  virtual const std::string* RedoStep() { return nullptr; }
  /// Shows all of a calculation that has been put back.
  virtual void ShowCalculation() {
    Engine->ShowAll();
    ShowOpenLine();
  }

  // WhereAmI.cpp
  /// Shows which calculations are open; after whatever may have changed them.
  void ShowOpenLine();
  /// Tells the modes that are not as they start.
  virtual void AddModes(Telling& telling) const;
  /// What is chosen in the lists of options: everything, or what is not as it starts.
  enum class ChoicesTold { All, Changed };
  void AddChoices(Telling& telling, ChoicesTold which) const;
  void AddChecked(Telling& telling) const;
  /// Everything that the view holds.
  virtual Telling ReadBack() const;

  const std::string& ViewName() const { return Message(Frame.Identity().NameMessage); }
  const std::string& Message(int id) const { return Common.Messages.GetMessage(id); }

  /// The user has chosen another item; it has been spoken.
  virtual void OnNewChoice(ListControl&) {}
  /// What a control says of itself.
  virtual Wording Announcement(const Control& control);
  /// What is spoken of a list's chosen item.
  virtual Wording ChosenWords(const ListControl& list) const;
  void OnMenu(int id) override;
  /// Takes the number that the text of the clipboard is, and says it; false when it is none.
  virtual bool PasteText(std::string_view text);
  void PasteNumber(double value);

  Services& Common;
  Announcer Says;
  ViewFrame& Frame;

 private:
  // Form
  void OnClick(Control& control) override;
  void OnChoose(ListControl& list) override;
  void OnGotFocus(Control& control) override;
  KeyUse OnControlKey(Control& control, const KeyEvent& event) override;
  void OnFault(const ArithmeticFault& fault) override { Engine->FailAloud(fault.Reason()); }
  void OnActed(Control& control) override { NoteStep(control.SpokenName); }

  void AddControls();
  void AddMenus();
  void CreateSpeech();
  void ShutDownSpeech();
  void PressByKey(Control& control);
  void GoByKey(Control& control);
  void Introduce(Control& control, bool queued);
  void SayOf(const Control& control, bool queued);
  void RememberCopy();
  void SayPasted();
  WrittenNumber AsWritten(std::string_view text) const;
  /// The sentence with what the display shows.
  Wording WithValue(int sentenceMessage) const;
  const std::string& StateOf(const CheckBox& box) const;
  KeyUse TextBoxKey(TextBox& box, const KeyEvent& event);
  /// The row of the key map that counts; null for none.
  const KeyRow* RowOf(const KeyEvent& event) const;
  Control* TargetOf(const KeyRow& row, const KeyEvent& event) const {
    return Find(row.Target.Name, IndexFor(row, event.Code));
  }
  KeyUse LinesKey(TextBox& box, const KeyEvent& event);

  // EveryViewKeys.cpp
  struct EveryViewKey;
  static const EveryViewKey EveryViewKeys[];
  const EveryViewKey* FindEveryViewKey(const KeyEvent& event) const;
  bool PressEveryViewKey(const KeyEvent& event);
  /// The message of what it does; none when it is none of them.
  int EveryViewKeyText(const KeyEvent& event) const;
  void Undo();
  void Redo();
  void Copy();
  void Paste();
  void TellStep(const std::string* step, int toldMessage, int noneMessage);

  // HistoryKeys.cpp
  void HearEarlier();
  void HearLater();
  void TellCalculation(const FinishedCalculation* calculation);
  std::string LineInWords(const std::string& line) const;
  ValueKind KindOfLine(const FinishedCalculation& calculation) const;
  void TakeFromHistory();

  // VoiceKeys.cpp
  template <int WordsPerMinute>
  void SpeedBy() {
    ChangeSpeed(WordsPerMinute);
  }
  template <int Percent>
  void VolumeBy() {
    ChangeVolume(Percent);
  }
  void ChangeSpeed(int wordsPerMinute);
  void ChangeVolume(int percent);
  void SwitchVoice();
  void SwitchDetail();
  void SpellDisplay();

  // KeyHelp.cpp
  void StartKeyHelp();
  std::string DescriptionOf(const KeyEvent& event) const;
  // WhereAmI.cpp
  void SayWhere();
  void SayHeld();
  Telling WhereAmI() const;
  void AddOpenCalculation(Telling& telling, ValueKind kind) const;
  std::string WordsOfOperator(std::string_view caption) const;

  const ViewTables& Tables;
  std::unique_ptr<EntryEngine> Engine;
  TextBox* Display = nullptr;
  TextBox* MemoryBox = nullptr;  ///< null in a view without a memory
  bool KeyHelpIsOn = false;
  Choices AtStart;
  std::vector<CheckBox*> Boxes;
  std::vector<ListBox*> OptionLists;
  std::vector<ListView*> DataLists;
};

}  // namespace qves
