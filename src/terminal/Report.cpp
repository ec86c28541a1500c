#include "terminal/Report.h"

#include "services/Text.h"

namespace qves {
namespace {

using Json = nlohmann::ordered_json;

const TextBox* FindBox(const Form& form, std::string_view name) {
  return dynamic_cast<const TextBox*>(form.Find(name));
}

Json NameOf(const Control* control) {
  if (!control) return nullptr;
  std::string name(control->Name());
  if (control->Index() != NoIndex) name += "(" + std::to_string(control->Index()) + ")";
  return name;
}

Json Describe(const Control& control) {
  Json out = {{"name", control.Name()}};
  if (control.Index() != NoIndex) out["index"] = control.Index();
  if (const auto* box = dynamic_cast<const TextBox*>(&control))
    out["text"] = box->Text;
  else
    out["caption"] = control.Caption;
  out["enabled"] = control.Enabled;
  return out;
}

}  // namespace

void ReportForm(Json& report, const Form* form, const std::string& tapeAdded) {
  report["form"] = form ? Json(form->Name()) : Json(nullptr);
  report["focus"] = NameOf(form ? form->FocusedControl() : nullptr);
  const TextBox* display = form ? FindBox(*form, "txtDisplay") : nullptr;
  report["display"] = display ? display->Text : "";
  if (!form) return;
  if (const TextBox* memory = FindBox(*form, "txtMemory")) report["memory"] = memory->Text;
  if (!FindBox(*form, "txtResult")) return;
  Json& tape = report["tape"] = Json::array();
  ForEachLine(tapeAdded, [&](int, std::string_view line) { tape.push_back(line); });
}

void ReportSpeech(Json& report, const Transcript& spoken) {
  Json& list = report["spoken"] = Json::array();
  for (const SpokenText& said : spoken) {
    Json entry = {{"how", said.How}};
    if (said.How != "stop") entry["text"] = said.Text;
    list.push_back(std::move(entry));
  }
}

void ReportState(Json& report, const Form* form) {
  Json& engine = report["engine"] = Json::object();
  Json& controls = report["controls"] = Json::array();
  if (!form) return;
  for (const StateField& field : form->EngineState())
    std::visit([&](const auto& value) { engine[std::string(field.Name)] = value; }, field.Value);
  for (const auto& control : form->Controls()) controls.push_back(Describe(*control));
}

}  // namespace qves
