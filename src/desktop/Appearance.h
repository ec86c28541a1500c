// How the display and the tape look: the desktop's font and colours, or those of the host product's settings.
#pragma once

#include <QFrame>
#include <QWidget>

#include "services/AppSettings.h"

namespace qves {

/// Where a text box takes its looks from.
enum class TextRole { Display, Tape, Indicator };

/// Gives the text box its font and colours.
void ApplyAppearance(QWidget& box, TextRole role, const AppSettings& settings);

/// Lets the caption of a button or a check box be read in every palette also while it is disabled.
void MakeDisabledReadable(QWidget& control);

/// Draws the border of a control: visible in every contrast, thick while the control has the focus.
void PaintOutline(QWidget& control);

/// Gives a control that scrolls a frame for PaintFrame, and no context menu: it would open without a word and
/// take the keys.
void MakeRoomForFrame(QFrame& control);

/// Does the frame of a control that scrolls, which is no part of what scrolls: paints it in the outline's
/// look, anew when the focus comes or goes. True when that was all of the event.
bool PaintFrame(QWidget& control, const QEvent& event);

/// The room that PaintOutline needs at each side, in pixels.
inline constexpr int OutlineWidth = 3;

}  // namespace qves
