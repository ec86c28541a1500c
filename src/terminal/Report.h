// The parts of a script line's report.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Form.h"
#include "terminal/JsonLine.h"

namespace qves {

/// One thing asked of the speech: "now", "queued" or "stop".
struct SpokenText {
  std::string_view How;
  std::string Text;
  std::optional<std::string> Voiced;  ///< what the voice is given, where that is wanted
};

using Transcript = std::vector<SpokenText>;

/// Form, focus, display, memory and the tape lines added ("\r\n" after each). `form` is null after the end.
void ReportForm(JsonLine& report, const Form* form, const std::string& tapeAdded);
void ReportSpeech(JsonLine& report, const Transcript& spoken);
void ReportList(JsonLine& report, std::string_view name, const std::vector<std::string>& texts);
/// The engine's fields and all controls.
void ReportState(JsonLine& report, const Form* form);

}  // namespace qves
