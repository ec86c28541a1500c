// A control out of its row of a view's table.
#pragma once

#include <memory>

#include "model/Control.h"
#include "services/Messages.h"

namespace qves {

/// The control with its texts.
std::unique_ptr<Control> MakeControl(const ControlSpec& spec, const MessageStore& messages);

}  // namespace qves
