// Texts as the speech libraries can take them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TTS.h"

namespace qves {

/// The text with a blank in place of every byte that is not valid UTF-8 and of every control character but
/// line end and tab. Its length stays, so that offsets stay right.
std::string CleanText(std::string_view text);

/// The marks in the order of their offsets; those beyond the end are at the end.
std::vector<BookMark> OrderedMarks(std::span<const BookMark> marks, std::size_t length);

/// Where each offset (in bytes, ascending) lies in a clean text, in characters from 0.
std::vector<std::size_t> CharacterPositions(std::string_view text, std::span<const BookMark> marks);

/// A part of a text that is spoken in one go.
struct TextPiece {
  std::string Text;
  std::vector<std::int32_t> FirstMarks;  ///< reached when the piece begins
  std::vector<std::int32_t> LaterMarks;  ///< those within it
};

/// Cuts a clean text at the marks that begin a sentence or a line, and at the ends of lines, sentences or
/// words so that a piece has about `longest` bytes at most. The marks are ordered.
std::vector<TextPiece> CutText(std::string_view text, std::span<const BookMark> marks, std::size_t longest);

}  // namespace qves
