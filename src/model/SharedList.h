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
    std::vector<Piece> pieces = Row();
    if (pieces.empty() || pieces.back().End() != pieces.back().Buffer->size())
      pieces.push_back({std::make_shared<std::vector<T>>(), 0, 0});
    pieces.back().Buffer->insert(pieces.back().Buffer->end(), items.begin(), items.end());
    pieces.back().Count += items.size();
    Keep(std::move(pieces), Size + items.size());
  }
  void Append(const T& item) { Append(std::span(&item, 1)); }

  void Erase(std::size_t from, std::size_t count) {
    std::vector<Piece> pieces;
    std::size_t start = 0;
    const auto keep = [&](const Piece& piece, std::size_t first, std::size_t last) {
      if (first < last) pieces.push_back({piece.Buffer, piece.From + first, last - first});
    };
    for (const Piece& piece : Row()) {
      const std::size_t cutFrom = std::clamp(from, start, start + piece.Count) - start;
      const std::size_t cutTo = std::clamp(from + count, start, start + piece.Count) - start;
      keep(piece, 0, cutFrom);
      keep(piece, cutTo, piece.Count);
      start += piece.Count;
    }
    Keep(std::move(pieces), Size - count);
  }
  /// Everything from `size` on goes.
  void Shorten(std::size_t size) {
    if (size < Size) Erase(size, Size - size);
  }
  void Clear() { *this = {}; }
  void Set(std::size_t index, const T& item) {
    std::vector<T> after = Copy(index + 1, Size);
    Shorten(index);
    Append(item);
    Append(after);
  }

  std::vector<T> Copy() const { return Copy(0, Size); }

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

  std::vector<T> Copy(std::size_t from, std::size_t to) const {
    std::vector<T> items;
    if (from < to) items.reserve(to - from);
    for (std::size_t i = from; i < to; ++i) items.push_back((*this)[i]);
    return items;
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
