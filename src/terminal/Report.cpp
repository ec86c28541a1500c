#include "terminal/Report.h"

#include "text/Text.h"

namespace qves {
namespace {

using Json = nlohmann::ordered_json;

/// What the form shows: the text of its display, or of its reader.
std::string_view DisplayOf(const Form& form) {
  if (const TextBox* display = form.FindAs<TextBox>("txtDisplay")) return display->Text;
  for (const auto& control : form.Controls())
    if (const auto* reader = dynamic_cast<const Reader*>(control.get())) return reader->Text;
  return {};
}

std::string NameOf(const Control& control) {
  std::string name(control.Name());
  if (control.Index() != NoIndex) name += "(" + std::to_string(control.Index()) + ")";
  return name;
}

Json Describe(const Control& control) {
  Json out = {{"name", control.Name()}};
  if (control.Index() != NoIndex) out["index"] = control.Index();
  const auto* list = dynamic_cast<const ListControl*>(&control);
  if (const auto* box = dynamic_cast<const TextBox*>(&control))
    out["text"] = box->Text;
  else if (const auto* reader = dynamic_cast<const Reader*>(&control))
    out["text"] = reader->Text;
  else if (!list)
    out["caption"] = control.Caption;
  out["enabled"] = control.Enabled;
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) out["checked"] = box->Checked;
  if (list) {
    out["items"] = Json::array();
    for (int item = 0; item < list->ItemCount(); ++item) out["items"].push_back(list->ItemText(item));
    out["selected"] = list->ListIndex;
  }
  return out;
}

void ReportTape(JsonLine& report, const std::string& tapeAdded) {
  report.Name("tape");
  report.Begin('[');
  ForEachLine(tapeAdded, [&](int, std::string_view line) { report.Value(line); });
  report.End(']');
}

}  // namespace

void ReportForm(JsonLine& report, const Form* form, const std::string& tapeAdded) {
  if (!form) {
    report.Field("form", Json(nullptr));
    report.Field("focus", Json(nullptr));
    report.Field("display", std::string_view());
    return;
  }
  report.Field("form", std::string_view(form->Name()));
  const Control* focused = form->FocusedControl();
  report.Name("focus");
  focused ? report.Value(std::string_view(NameOf(*focused))) : report.Value(Json(nullptr));
  report.Field("display", DisplayOf(*form));
  if (const TextBox* memory = form->FindAs<TextBox>("txtMemory"))
    report.Field("memory", std::string_view(memory->Text));
  if (form->Find("txtResult")) ReportTape(report, tapeAdded);
}

void ReportSpeech(JsonLine& report, const Transcript& spoken) {
  report.Name("spoken");
  report.Begin('[');
  for (const SpokenText& said : spoken) {
    report.Begin('{');
    report.Field("how", said.How);
    if (said.How != "stop") report.Field("text", std::string_view(said.Text));
    if (said.Voiced) report.Field("voiced", std::string_view(*said.Voiced));
    report.End('}');
  }
  report.End(']');
}

void ReportList(JsonLine& report, std::string_view name, const std::vector<std::string>& texts) {
  report.Name(name);
  report.Begin('[');
  for (const std::string& text : texts) report.Value(std::string_view(text));
  report.End(']');
}

void ReportState(JsonLine& report, const Form* form) {
  Json engine = Json::object();
  Json controls = Json::array();
  if (form) {
    for (const StateField& field : form->EngineState())
      std::visit([&](const auto& value) { engine[std::string(field.Name)] = value; }, field.Value);
    for (const auto& control : form->Controls()) controls.push_back(Describe(*control));
  }
  report.Field("engine", engine);
  report.Field("controls", controls);
}

}  // namespace qves
