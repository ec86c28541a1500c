#include "desktop/ChoiceWidgets.h"

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

}  // namespace qves
