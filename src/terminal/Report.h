// The parts of a script line's report.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "model/Form.h"
#include "terminal/RecordingTts.h"

namespace qves {

/// Form, focus, display, memory and the tape lines added ("\r\n" after each). `form` is null after the end.
void ReportForm(nlohmann::ordered_json& report, const Form* form, const std::string& tapeAdded);
void ReportSpeech(nlohmann::ordered_json& report, const Transcript& spoken);
/// The engine's fields and all controls.
void ReportState(nlohmann::ordered_json& report, const Form* form);

}  // namespace qves
