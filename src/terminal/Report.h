// The parts of a script line's report.
#pragma once

#include <string>
#include <vector>

#include "model/Form.h"
#include "terminal/JsonLine.h"
#include "terminal/RecordingTts.h"

namespace qves {

/// Form, focus, display, memory and the tape lines added ("\r\n" after each). `form` is null after the end.
void ReportForm(JsonLine& report, const Form* form, const std::string& tapeAdded);
void ReportSpeech(JsonLine& report, const Transcript& spoken);
void ReportList(JsonLine& report, std::string_view name, const std::vector<std::string>& texts);
/// The engine's fields and all controls.
void ReportState(JsonLine& report, const Form* form);

}  // namespace qves
