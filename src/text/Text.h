// Small helpers on texts.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qves {

/// Calls `visit` with the number (from 1) and the text of each line, without its LF or CR LF and without a
/// byte-order mark at the start of the first.
void ForEachLine(std::string_view text, const std::function<void(int, std::string_view)>& visit);

/// The text without a byte-order mark at its start.
std::string_view WithoutByteOrderMark(std::string_view text);

/// The text without those characters at its ends.
std::string_view Trimmed(std::string_view text, std::string_view characters = " ");

/// The text with every occurrence of `from` (not empty) replaced by `to`.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

/// The text with its ASCII letters small.
std::string Lower(std::string_view text);

/// The text with its ASCII letters large.
std::string Upper(std::string_view text);

/// The text with a "?" for every byte that is no well-formed UTF-8 and for every control character but those
/// kept.
std::string MakeReadable(std::string_view bytes, std::string_view keptControls = {});

/// True when `text` holds `part`, ASCII letters compared without regard to case.
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

}  // namespace qves
