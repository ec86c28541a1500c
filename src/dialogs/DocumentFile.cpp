#include "dialogs/DocumentFile.h"

#include "text/TextPlaces.h"

namespace qves {
namespace {

// A window would be busy with a longer one for too long.
constexpr std::size_t LongestDocument = 12'000'000;

}  // namespace

std::string ReadDocumentFile(const std::string& path, Services& services) {
  std::string error;
  std::string source = services.Outside.Files.Read(path, error).value_or("");
  if (source.empty())
    error = (error.empty() ? "it is empty" : error) + "; an empty document is shown";
  else if (source.size() > LongestDocument)
    error = "it is too long; its beginning is shown";
  if (!error.empty()) services.Log.WriteErrorLog(DocumentErrorCode, path + ": " + error);
  if (source.size() > LongestDocument) source.resize(PreviousCharacter(source, LongestDocument + 1));
  return source;
}

}  // namespace qves
