#include "services/Messages.h"

#include <optional>

#include "text/Integers.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {
namespace {

/// The text with its escapes resolved; nothing when an escape is unknown or cut off.
std::optional<std::string> Unescape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      out += text[i];
      continue;
    }
    const std::string_view names = "nt\\";
    const std::string_view meanings = "\n\t\\";
    const std::size_t which = ++i < text.size() ? names.find(text[i]) : std::string_view::npos;
    if (which == std::string_view::npos) return std::nullopt;
    out += meanings[which];
  }
  return out;
}

/// A message id: decimal digits, 0 to 32767.
std::optional<int> ParseId(std::string_view digits) {
  const auto id = ParseInteger<std::int16_t>(digits);
  return id && *id >= 0 ? id : std::nullopt;
}

}  // namespace

void MessageStore::LoadMessageFile(const std::string& name) {
  const std::string path = Files.IsFile(name) ? name : Directories.ProgramFolder() + "/" + name;
  if (!Files.IsFile(path)) return;
  std::string error;
  const auto content = Files.Read(path, error);
  if (!content) {
    Log.WriteErrorLog(MessageErrorCode, path + ": cannot be read (" + error + "); its messages are missing");
    return;
  }
  ForEachLine(*content, [&](int number, std::string_view line) { LoadLine(path, number, line); });
}

void MessageStore::LoadLine(const std::string& path, int number, std::string_view line) {
  if (line.empty() || line.front() == '#') return;
  const std::size_t tab = line.find('\t');
  const bool oneTab = tab != std::string_view::npos && line.find('\t', tab + 1) == std::string_view::npos;
  const auto id = oneTab ? ParseId(line.substr(0, tab)) : std::nullopt;
  auto text = id && IsUtf8(line) ? Unescape(line.substr(tab + 1)) : std::nullopt;
  if (text) {
    Texts[*id] = std::move(*text);
    return;
  }
  const std::string where = path + ":" + std::to_string(number);
  if (Noted.insert(where).second)
    Log.WriteErrorLog(MessageErrorCode,
                      where + ": not a message (an id, a tab, UTF-8 text); the line is skipped");
}

const std::string& MessageStore::GetMessage(int id) const {
  static const std::string none;
  const auto found = Texts.find(id);
  return found == Texts.end() ? none : found->second;
}

std::string FillPlaceholders(std::string_view text, const std::vector<std::string>& values) {
  std::string out;
  std::size_t from = 0;
  for (const std::string& value : values) {
    const std::size_t at = text.find("%%", from);
    if (at == std::string_view::npos) break;
    out.append(text, from, at - from).append(value);
    from = at + 2;
  }
  return out.append(text.substr(from));
}

}  // namespace qves
