// What a form is made of: controls hold state; what they do is their form's business.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/RichText.h"
#include "model/SharedList.h"

namespace qves {

class TtsEngine;
class TtsSpeaker;

enum class ControlKind { Button, TextBox, CheckBox, ListBox, ListView, Reader };

/// Where a control stands: a panel of the window, and the cell inside the panel's own grid.
struct GridCell {
  int Panel = 0;
  int Row = 0;
  int Column = 0;
  int RowSpan = 1;
  int ColumnSpan = 1;
};

/// Traits of a control, a bit set.
enum ControlTrait : unsigned {
  PlainControl = 0,
  DefaultButton = 1,  ///< Enter presses it when no button was gone to
  CancelButton = 2,   ///< Escape moves the focus to it
  MultiLine = 4,      ///< a text box of several lines
  Indicator = 8,      ///< a narrow text box for a mark
  HelpOnFocus = 16,   ///< says its name and then its help when it gets the focus
};

inline constexpr int NoIndex = -1;   ///< the index of a control that is no member of an array
inline constexpr int NoMessage = 0;  ///< no message of this kind

/// One item of a list.
struct ListItemSpec {
  int TextMessage = NoMessage;    ///< what the list shows, when it is a message
  int SpokenMessage = NoMessage;  ///< what is spoken when it is chosen
  std::string_view Text = {};     ///< what the list shows, when it is none
};

/// One row of a view's control table.
struct ControlSpec {
  std::string_view Name = {};  ///< of the control, or of its array
  int Index = NoIndex;         ///< inside the array
  ControlKind Kind = ControlKind::Button;
  std::string_view Caption = {};   ///< the caption, when it is no message
  int CaptionMessage = NoMessage;  ///< the message that is its caption
  int NameMessage = NoMessage;     ///< the message that is its spoken name; none: its caption is
  int HelpMessage = NoMessage;     ///< the message that F1 speaks
  GridCell Cell = {};
  unsigned Traits = PlainControl;
  std::span<const ListItemSpec> Items = {};  ///< of a list
  int ReaderMessage = NoMessage;  ///< the message that is its name for a screen reader; none: its spoken name
};

/// What the speech service hands to every control that speaks for itself.
struct SpeakingLink {
  int MsgBase = 0;                ///< message-id base of the speaking controls
  TtsEngine* Voice = nullptr;     ///< SetVoice
  TtsSpeaker* Referee = nullptr;  ///< SetReferee
  bool Quiescent = true;          ///< true: the control announces nothing
  int ListPosAct = 0;             ///< list-position verbosity action
  std::string ListPosStr;         ///< list-position words
};

class Control {
 public:
  Control(const ControlSpec& spec, std::string caption, std::string spokenName, std::string helpText)
      : Spec(spec),
        Caption(std::move(caption)),
        SpokenName(std::move(spokenName)),
        HelpText(std::move(helpText)),
        ReaderName(SpokenName) {}
  virtual ~Control() = default;

  std::string_view Name() const { return Spec.Name; }
  int Index() const { return Spec.Index; }
  bool Has(ControlTrait trait) const { return (Spec.Traits & trait) != 0; }

  const ControlSpec& Spec;
  const std::string Caption;
  const std::string SpokenName;  ///< spoken on focus and F7
  const std::string HelpText;    ///< spoken on F1; a screen reader's description of the control
  std::string ReaderName;        ///< a screen reader's name of the control; it adds itself what kind it is
  bool Enabled = true;
  SpeakingLink Speaking;
};

class Button : public Control {
 public:
  using Control::Control;
};

/// A read-only text box. The selection is counted in bytes.
class TextBox : public Control {
 public:
  using Control::Control;
  std::string Text;
  std::size_t SelStart = 0;
  std::size_t SelLength = 0;
  std::size_t Caret = 0;  ///< in a box of several lines: where the user has moved to
};

class CheckBox : public Control {
 public:
  using Control::Control;
  bool Checked = false;
};

struct ListItem {
  std::string Text;
  std::string SpokenText;
};

inline constexpr int NoItem = -1;

/// A list of which one item is chosen.
class ListControl : public Control {
 public:
  using Control::Control;
  int ListIndex = NoItem;  ///< of the chosen item, from 0

  virtual int ItemCount() const = 0;
  /// What the list shows of that item.
  virtual const std::string& ItemText(int item) const = 0;
};

/// A list of fixed items.
class ListBox : public ListControl {
 public:
  ListBox(const ControlSpec& spec, std::string caption, std::string spokenName, std::string helpText,
          std::vector<ListItem> items)
      : ListControl(spec, std::move(caption), std::move(spokenName), std::move(helpText)),
        Items(std::move(items)) {
    ListIndex = 0;
  }
  const std::vector<ListItem> Items;

  int ItemCount() const override { return static_cast<int>(Items.size()); }
  const std::string& ItemText(int item) const override { return Items[static_cast<std::size_t>(item)].Text; }
  const ListItem& Chosen() const { return Items[static_cast<std::size_t>(ListIndex)]; }
};

/// A list of data that grows and shrinks. It shows data that somebody else has.
class ListView : public ListControl {
 public:
  using ListControl::ListControl;
  SharedList<std::string>* Items = nullptr;  ///< null: it is empty

  int ItemCount() const override { return Items ? static_cast<int>(Items->size()) : 0; }
  const std::string& ItemText(int item) const override { return (*Items)[static_cast<std::size_t>(item)]; }
};

/// A read-only document that reads itself aloud. Places are counted in bytes of `Text`.
class Reader : public Control {
 public:
  using Control::Control;
  RichText Document;
  std::string Text;              ///< the document's paragraphs, a line each
  std::size_t Caret = 0;         ///< where the user has moved to
  std::size_t SpokenStart = 0;   ///< the sentence that is being read
  std::size_t SpokenLength = 0;  ///< 0: none is
};

}  // namespace qves
