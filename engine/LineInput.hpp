// The lines of a stream that is read to its end: taken in blocks, handed out in place.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <string_view>

namespace zeb {

/// So many bytes before and behind a line that a LineReader delivers may be read, whatever they hold: room for loads
/// wider than a character. Directly behind it stands an LF or a NUL.
constexpr std::size_t kLineMargin = 64;

/// Where the line ends and the '=' stand in 64 characters, the first in the lowest bit.
struct LineMarks {
  std::uint64_t ends;
  std::uint64_t signs;
};

/// Reads ahead: the stream stands anywhere behind the lines that were taken.
class LineInput {
 public:
  explicit LineInput(std::istream& stream) : m_stream(stream) { startWithNothing(); }
  LineInput(const LineInput&) = delete;
  LineInput& operator=(const LineInput&) = delete;

  /// Delivers the next line, without its LF and up to its first NUL, valid until the next call, and its first '=',
  /// null where it has none. False, with an empty line, when the input is exhausted or cannot be read.
  bool next(std::string_view& line, const char*& equals) {
    const char* sign = nullptr;
    while (m_marks.ends == 0) [[unlikely]] {
        if (sign == nullptr && m_marks.signs != 0) sign = m_marked + std::countr_zero(m_marks.signs);
        goToNextMarks();
      }
    // Of the signs, those in front of the first line end are the line's.
    const std::uint64_t signs = m_marks.signs & (m_marks.ends - 1) & ~m_marks.ends;
    if (sign == nullptr && signs != 0) sign = m_marked + std::countr_zero(signs);
    const char* const end = m_marked + std::countr_zero(m_marks.ends);
    if (end == m_end || m_mayHoldNul) [[unlikely]] {
      return nextWithCare(line, equals);
    }
    line = {m_at, static_cast<std::size_t>(end - m_at)};
    equals = sign;
    goBehind(end);
    return true;
  }

 private:
  static constexpr std::size_t kMarked = 64;
  // Small enough to stay close to the processor. A longer line is read into a larger block, from the heap.
  static constexpr std::size_t kFirstCapacity = 4096 - kMarked;

  void startWithNothing();
  bool nextWithCare(std::string_view& line, const char*& equals);
  bool readMore();
  bool makeRoom(std::size_t kept);
  std::size_t readBehind(std::size_t& kept);
  void mark(std::size_t from);

  void goToNextMarks() {
    m_marks = *++m_wholeMarks;
    m_marked += kMarked;
  }
  // `end` is the first that is marked.
  void goBehind(const char* end) {
    m_marks.signs &= ~(m_marks.ends ^ (m_marks.ends - 1));
    m_marks.ends &= m_marks.ends - 1;
    m_at = end + 1;
  }

  std::istream& m_stream;
  char* m_text;           // the block's first character
  LineMarks* m_allMarks;  // of the block; behind its text stands an LF more, so that the search for one needs no limit
  const char* m_at;       // what is left of the block's text
  const char* m_end;
  LineMarks m_marks;  // those that are left of the 64 characters at m_marked
  const char* m_marked;
  const LineMarks* m_wholeMarks;  // of these 64 characters
  std::size_t m_capacity = kFirstCapacity;
  bool m_mayHoldNul = false;
  bool m_isExhausted = false;
  std::unique_ptr<char[]> m_largeBlock;
  std::unique_ptr<LineMarks[]> m_largeMarks;
  LineMarks m_firstMarks[kFirstCapacity / kMarked + 1];
  char m_firstBlock[kLineMargin + kFirstCapacity + kLineMargin];
};

}  // namespace zeb
