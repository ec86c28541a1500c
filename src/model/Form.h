// A form: its controls in Tab order, the focus, the menus, and the one place where a key and a click meet.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Control.h"
#include "model/KeyEvent.h"
#include "model/Menu.h"
#include "model/StateField.h"

namespace qves {

class ArithmeticFault;
class Form;

/// Told what changed on a form, so that a shell can repaint it.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  /// Text, selection or enabled state of the control changed.
  virtual void ControlChanged(Form&, Control&) {}
  /// The box's text grew at its end; `from` is where the new part begins (bytes).
  virtual void TextAppended(Form&, TextBox&, std::size_t /*from*/) {}
  /// From the item `from` on, `removed` items have gone and `added` ones have come in their place.
  virtual void ItemsChanged(Form&, ListView&, int /*from*/, int /*removed*/, int /*added*/) {}
  /// The user has moved in the box's text.
  virtual void CaretMoved(Form&, TextBox&) {}
  /// The form's focused control changed.
  virtual void FocusChanged(Form&) {}
  /// One of the form's lines that are no controls changed.
  virtual void LinesChanged(Form&) {}
};

/// Where a panel of controls stands in the form's window.
struct PanelSpec {
  int Panel = 0;
  int Row = 0;
  int Column = 0;
  int RowSpan = 1;
  int ColumnSpan = 1;
};

/// What comes of a key press.
enum class KeyUse {
  Unused,    ///< nothing
  Used,      ///< what the form does with it; the toolkit is not to see it
  PassedOn,  ///< something, and the toolkit is to see it: it copies or moves in a text, opens a menu
};

