// What every widget of a control is and shares. A widget shows the state of its control; what the user does
// with it goes to the host.
#pragma once

#include <QMouseEvent>
#include <QWidget>

#include "model/Control.h"

namespace qves {

/// Told what the user does with a widget.
class ControlHost {
 public:
  virtual ~ControlHost() = default;
  /// Clicked with the mouse, or pressed by a screen reader.
  virtual void ControlPressed(Control&) = 0;
  /// An item of a list, clicked with the mouse or selected by a screen reader.
  virtual void ItemChosen(ListControl&, int item) = 0;
};

class ControlView {
 public:
  virtual ~ControlView() = default;
  /// Every view is the widget itself.
  QWidget& Widget() { return dynamic_cast<QWidget&>(*this); }
  /// Shows the control's state anew.
  virtual void Refresh() = 0;
  /// Shows the part of the text from that byte on; what was before is shown already.
  virtual void Append(std::size_t /*from*/) { Refresh(); }
  /// Shows where the user has moved to in the text.
  virtual void ShowCaret() {}
  /// From the item `from` on, `removed` items have gone and `added` ones have come in their place.
  virtual void ItemsChanged(int /*from*/, int /*removed*/, int /*added*/) { Refresh(); }
  /// The desktop's font or colours changed.
  virtual void Restyle() {}
  /// The control is about to be destroyed; the widget stays for a while.
  virtual void Drop() {}
};

/// Gives the widget the control's name and help as a screen reader's name and description.
void NameForScreenReader(QWidget& widget, const Control& control);
/// The caption without the mark of its mnemonic, which is no key here: all keys belong to the form.
QString CaptionOf(const Control& control);
/// Whether the release of a button ends a click on the widget.
bool IsPrimaryClick(const QMouseEvent& event, const QWidget& widget);
/// The height of a button of one row, which the other controls among buttons share.
int ButtonHeight(const QWidget& widget);

}  // namespace qves
