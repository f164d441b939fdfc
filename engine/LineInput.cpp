#include "engine/LineInput.hpp"

#include <algorithm>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zeb {

namespace {

#if defined(__SSE2__)
LineMarks marksOf(const char* text) {
  const __m128i lf = _mm_set1_epi8('\n'), sign = _mm_set1_epi8('=');
  LineMarks marks{};
  for (unsigned at = 0; at < 64; at += 16) {
    const __m128i sixteen = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + at));
    const auto bits = [=](__m128i same) { return std::uint64_t{static_cast<unsigned>(_mm_movemask_epi8(same))} << at; };
    marks.ends |= bits(_mm_cmpeq_epi8(sixteen, lf));
    marks.signs |= bits(_mm_cmpeq_epi8(sixteen, sign));
  }
  return marks;
}
#else
LineMarks marksOf(const char* text) {
  LineMarks marks{};
  for (unsigned at = 0; at < 64; ++at) {
    marks.ends |= std::uint64_t{text[at] == '\n'} << at;
    marks.signs |= std::uint64_t{text[at] == '='} << at;
  }
  return marks;
}
#endif

}  // namespace

void LineInput::startWithNothing() {
  m_text = m_firstBlock + kLineMargin;
  m_text[0] = '\n';
  m_allMarks = m_firstMarks;
  m_at = m_end = m_text;
  mark(0);
}

// The line at a block's end goes on in the next block, unless the input ends with it.
bool LineInput::nextWithCare(std::string_view& line, const char*& equals) {
  const auto nextEnd = [this] {
    while (m_marks.ends == 0) goToNextMarks();
    return m_marked + std::countr_zero(m_marks.ends);
  };
  bool goesOn = true;
  while (goesOn && nextEnd() == m_end) goesOn = readMore();
  const char* const end = nextEnd();
  line = {m_at, static_cast<std::size_t>(end - m_at)};
  line = line.substr(0, line.find('\0'));
  equals = static_cast<const char*>(std::memchr(m_at, '=', line.size()));
  const bool delivered = m_at != m_end;
  if (end == m_end) {
    m_at = m_end;  // the last line has no LF of its own
  } else {
    goBehind(end);
  }
  return delivered;
}

// Puts more text behind what is left. False when there is none.
bool LineInput::readMore() {
  if (m_isExhausted || !m_stream.good()) return false;
  auto kept = static_cast<std::size_t>(m_end - m_at);
  const bool stays = makeRoom(kept);
  const std::size_t count = readBehind(kept);
  m_isExhausted = count == 0;
  m_at = m_text;
  m_end = m_text + kept + count;
  m_text[kept + count] = '\n';
  mark(stays ? kept / kMarked : 0);
  const std::size_t searched = stays ? kept : 0;
  m_mayHoldNul = (stays && m_mayHoldNul) || std::memchr(m_text + searched, '\0', kept + count - searched) != nullptr;
  return !m_isExhausted;
}

// Moves what is left to the block's beginning. True where it stood there, so that its marks still hold.
bool LineInput::makeRoom(std::size_t kept) {
  const bool stays = m_at == m_text;
  if (kept <= m_capacity / 2) {
    if (!stays) std::memmove(m_text, m_at, kept);
    return stays;
  }
  const std::size_t capacity = 2 * m_capacity;
  std::unique_ptr<char[]> block(new char[kLineMargin + capacity + kLineMargin]);
  std::unique_ptr<LineMarks[]> marks(new LineMarks[capacity / kMarked + 1]);
  std::memcpy(block.get() + kLineMargin, m_at, kept);
  std::memcpy(marks.get(), m_allMarks, (kept / kMarked + 1) * sizeof(LineMarks));
  m_at = m_text = block.get() + kLineMargin;
  m_allMarks = marks.get();
  m_largeBlock = std::move(block);
  m_largeMarks = std::move(marks);
  m_capacity = capacity;
  return stays;
}

// As many characters as one access to the device gives: were more asked for at once, those read before a failure would
// be lost with it. What a failing device leaves of a line is no line.
std::size_t LineInput::readBehind(std::size_t& kept) {
  std::streambuf& source = *m_stream.rdbuf();
  try {
    if (source.sgetc() == std::streambuf::traits_type::eof()) return 0;
    const auto room = static_cast<std::streamsize>(m_capacity - kept);
    const std::streamsize count = source.sgetn(m_text + kept, std::clamp<std::streamsize>(source.in_avail(), 1, room));
    return static_cast<std::size_t>(std::max<std::streamsize>(count, 0));
  } catch (...) {
    kept = 0;
    m_stream.setstate(std::ios_base::badbit);
    return 0;
  }
}

// Marks the text from the 64 characters with the number `from` on, the LF behind it included.
void LineInput::mark(std::size_t from) {
  const auto length = static_cast<std::size_t>(m_end - m_text);
  for (std::size_t number = from; number <= length / kMarked; ++number) {
    m_allMarks[number] = marksOf(m_text + number * kMarked);
  }
  m_wholeMarks = m_allMarks + from;
  m_marks = *m_wholeMarks;
  m_marked = m_text + from * kMarked;
}

}  // namespace zeb