class Form {
 public:
  Form(std::string name, std::string title);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return FormName; }
  const std::string& Title() const { return FormTitle; }
  const std::vector<std::unique_ptr<Control>>& Controls() const { return ControlList; }  ///< in Tab order
  const std::vector<PanelSpec>& Panels() const { return PanelList; }
  const std::vector<Menu>& Menus() const { return MenuList; }
  Control* FocusedControl() const { return Focused; }
  /// The calculation that is still open, as it is shown above the display: "2 * ( 3 +".
  const std::string& OpenLine() const { return OpenText; }
  /// What a screen reader calls that line; "": the form has no such lines.
  const std::string& OpenLineName() const { return OpenName; }
  /// What the form has told last about what it holds.
  const std::string& StatusLine() const { return StatusText; }
  const std::string& StatusLineName() const { return StatusName; }
  /// The control of that name, and index when it is a member of an array; null when there is none.
  Control* Find(std::string_view name, int index = NoIndex) const;
  /// The same for one that stands alone and is of that kind when it is there.
  template <class Kind>
  Kind* FindAs(std::string_view name) const {
    return static_cast<Kind*>(Find(name));
  }

  virtual void Form_Load() {}
  virtual void Form_Unload() {}

  /// Presses a control, by key or by mouse: the one way to its handler. A disabled control does nothing; a
  /// check box is turned over first. A fault of the handler ends here, in OnFault.
  void Click(Control& control);
  /// Chooses a list's item, by key or by mouse: the one way to the list's handler. Choosing the chosen one,
  /// or one that the list has not, is nothing. A fault of the handler ends here, in OnFault.
  void Choose(ListControl& list, int item);
  /// What a mouse click, or a screen reader's press, does: the focus, then the click.
  void MouseClick(Control& control);
  /// The user went to the control, with Tab, the mouse or a screen reader. From then on Enter presses it.
  void FocusByUser(Control& control);
  /// Moves the focus and lets the control announce itself. Moving it to where it is, or to a control that
  /// cannot have it, is nothing.
  void SetFocus(Control& control);

  /// The view's key map. Sets `handled` when it has used the key.
  virtual void NotifyKeyDown(bool& /*handled*/, const KeyEvent&) {}
  /// While keys only tell what they do: tells it of that key. True when that is all that the key is to do.
  virtual bool DescribeKey(const KeyEvent&) { return false; }
  /// A key that the keyboard hook let through: the focused control's own keys, Tab, Enter, Space, and in a
  /// list the arrows.
  KeyUse KeyDown(const KeyEvent& event);
  /// A key release.
  virtual void Form_KeyUp(int /*keyCode*/) {}
  /// The user is back from a menu or a dialog: the form says where, after what is being said.
  virtual void Returned() {}
  /// Chooses the menu item with that id; false when the form has none.
  bool ChooseMenu(int id);
  /// Moves the focus to the cancel control, which Enter then presses; false when there is none.
  bool FocusCancelControl();

  /// Stops what the form reads aloud, so that it can go on there. False when it reads nothing.
  virtual bool StopReading() { return false; }
  virtual void NotifyBookMark(int /*bookMark*/, TtsSpeaker&) {}
  virtual void NotifySpeechStopped(TtsSpeaker&) {}

  /// The fields of the form's engine by their names; none where there is no engine.
  virtual StateFields EngineState() const { return {}; }

  void AddObserver(FormObserver& observer);
  void RemoveObserver(FormObserver& observer);

 protected:
  Control& Add(std::unique_ptr<Control> control);
  void SetText(TextBox& box, std::string_view text);
  void AppendText(TextBox& box, std::string_view text);
  void SelectAll(TextBox& box);
  void MoveCaret(TextBox& box, std::size_t caret);
  void SetChecked(CheckBox& box, bool checked);
  /// Sets the chosen item without a word and without the list's handler.
  void PlaceChoice(ListControl& list, int item);
  /// Puts items at the end of a list, or takes its items from `from` on; both without a word. The first item
  /// of all becomes the chosen one; where the chosen one goes, the one that takes its place or the last is.
  void AppendItems(ListView& list, std::span<const std::string> items);
  void RemoveItems(ListView& list, int from, int count);
  /// The list shows other items than it did, of which there were so many.
  void ItemsReplaced(ListView& list, int before);
  void SetEnabled(Control& control, bool enabled);
  /// Gives the form its lines.
  void NameLines(std::string open, std::string status);
  void SetOpenLine(std::string_view text) { SetLine(OpenText, text); }
  void SetStatusLine(std::string_view text) { SetLine(StatusText, text); }
  /// Places in the reader's document have changed.
  void ReaderMoved(Reader& reader);
  /// Puts the focus on a control without a word.
  void PlaceFocus(Control& control);
  /// After a key of the key map has acted, Enter presses the default button.
  void EnterPressesDefault() { EnterPressesFocused = false; }

  virtual void OnClick(Control&) {}
  virtual void OnChoose(ListControl&) {}
  /// A key would have moved the choice beyond the first item (step below 0) or the last.
  virtual void OnListEnd(ListControl&, int /*step*/) {}
  virtual void OnGotFocus(Control&) {}
  /// The focused control's own keys (help, name, copy).
  virtual KeyUse OnControlKey(Control&, const KeyEvent&) { return KeyUse::Unused; }
  virtual void OnMenu(int /*id*/) {}
  /// An arithmetic fault of a handler.
  virtual void OnFault(const ArithmeticFault&) {}
  /// The control's handler has acted, or has ended in a fault.
  virtual void OnActed(Control&) {}

  std::vector<PanelSpec> PanelList;
  std::vector<Menu> MenuList;

 private:
  template <class Handler>
  void Guarded(Handler handler);
  bool FormKey(const KeyEvent& event);
  bool PressSpace();
  bool PressEnter();
  bool MoveInList(const KeyEvent& event);
  void MoveChoice(ListControl& list, int step);
  Control* DefaultControl() const;
  void MoveFocus(int step);
  template <class Notify>
  void Tell(Notify notify);

  void SetLine(std::string& line, std::string_view text);

  std::string FormName;
  std::string FormTitle;
  std::string OpenText;
  std::string StatusText;
  std::string OpenName;
  std::string StatusName;
  std::vector<std::unique_ptr<Control>> ControlList;
  std::vector<FormObserver*> Observers;
  Control* Focused = nullptr;
  bool EnterPressesFocused = false;
};

}  // namespace qves
