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
    const char* const end = nextEnd();
    if (end == m_end || m_mayHoldNul) [[unlikely]] {
      return nextWithCare(line, equals);
    }
    take(end, line, equals);
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

  // Behind the text stands an LF more, so that the search for one needs no limit.
  const char* nextEnd() {
    while (m_ends == 0) m_ends = m_marks[++m_marked].ends;
    return m_text + m_marked * kMarked + std::countr_zero(m_ends);
  }

  void take(const char* end, std::string_view& line, const char*& equals) {
    m_ends &= m_ends - 1;
    line = {m_at, static_cast<std::size_t>(end - m_at)};
    equals = firstSign(end);
    m_at = end + 1;
  }

  const char* firstSign(const char* end) const {
    const auto offset = static_cast<std::size_t>(m_at - m_text);
    const LineMarks* marks = m_marks + offset / kMarked;
    const LineMarks* const last = m_marks + m_marked;
    const char* from = m_at;
    std::uint64_t signs = marks->signs >> (offset % kMarked);
    while (signs == 0 && marks != last) {
      from = m_text + static_cast<std::size_t>(++marks - m_marks) * kMarked;
      signs = marks->signs;
    }
    if (signs == 0) return nullptr;
    const char* const sign = from + std::countr_zero(signs);
    return sign < end ? sign : nullptr;
  }

  std::istream& m_stream;
  char* m_text;        // the block's first character
  LineMarks* m_marks;  // of the block
  const char* m_at;    // what is left of the block's text
  const char* m_end;
  std::uint64_t m_ends;  // the marked line ends that are left of the 64 characters with the number m_marked
  std::size_t m_marked;
  std::size_t m_capacity = kFirstCapacity;
  bool m_mayHoldNul = false;
  bool m_isExhausted = false;
  std::unique_ptr<char[]> m_largeBlock;
  std::unique_ptr<LineMarks[]> m_largeMarks;
  LineMarks m_firstMarks[kFirstCapacity / kMarked + 1];
  char m_firstBlock[kLineMargin + kFirstCapacity + kLineMargin];
};

}  // namespace zeb
