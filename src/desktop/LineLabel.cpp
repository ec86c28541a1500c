#include "desktop/LineLabel.h"

#include <QPainter>

#include "desktop/Appearance.h"

namespace qves {
namespace {

constexpr int Margin = 4;  // pixels around the text

}  // namespace

LineLabel::LineLabel(const std::string& name, Qt::TextElideMode elide, const AppSettings& settings,
                     QWidget* parent)
    : QLabel(parent), Name(QString::fromStdString(name)), Elide(elide), Settings(settings) {
  setTextFormat(Qt::PlainText);
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setBackgroundRole(QPalette::Base);
  setForegroundRole(QPalette::Text);
  setAutoFillBackground(true);
  Restyle();
  Show("");
}

/// A label has no text beside its name for a screen reader: the name holds both.
void LineLabel::Show(const std::string& line) {
  setText(QString::fromStdString(line));
  setAccessibleName(line.empty() ? Name : Name + ": " + text());
}

void LineLabel::Restyle() {
  ApplyAppearance(*this, TextRole::Tape, Settings);
  updateGeometry();
}

/// No text makes the window wider.
QSize LineLabel::minimumSizeHint() const {
  return {0, fontMetrics().height() + 2 * Margin};
}

void LineLabel::paintEvent(QPaintEvent*) {
  const QRect room = rect().adjusted(Margin, Margin, -Margin, -Margin);
  const auto side = Elide == Qt::ElideLeft ? Qt::AlignRight : Qt::AlignLeft;
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(room, side | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Elide, room.width()));
}

}  // namespace qves
