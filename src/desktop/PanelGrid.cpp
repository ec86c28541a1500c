#include "desktop/PanelGrid.h"

#include <QWidget>
#include <algorithm>

namespace qves {
namespace {

constexpr int Spacing = 6;  // pixels between controls
constexpr int ReaderWeight = 8;
constexpr int TapeWeight = 4;  // rows of buttons that a box of several lines takes its share with

/// Keeps the spacing of a row in which no control begins: the toolkit would leave it out.
class RowKeeper : public QSpacerItem {
 public:
  RowKeeper() : QSpacerItem(0, 0) {}
  bool isEmpty() const override { return false; }
};

/// Whether the control is as high as its grid's rows are.
bool FillsRows(const Control& control) {
  return control.Spec.Kind == ControlKind::Button || control.Spec.Kind == ControlKind::CheckBox;
}

/// How a control's row grows, in rows of buttons. A box of one line and a list of few items stay as high as
/// their text.
int RowWeight(const Control& control) {
  if (FillsRows(control)) return 1;
  if (control.Spec.Kind == ControlKind::Reader) return ReaderWeight;
  return control.Has(MultiLine) || control.Spec.Kind == ControlKind::ListView ? TapeWeight : 0;
}

}  // namespace

PanelGrid::PanelGrid(const Form& form, QWidget& central) : Window(new QGridLayout(&central)) {
  Window->setContentsMargins(0, 0, 0, 0);
  Window->setSpacing(2 * Spacing);
  for (const PanelSpec& spec : form.Panels()) Make(spec, central);
  for (const auto& control : form.Controls())
    if (const int panel = control->Spec.Cell.Panel; !Panels.contains(panel))
      Make({panel, Window->rowCount(), 0, 1, std::max(1, Window->columnCount())}, central);
}

void PanelGrid::Make(const PanelSpec& spec, QWidget& central) {
  auto* panel = new QWidget(&central);
  auto* grid = new QGridLayout(panel);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(Spacing);
  Window->addWidget(panel, spec.Row, spec.Column, spec.RowSpan, spec.ColumnSpan);
  Panels.emplace(spec.Panel, Panel{spec, grid});
}

QWidget* PanelGrid::PanelOf(const Control& control) const {
  return Panels.at(control.Spec.Cell.Panel).Grid->parentWidget();
}

void PanelGrid::Place(const Control& control, QWidget& widget) {
  const GridCell& cell = control.Spec.Cell;
  QGridLayout& grid = *Panels.at(cell.Panel).Grid;
  grid.addWidget(&widget, cell.Row, cell.Column, cell.RowSpan, cell.ColumnSpan);
  if (cell.ColumnSpan == 1 && !control.Has(Indicator)) grid.setColumnStretch(cell.Column, 1);
  // A tall button keeps each of its rows as high as a row of small ones.
  const int rowHeight = FillsRows(control) ? widget.sizeHint().height() : 0;
  for (int row = cell.Row; row < cell.Row + cell.RowSpan; ++row) {
    grid.setRowStretch(row, std::max(RowWeight(control), grid.rowStretch(row)));
    grid.setRowMinimumHeight(row, std::max(rowHeight, grid.rowMinimumHeight(row)));
    if (row > cell.Row) grid.addItem(new RowKeeper, row, cell.Column);
  }
}

void PanelGrid::Balance() {
  for (const auto& [number, panel] : Panels) {
    int rows = 0;
    for (int row = 0; row < panel.Grid->rowCount(); ++row) rows += std::max(1, panel.Grid->rowStretch(row));
    const PanelSpec& at = panel.Spec;
    if (at.RowSpan == 1) Window->setRowStretch(at.Row, std::max(rows, Window->rowStretch(at.Row)));
    if (at.ColumnSpan == 1) Window->setColumnStretch(at.Column, panel.Grid->columnCount());
  }
}

}  // namespace qves
