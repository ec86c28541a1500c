// Texts as the speech libraries can take them.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/MarkedText.h"

namespace qves {

/// The text with a blank in place of every byte that is not valid UTF-8 and of every control character but
/// line end and tab. Its length stays, so that offsets stay right.
std::string CleanText(std::string_view text);

/// The marks in the order of their offsets; those beyond the end are at the end.
std::vector<BookMark> OrderedMarks(std::span<const BookMark> marks, std::size_t length);

/// Where each offset (in bytes, ascending) lies in a clean text, in characters from 0.
std::vector<std::size_t> CharacterPositions(std::string_view text, std::span<const BookMark> marks);

/// The part of an ordered, clean text that is spoken in one go: up to the first mark that begins a sentence
/// or a line or, when that would be more than `longest` bytes, to the end of a line, a sentence or a word.
/// The last piece has the marks at its end.
MarkedText FirstPiece(const MarkedText& text, std::size_t longest);

/// Takes so many bytes off, with the marks before that place.
void DropFront(MarkedText& text, std::size_t length);

}  // namespace qves
