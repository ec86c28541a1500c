#include "views/MakeControl.h"

namespace qves {
namespace {

std::vector<ListItem> MakeItems(const ControlSpec& spec, const MessageStore& messages) {
  std::vector<ListItem> items;
  for (const ListItemSpec& item : spec.Items)
    items.push_back(
        {item.TextMessage == NoMessage ? std::string(item.Text) : messages.GetMessage(item.TextMessage),
         messages.GetMessage(item.SpokenMessage)});
  return items;
}

}  // namespace

std::unique_ptr<Control> MakeControl(const ControlSpec& spec, const MessageStore& messages) {
  const auto textOf = [&](int message, const std::string& otherwise) {
    return message == NoMessage ? otherwise : messages.GetMessage(message);
  };
  const std::string caption = textOf(spec.CaptionMessage, std::string(spec.Caption));
  const std::string name = textOf(spec.NameMessage, caption);
  const std::string help = textOf(spec.HelpMessage, "");
  std::unique_ptr<Control> control;
  switch (spec.Kind) {
    case ControlKind::Button:
      control = std::make_unique<Button>(spec, caption, name, help);
      break;
    case ControlKind::TextBox:
      control = std::make_unique<TextBox>(spec, caption, name, help);
      break;
    case ControlKind::CheckBox:
      control = std::make_unique<CheckBox>(spec, caption, name, help);
      break;
    case ControlKind::ListView:
      control = std::make_unique<ListView>(spec, caption, name, help);
      break;
    case ControlKind::ListBox:
    case ControlKind::Reader:  // stands in dialogs only
      control = std::make_unique<ListBox>(spec, caption, name, help, MakeItems(spec, messages));
  }
  control->ReaderName = textOf(spec.ReaderMessage, name);
  return control;
}

}  // namespace qves
