#include "desktop/ListWidgets.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "desktop/Appearance.h"

namespace qves {
namespace {

constexpr int CaptionMargin = 2;  // pixels above and below the caption
constexpr int SmallestColumns = 12;
constexpr int SmallestLines = 3;
constexpr int Columns = 22;  // the longest number
constexpr int Lines = 6;

}  // namespace

ListWidget::ListWidget(ListControl& list, ControlHost& host, QWidget* parent)
    : QListView(parent),
      Model(list),
      Host(host),
      Caption(QString::fromStdString(list.ReaderName)),
      Items(new ListItems(list, this)),
      Selection(new FollowingSelection(list, host, *Items, this)) {
  setModel(Items);
  QItemSelectionModel* toolkits = selectionModel();
  setSelectionModel(Selection);
  delete toolkits;
  setUniformItemSizes(true);  // else each item of a long list would be measured
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(Qt::StrongFocus);
  MakeRoomForFrame(*this);
  NameForScreenReader(*this, list);
  MakeRoomForCaption();
}

void ListWidget::Refresh() {
  setEnabled(Model.Enabled);
  Selection->Show(Model.ListIndex);
}

void ListWidget::ItemsChanged(int from, int removed, int added) {
  // A chosen item that goes must not leave the toolkit looking for another one.
  if (removed > 0) Selection->Show(NoItem);
  Items->Change(from, removed, added);
  Selection->Show(Model.ListIndex);
}

void ListWidget::changeEvent(QEvent* event) {
  QListView::changeEvent(event);
  if (event->type() == QEvent::FontChange) MakeRoomForCaption();
}

void ListWidget::MakeRoomForCaption() {
  setViewportMargins(0, QFontMetrics(CaptionFont()).height() + 2 * CaptionMargin, 0, 0);
}

QFont ListWidget::CaptionFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

QSize ListWidget::SizeOf(int width, int height) const {
  const int caption = QFontMetrics(CaptionFont()).horizontalAdvance(Caption) + 2 * CaptionMargin;
  const int around = 2 * frameWidth();
  return {std::max(width, caption) + around, height + viewportMargins().top() + around};
}

bool ListWidget::event(QEvent* event) {
  if (!PaintFrame(*this, *event)) return QListView::event(event);
  PaintCaption();
  return true;
}

void ListWidget::PaintCaption() {
  const QRect below = viewport()->geometry();
  const QRect strip(below.left(), frameWidth(), below.width(), viewportMargins().top());
  QPainter painter(this);
  painter.fillRect(strip, palette().window());
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(CaptionFont());
  painter.drawText(strip.adjusted(CaptionMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, Caption);
  painter.drawLine(strip.bottomLeft(), strip.bottomRight());
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
  // Arrows act through the form, and letters belong to the calculator.
  event->ignore();
}

void ListWidget::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  scrollTo(currentIndex());
}

void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (!IsPrimaryClick(*event, *viewport())) return;
  if (const QModelIndex at = indexAt(event->position().toPoint()); at.isValid())
    Host.ItemChosen(Model, at.row());
}

ListBoxView::ListBoxView(ListBox& list, ControlHost& host, QWidget* parent) : ListWidget(list, host, parent) {
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideNone);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize ListBoxView::sizeHint() const {
  int widest = 0;
  for (int row = 0; row < model()->rowCount(); ++row)
    widest = std::max(widest, sizeHintForIndex(model()->index(row, 0)).width());
  return SizeOf(widest, model()->rowCount() * sizeHintForRow(0));
}

ListViewWidget::ListViewWidget(ListView& list, ControlHost& host, const AppSettings& settings,
                               QWidget* parent)
    : ListWidget(list, host, parent), Settings(settings) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ListViewWidget::Restyle() {
  ApplyAppearance(*this, TextRole::Tape, Settings);
}

QSize ListViewWidget::SizeOfText(int columns, int lines) const {
  const QFontMetrics metrics = fontMetrics();
  return SizeOf(metrics.horizontalAdvance('0') * columns + verticalScrollBar()->sizeHint().width(),
                metrics.lineSpacing() * lines);
}

QSize ListViewWidget::minimumSizeHint() const {
  return SizeOfText(SmallestColumns, SmallestLines);
}

QSize ListViewWidget::sizeHint() const {
  return SizeOfText(Columns, Lines);
}

}  // namespace qves
