// The buttons of the Statistics view: what each is called in its tables.
#pragma once

#include "engine/Buttons.h"

namespace qves::statistics::Buttons {

using namespace qves::Buttons;

// name, index, caption, name message, help message

/// Its operator is every view's; its control is not.
inline constexpr ControlSpec Sign =
    ButtonSpec("cmdSign", NoIndex, qves::Buttons::Sign.Caption, qves::Buttons::Sign.NameMessage,
               qves::Buttons::Sign.HelpMessage);

// name, index, kind, caption, caption message, name message (0: the caption is the name), help message
inline constexpr ControlSpec AddPoint = {"cmdAdd", NoIndex, ControlKind::Button, "", 1400, 0, 1402};
inline constexpr ControlSpec RemovePoint = {"cmdRemove", NoIndex, ControlKind::Button, "", 1403, 0, 1405};
inline constexpr ControlSpec ClearList = {"cmdClear", NoIndex, ControlKind::Button, "", 1406, 0, 1408};
inline constexpr ControlSpec Run = {"cmdRun", NoIndex, ControlKind::Button, "", 1409, 0, 1410};

inline constexpr ControlSpec DegreesOfFreedom = ButtonSpec("cmdStat", 0, "df", 1441, 1443);
inline constexpr ControlSpec Alpha = ButtonSpec("cmdStat", 1, "alpha", 1442, 1444);

}  // namespace qves::statistics::Buttons
