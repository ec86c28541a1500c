// Whatever the bytes: the reader ends, and what it gives keeps its promises.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "dialogs/RichText.h"
#include "text/Utf8.h"

namespace {

bool IsControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (byte < 0x20 && c != '\t') || byte == 0x7F;
}

bool KeepsPromises(const qves::TextRun& run) {
  const auto& style = run.Style;
  return !run.Text.empty() && qves::IsUtf8(run.Text) &&
         std::none_of(run.Text.begin(), run.Text.end(), IsControl) &&
         run.Text.find("\u2028") == std::string::npos && run.Text.find("\u2029") == std::string::npos &&
         style.HalfPoints > 0 && style.Color >= -1 && style.Color <= 0xFFFFFF;
}

bool KeepsPromises(const qves::Paragraph& paragraph) {
  return std::all_of(paragraph.Runs.begin(), paragraph.Runs.end(),
                     [](const qves::TextRun& run) { return KeepsPromises(run); }) &&
         std::abs(paragraph.LeftIndent) <= 31'680 && std::abs(paragraph.FirstIndent) <= 31'680;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const qves::RichText read = qves::ReadRichText({reinterpret_cast<const char*>(data), size});
  for (const qves::Paragraph& paragraph : read.Paragraphs)
    if (!KeepsPromises(paragraph)) std::abort();
  return 0;
}
