#include "desktop/ChoiceWidgets.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "desktop/Appearance.h"

namespace qves {
namespace {

constexpr int Margin = OutlineWidth + 3;  // pixels between the edge and what is inside

}  // namespace

CheckBoxView::CheckBoxView(CheckBox& box, ControlHost& host, QWidget* parent)
    : QCheckBox(CaptionOf(box), parent), Model(box), Host(host) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::StrongFocus);
  NameForScreenReader(*this, box);
  connect(this, &QCheckBox::clicked, this, [this] { Host.ControlPressed(Model); });
  // A screen reader's toggle has changed the mark already; the form follows.
  connect(this, &QCheckBox::toggled, this, [this] { Host.ControlPressed(Model); });
}

void CheckBoxView::Refresh() {
  setEnabled(Model.Enabled);
  const QSignalBlocker silence(this);
  setChecked(Model.Checked);
}

QRect CheckBoxView::MarkRect() const {
  const int side = fontMetrics().height();
  return {Margin, (height() - side) / 2, side, side};
}

QSize CheckBoxView::sizeHint() const {
  const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
  return {text + fontMetrics().height() + 3 * Margin, ButtonHeight(*this)};
}

void CheckBoxView::focusInEvent(QFocusEvent* event) {
  QCheckBox::focusInEvent(event);
  Host.ControlFocused(Model);
}

void CheckBoxView::keyPressEvent(QKeyEvent* event) {
  // Space acts through the form; here it would act a second time.
  event->ignore();
}

/// The toolkit's mark, as large as the text, with an edge that is visible in every contrast.
void CheckBoxView::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.rect = MarkRect();
  painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  const QRect beside = rect().adjusted(option.rect.width() + 2 * Margin, 0, -Margin, 0);
  painter.drawItemText(beside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(),
                       isEnabled(), text(), QPalette::WindowText);
  PaintOutline(*this);
}

/// A selection that only the form changes. What others want to select, an accessibility client with the
/// toolkit's own steps of it, goes to the host.
class FollowingSelection : public QItemSelectionModel {
 public:
  FollowingSelection(ListBox& list, ControlHost& host, QListWidget& widget)
      : QItemSelectionModel(widget.model(), &widget), Model(list), Host(host) {}

  void Show(int row) {
    const QModelIndex index = model()->index(row, 0);
    QItemSelectionModel::select(QItemSelection(index, index), ClearAndSelect);
    QItemSelectionModel::setCurrentIndex(index, NoUpdate);
  }

  using QItemSelectionModel::select;
  void select(const QItemSelection& wanted, SelectionFlags command) override {
    if (command.testFlag(Select) && !wanted.isEmpty()) Host.ItemChosen(Model, wanted.first().top());
  }
  void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override { select(index, command); }

 private:
  ListBox& Model;
  ControlHost& Host;
};

ListBoxView::ListBoxView(ListBox& list, ControlHost& host, QWidget* parent)
    : QListWidget(parent), Model(list), Host(host) {
  AddItems();
  QItemSelectionModel* toolkits = selectionModel();
  Selection = new FollowingSelection(list, host, *this);
  setSelectionModel(Selection);
  delete toolkits;
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideNone);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(OutlineWidth);
  NameForScreenReader(*this, list);
}

/// The texts begin with a blank, which is for the ear.
void ListBoxView::AddItems() {
  for (const ListItem& item : Model.Items) {
    auto* shown = new QListWidgetItem(QString::fromStdString(item.Text).trimmed(), this);
    shown->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  }
}

void ListBoxView::Refresh() {
  setEnabled(Model.Enabled);
  Selection->Show(Model.ListIndex);
}

QSize ListBoxView::sizeHint() const {
  const int around = 2 * frameWidth();
  return {sizeHintForColumn(0) + around, count() * sizeHintForRow(0) + around};
}

bool ListBoxView::event(QEvent* event) {
  return PaintFrame(*this, *event) || QListWidget::event(event);
}

void ListBoxView::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  Host.ControlFocused(Model);
}

void ListBoxView::keyPressEvent(QKeyEvent* event) {
  // Arrows act through the form, and letters belong to the calculator.
  event->ignore();
}

void ListBoxView::mouseReleaseEvent(QMouseEvent* event) {
  if (!IsPrimaryClick(*event, *viewport())) return;
  if (const QModelIndex at = indexAt(event->position().toPoint()); at.isValid())
    Host.ItemChosen(Model, at.row());
}

}  // namespace qves
