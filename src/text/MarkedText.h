// Texts with marks in them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace qves {

/// A mark inside a text; it is reported when the speech reaches it, and again when a piece of the text is
/// spoken again after a failure.
struct BookMark {
  std::size_t Offset = 0;  ///< in bytes from the start of the text
  std::int32_t Number = 0;
};

struct MarkedText {
  std::string Text;
  std::vector<BookMark> Marks;  ///< in the order of their places
};

/// Moves the marks of a text into the one that is written from it.
class MarkMover {
 public:
  explicit MarkMover(std::span<const BookMark> marks) : Left(marks) {}

  /// The marks up to that place in the old text stand where the new one has come to.
  void MoveUpTo(std::size_t place, MarkedText& written) {
    for (; !Left.empty() && Left.front().Offset <= place; Left = Left.subspan(1))
      written.Marks.push_back({written.Text.size(), Left.front().Number});
  }

 private:
  std::span<const BookMark> Left;
};

}  // namespace qves
