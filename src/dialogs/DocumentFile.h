// The files that the dialogs show.
#pragma once

#include <string>

#include "services/Services.h"

namespace qves {

/// The bytes of a document, or of a long one its beginning; "" when it cannot be read. What is wrong is
/// logged.
std::string ReadDocumentFile(const std::string& path, Services& services);

}  // namespace qves
