#include "desktop/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/PanelGrid.h"

namespace qves {

FormWindow::FormWindow(const AppSettings& settings, HintNotify& hints, QWidget* parent)
    : QMainWindow(parent), Settings(settings), Hints(hints) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* to) { FocusMoved(to); });
}

FormWindow::~FormWindow() {
  disconnect(qApp, nullptr, this, nullptr);  // the focus moves once more while the window goes
  DropForm();
}

void FormWindow::ShowForm(Form& form) {
  DropForm();
  Shown = &form;
  form.AddObserver(*this);
  setWindowTitle(QString::fromStdString(form.Title()));
  BuildMenus();
  BuildContents();
  FocusNow();
  show();
}

void FormWindow::DropForm() {
  if (!Shown) return;
  Shown->RemoveObserver(*this);
  Shown = nullptr;
  for (const auto& [control, view] : Views) view->Drop();
  Views.clear();
}

void FormWindow::BuildMenus() {
  // The menu bar itself goes with the old form; the old one is deleted when its event has ended.
  MenuBar = nullptr;
  if (Shown->Menus().empty()) return setMenuBar(nullptr);
  MenuBar = new FormMenuBar(
      Shown->Menus(), Hints,
      {.Choose = [this](int id) { ChooseMenu(id); }, .GiveFocusBack = [this] { FocusNow(); }});
  setMenuBar(MenuBar);
}

/// The controls with the form's lines around them.
void FormWindow::BuildContents() {
  auto* central = new QWidget;
  auto* controls = new QWidget(central);
  auto* column = new QVBoxLayout(central);
  OpenLine = AddLine(Shown->OpenLineName(), Qt::ElideLeft, *column);
  column->addWidget(controls, 1);
  StatusLine = AddLine(Shown->StatusLineName(), Qt::ElideRight, *column);
  BuildControls(*controls);
  LinesChanged(*Shown);
  // Deletes what was there, when the event that led here has ended.
  setCentralWidget(central);
}

/// Null when it has no name.
LineLabel* FormWindow::AddLine(const std::string& name, Qt::TextElideMode elide, QVBoxLayout& column) {
  if (name.empty()) return nullptr;
  auto* line = new LineLabel(name, elide, Settings, column.parentWidget());
  column.addWidget(line);
  return line;
}

void FormWindow::BuildControls(QWidget& central) {
  PanelGrid grid(*Shown, central);
  QWidget* previous = nullptr;
  for (const auto& control : Shown->Controls()) {
    ControlView* view = MakeControlView(*control, *this, Settings, grid.PanelOf(*control));
    if (!view) continue;
    Views[control.get()] = view;
    grid.Place(*control, view->Widget());
    if (previous) setTabOrder(previous, &view->Widget());
    previous = &view->Widget();
  }
  grid.Balance();
}

ControlView* FormWindow::ViewOf(const Control& control) const {
  const auto found = Views.find(&control);
  return found == Views.end() ? nullptr : found->second;
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
  ControlView* view = ViewOf(control);
  return view ? &view->Widget() : nullptr;
}

void FormWindow::ControlChanged(Form&, Control& control) {
  MovingFocus = true;  // a control that is disabled loses the focus; where it goes is the form's business
  if (ControlView* view = ViewOf(control)) view->Refresh();
  MovingFocus = false;
}

void FormWindow::TextAppended(Form&, TextBox& box, std::size_t from) {
  if (ControlView* view = ViewOf(box)) view->Append(from);
}

void FormWindow::ItemsChanged(Form&, ListView& list, int from, int removed, int added) {
  if (ControlView* view = ViewOf(list)) view->ItemsChanged(from, removed, added);
}

void FormWindow::CaretMoved(Form&, TextBox& box) {
  if (ControlView* view = ViewOf(box)) view->ShowCaret();
}

void FormWindow::LinesChanged(Form& form) {
  if (OpenLine) OpenLine->Show(form.OpenLine());
  if (StatusLine) StatusLine->Show(form.StatusLine());
}

void FormWindow::FocusChanged(Form&) {
  // A key may move the focus there and back again: a screen reader is to hear of where it ends alone.
  if (std::exchange(FocusDue, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { SettleFocus(); }, Qt::QueuedConnection);
}

void FormWindow::FocusNow() {
  FocusDue = true;
  SettleFocus();
}

void FormWindow::SettleFocus() {
  if (!std::exchange(FocusDue, false) || !Shown) return;
  QWidget* widget = Shown->FocusedControl() ? WidgetOf(*Shown->FocusedControl()) : nullptr;
  if (!widget || widget->hasFocus()) return;
  MovingFocus = true;
  widget->setFocus(Qt::OtherFocusReason);
  MovingFocus = false;
}

bool FormWindow::IsHeldBack() {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal && !dynamic_cast<const FormWindow*>(modal);
}

void FormWindow::ControlPressed(Control& control) {
  if (Shown && ViewOf(control) && !IsHeldBack()) Shown->MouseClick(control);
}

void FormWindow::FocusMoved(const QWidget* to) {
  if (!Shown || !to || MovingFocus) return;
  const auto control =
      std::ranges::find_if(Shown->Controls(), [&](const auto& c) { return WidgetOf(*c) == to; });
  // The focus comes back to the same control when the window is activated or a menu closes: that is no news.
  if (control == Shown->Controls().end() || control->get() == Shown->FocusedControl()) return;
  Shown->FocusByUser(**control);
}

void FormWindow::ItemChosen(ListControl& list, int item) {
  if (!Shown || !ViewOf(list) || IsHeldBack()) return;
  Shown->FocusByUser(list);
  Shown->Choose(list, item);
}

void FormWindow::ChooseMenu(int id) {
  if (Shown && !IsHeldBack()) Shown->ChooseMenu(id);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  OnClose();
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  QMainWindow::mousePressEvent(event);
  // On nothing in particular.
  if (MenuBar) MenuBar->Leave();
}

void FormWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // The desktop's, as the window has none of its own.
  if (event->type() != QEvent::FontChange && event->type() != QEvent::PaletteChange) return;
  for (const auto& [control, view] : Views) view->Restyle();
  for (LineLabel* line : {OpenLine, StatusLine})
    if (line) line->Restyle();
}

}  // namespace qves
