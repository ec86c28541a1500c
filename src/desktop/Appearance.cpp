#include "desktop/Appearance.h"

#include <qdrawutil.h>

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <array>
#include <optional>

namespace qves {
namespace {

constexpr std::array SixteenColors = {
    Qt::black,      Qt::darkBlue,  Qt::darkGreen, Qt::darkCyan, Qt::darkRed, Qt::darkMagenta,
    Qt::darkYellow, Qt::lightGray, Qt::darkGray,  Qt::blue,     Qt::green,   Qt::cyan,
    Qt::red,        Qt::magenta,   Qt::yellow,    Qt::white,
};

constexpr qreal DisplayScale = 2.0;  // of the desktop's font
constexpr int SmallestFont = 6;      // points; a size outside of these in a settings file is a slip
constexpr int LargestFont = 400;

/// The desktop's font, or its multiple.
QFont DesktopFont(TextRole role) {
  QFont font = QApplication::font();
  if (role == TextRole::Tape) return font;
  if (font.pointSizeF() > 0)
    font.setPointSizeF(font.pointSizeF() * DisplayScale);
  else
    font.setPixelSize(static_cast<int>(font.pixelSize() * DisplayScale));
  return font;
}

QFont HostFont(const AppSettings& settings) {
  QFont font = QApplication::font();
  if (!settings.FontName.empty()) font.setFamilies({QString::fromStdString(settings.FontName)});
  if (settings.FontSize >= SmallestFont && settings.FontSize <= LargestFont)
    font.setPointSize(settings.FontSize);
  font.setBold(settings.BoldFont);
  font.setItalic(settings.ItalicFont);
  return font;
}

/// The colour of that number (0 to 15) of the sixteen-colour palette; none for any other number.
std::optional<QColor> PaletteColor(int number) {
  if (number < 0 || number >= static_cast<int>(SixteenColors.size())) return std::nullopt;
  return SixteenColors[static_cast<std::size_t>(number)];
}

QPalette HostPalette(QPalette palette, const AppSettings& settings) {
  struct Row {
    QPalette::ColorRole Role;
    std::int16_t AppSettings::*Number;
  };
  constexpr Row rows[] = {{QPalette::Text, &AppSettings::TextColor},
                          {QPalette::Base, &AppSettings::BackColor},
                          {QPalette::HighlightedText, &AppSettings::HighColor},
                          {QPalette::Highlight, &AppSettings::HiBkColor}};
  // A number that is no colour counts as the usual one: half a pair could be unreadable.
  const AppSettings usual;
  for (const Row& row : rows)
    palette.setColor(row.Role, PaletteColor(settings.*row.Number).value_or(*PaletteColor(usual.*row.Number)));
  return palette;
}

/// Some desktops give captions of what is disabled the colour of the ground; here they are halfway between
/// text and ground.
QPalette WithReadableDisabled(QPalette palette) {
  const auto between = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
    const QColor a = palette.color(QPalette::Active, text);
    const QColor b = palette.color(QPalette::Active, ground);
    return QColor((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
  };
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, between(QPalette::ButtonText, QPalette::Button));
  palette.setColor(QPalette::Disabled, QPalette::WindowText, between(QPalette::WindowText, QPalette::Window));
  return palette;
}

}  // namespace

void ApplyAppearance(QWidget& box, TextRole role, const AppSettings& settings) {
  const bool fromHost = settings.HostFileFound && role != TextRole::Indicator;
  box.setFont(fromHost ? HostFont(settings) : DesktopFont(role));
  if (fromHost) box.setPalette(HostPalette(QApplication::palette(), settings));
}

void MakeDisabledReadable(QWidget& control) {
  control.setPalette(WithReadableDisabled(QApplication::palette()));
}

void PaintOutline(QWidget& control) {
  const QPalette::ColorRole role = control.hasFocus() ? QPalette::Highlight : QPalette::WindowText;
  const int width = control.hasFocus() ? OutlineWidth : 1;
  // The desktop's own palette: a text box may have colours of the host product.
  const QColor color = WithReadableDisabled(QApplication::palette())
                           .color(control.isEnabled() ? QPalette::Active : QPalette::Disabled, role);
  QPainter painter(&control);
  qDrawPlainRect(&painter, control.rect(), color, width);
}

void MakeRoomForFrame(QFrame& control) {
  control.setContextMenuPolicy(Qt::NoContextMenu);
  control.setFrameStyle(QFrame::Box | QFrame::Plain);
  control.setLineWidth(OutlineWidth);
}

bool PaintFrame(QWidget& control, const QEvent& event) {
  if (event.type() == QEvent::FocusIn || event.type() == QEvent::FocusOut) control.update();
  if (event.type() != QEvent::Paint) return false;
  QPainter(&control).fillRect(control.rect(), control.palette().base());
  PaintOutline(control);
  return true;
}

}  // namespace qves
