// Texts of files in the encodings that programs write.
#pragma once

#include <string>
#include <string_view>

namespace qves {

/// The text of a file in UTF-8, without a byte-order mark: UTF-16 where the mark says so, else UTF-8, else
/// Latin 1. What is no character becomes U+FFFD.
std::string ToUtf8(std::string_view bytes);

}  // namespace qves
