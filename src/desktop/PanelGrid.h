// The layout of a form's window: the panels in the window's grid, and the controls in their panel's.
#pragma once

#include <QGridLayout>
#include <map>

#include "model/Form.h"

namespace qves {

class PanelGrid {
 public:
  /// Makes the panels of the form in the widget. A panel that the form gives no place is put below the
  /// others.
  PanelGrid(const Form& form, QWidget& central);

  /// The parent for the control's widget.
  QWidget* PanelOf(const Control& control) const;
  void Place(const Control& control, QWidget& widget);
  /// Shares the window's room among the panels by their rows and columns, so that buttons are alike all over.
  /// After the last Place.
  void Balance();

 private:
  struct Panel {
    PanelSpec Spec;
    QGridLayout* Grid;
  };

  void Make(const PanelSpec& spec, QWidget& central);

  QGridLayout* Window;
  std::map<int, Panel> Panels;
};

}  // namespace qves
