// A list that can be copied at no cost and keeps what its copies share: the points of the Statistics view,
// cash flows, open groups, the tape. A copy is one pointer; a change touches nothing that another copy sees.
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace qves {

/// A row of pieces, each a part of a buffer that only grows. What goes out of the list stays in its buffer,
/// for the copies that still have it.
template <class T>
class SharedList {
 public:
  SharedList() = default;
  SharedList(std::initializer_list<T> items) { Append(std::span(items.begin(), items.size())); }

  std::size_t size() const { return Size; }
  bool empty() const { return Size == 0; }
  /// Good until something is appended to this list or to a copy.
  const T& operator[](std::size_t index) const {
    auto piece = Pieces->begin();
    for (; index >= piece->Count; ++piece) index -= piece->Count;
    return (*piece->Buffer)[piece->From + index];
  }
  const T& back() const { return (*this)[Size - 1]; }

  void Append(std::span<const T> items) {
    if (items.empty()) return;
    PieceRow pieces = Row();
    if (pieces.empty() || pieces.back().End() != pieces.back().Buffer->size())
      pieces.push_back({std::make_shared<std::vector<T>>(), 0, 0});
    pieces.back().Buffer->insert(pieces.back().Buffer->end(), items.begin(), items.end());
    pieces.back().Count += items.size();
    Keep(std::move(pieces), Size + items.size());
  }
  void Append(const T& item) { Append(std::span(&item, 1)); }

  /// Puts these items in the place of so many from `from` on.
  void Replace(std::size_t from, std::size_t count, std::span<const T> items) {
    PieceRow pieces;
    AddPart(pieces, 0, from);
    if (!items.empty())
      pieces.push_back({std::make_shared<std::vector<T>>(items.begin(), items.end()), 0, items.size()});
    AddPart(pieces, from + count, Size);
    Keep(std::move(pieces), Size - count + items.size());
  }
  void Erase(std::size_t from, std::size_t count) { Replace(from, count, {}); }
  void Set(std::size_t index, const T& item) { Replace(index, 1, std::span(&item, 1)); }
  /// Everything from `size` on goes.
  void Shorten(std::size_t size) {
    if (size < Size) Erase(size, Size - size);
  }
  void Clear() { *this = {}; }
  std::vector<T> Copy() const {
    std::vector<T> items;
    items.reserve(Size);
    for (const Piece& piece : Row()) {
      const auto first = piece.Buffer->begin() + static_cast<std::ptrdiff_t>(piece.From);
      items.insert(items.end(), first, first + static_cast<std::ptrdiff_t>(piece.Count));
    }
    return items;
  }

  bool operator==(const SharedList& other) const {
    if (Size != other.Size) return false;
    if (Pieces == other.Pieces) return true;
    for (std::size_t i = 0; i < Size; ++i)
      if ((*this)[i] != other[i]) return false;
    return true;
  }

 private:
  struct Piece {
    std::shared_ptr<std::vector<T>> Buffer;
    std::size_t From;
    std::size_t Count;
    std::size_t End() const { return From + Count; }
  };
  using PieceRow = std::vector<Piece>;

  const PieceRow& Row() const {
    static const PieceRow none;
    return Pieces ? *Pieces : none;
  }

  /// The pieces of a part of the list.
  void AddPart(PieceRow& pieces, std::size_t first, std::size_t last) const {
    std::size_t start = 0;
    for (const Piece& piece : Row()) {
      const std::size_t from = std::clamp(first, start, start + piece.Count) - start;
      const std::size_t to = std::clamp(last, start, start + piece.Count) - start;
      if (from < to) pieces.push_back({piece.Buffer, piece.From + from, to - from});
      start += piece.Count;
    }
  }

  /// Many small pieces would make each look at the list slow: they become one.
  void Keep(PieceRow pieces, std::size_t size) {
    Size = size;
    Pieces = std::make_shared<PieceRow>(std::move(pieces));
    if (Pieces->size() <= MostPieces) return;
    auto whole = std::make_shared<std::vector<T>>(Copy());
    Pieces = std::make_shared<PieceRow>(PieceRow{{std::move(whole), 0, Size}});
  }

  static constexpr std::size_t MostPieces = 64;

  std::shared_ptr<const PieceRow> Pieces;  ///< null or without an empty piece
  std::size_t Size = 0;
};

}  // namespace qves
