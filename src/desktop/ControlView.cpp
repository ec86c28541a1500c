#include "desktop/ControlView.h"

namespace qves {

void NameForScreenReader(QWidget& widget, const Control& control) {
  widget.setAccessibleName(QString::fromStdString(control.ReaderName));
  widget.setAccessibleDescription(QString::fromStdString(control.HelpText));
}

QString CaptionOf(const Control& control) {
  return QString::fromStdString(control.Caption).remove('&');
}

bool IsPrimaryClick(const QMouseEvent& event, const QWidget& widget) {
  return event.button() == Qt::LeftButton && widget.rect().contains(event.position().toPoint());
}

int ButtonHeight(const QWidget& widget) {
  return 2 * widget.fontMetrics().height();
}

}  // namespace qves
