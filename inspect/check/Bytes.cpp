#include "inspect/check/Bytes.hpp"

#include <array>
#include <cstdint>
#include <fstream>
#include <memory>

#include "engine/LineSource.hpp"

namespace zeb {

using namespace std::string_view_literals;

namespace {

// A comment of so many bytes, with its line end.
template <std::size_t Bytes>
constexpr auto commentOf() {
  std::array<char, Bytes + 1> text{};
  text.fill('x');
  text[0] = '#';
  text[1] = ' ';
  text[Bytes] = '\n';
  return text;
}
constexpr auto kLongestLine = commentOf<ZEBLINE_MAX - 1>();
constexpr auto kTooLongLine = commentOf<ZEBLINE_MAX>();
constexpr std::string_view kLongest(kLongestLine.data(), kLongestLine.size());
constexpr std::string_view kTooLong(kTooLongLine.data(), kTooLongLine.size());

}  // namespace

const CheckRule kLineTooLong{
    "line-too-long",
    "A line is longer than 254 characters and is cut in parallel runs.",
    "shorten the line",
    "Ranks share lines of at most 254 bytes. A longer one is read whole in serial and cut in parallel.",
    {kTooLong, 1, 255, "the line has 255 bytes; in parallel it is cut here, behind the first 254", kLongest}};

const CheckRule kCarriageReturn{
    "carriage-return",
    "The file holds carriage returns.",
    "save with LF line ends",
    "Files are opened as text, where CR LF ends a line as LF does. A CR elsewhere is part of its line, "
    "and of a text value that ends there.",
    {"# text\r\n", 1, 7,
     "1 line ends in CR LF; where the host's opener does not remove the CR, it becomes part of text values",
     "# text\n"}};

const CheckRule kNulByte{"nul-byte",
                         "A NUL ends its line for the reader.",
                         "remove the NUL",
                         "What stands behind it in its line is lost.",
                         {"# a\000b\n"sv, 1, 4, "a NUL: the reader ignores the rest of the line", "# ab\n"}};

const CheckRule kNoFinalNewline{
    "no-final-newline",
    "The last line has no line end.",
    "end the file with a line end",
    "The last line is read all the same; but it may be the rest of a file whose end was lost on the way.",
    {"[ShortShot]\n[/ShortShot]", 2, 13, "the last line has no line end", "[ShortShot]\n[/ShortShot]\n"}};

const CheckRule kByteOrderMark{
    "byte-order-mark",
    "The file begins with a byte-order mark.",
    "save without one",
    "The three bytes belong to the first line; other programs that read the file may stumble.",
    {"\357\273\277[ShortShot]\n[/ShortShot]\n", 1, 1, "the file begins with a byte-order mark",
     "[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n"}};

const CheckRule kNotUtf8{
    "not-utf8",
    "Bytes are not UTF-8.",
    "save as UTF-8",
    "Names are handed on byte by byte; a name that is not UTF-8 may not be found on another system.",
    {"# \374\n", 1, 3, "bytes that are not UTF-8", "# \303\274\n"}};

namespace {

/// Tells at each byte whether the text can still be UTF-8: no overlong forms, no surrogates.
class Utf8Check {
 public:
  bool accepts(unsigned char byte) {
    if (m_missing > 0) {
      const bool fits = byte >= m_low && byte <= m_high;
      m_low = 0x80;
      m_high = 0xBF;
      m_missing = fits ? m_missing - 1 : 0;
      return fits;
    }
    if (byte < 0x80) return true;
    if (byte < 0xC2 || byte > 0xF4) return false;
    m_missing = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
    if (byte == 0xE0) m_low = 0xA0;
    if (byte == 0xED) m_high = 0x9F;
    if (byte == 0xF0) m_low = 0x90;
    if (byte == 0xF4) m_high = 0x8F;
    return true;
  }
  /// A line's end; false when it cuts a character.
  bool ends() {
    const bool whole = m_missing == 0;
    *this = Utf8Check();
    return whole;
  }

 private:
  int m_missing = 0;
  unsigned char m_low = 0x80;
  unsigned char m_high = 0xBF;
};

class RawFile {
 public:
  explicit RawFile(DiagnosticList& found) : m_found(found) {}

  void take(char c) {
    if (c == '\n') return endLine();
    if (m_length < kKept) m_text += c;
    if (c == '\0' && m_nul == kNone) m_nul = m_length;
    if (m_heldCr && m_loneCr == kNone) m_loneCr = m_length - 1;
    m_heldCr = c == '\r';
    if (m_notUtf8 == kNone && !m_utf8.accepts(static_cast<unsigned char>(c))) m_notUtf8 = m_length;
    ++m_length;
  }

  void finish() {
    if (m_length > 0) {
      m_found.add(kNoFinalNewline, m_line, m_text, m_text.size(), "the last line has no line end");
      if (m_heldCr && m_loneCr == kNone) m_loneCr = m_length - 1;
      m_heldCr = false;
      endLine();
    }
    if (m_crLines > 0) {
      m_found.add(kCarriageReturn, m_firstCr,
                  std::to_string(m_crLines) +
                      (m_crLines == 1 ? " line ends in CR LF" : " lines end in CR LF, this is the first") +
                      "; where the host's opener does not remove the CR, it becomes part of text values");
    }
  }

 private:
  static constexpr std::size_t kNone = ~std::size_t{0};
  static constexpr std::size_t kKept = 400;
  static constexpr std::size_t kMostBytes = ZEBLINE_MAX - 1;

  void endLine() {
    if (m_line == 1 && m_text.starts_with("\xEF\xBB\xBF")) {
      m_found.add(kByteOrderMark, 1, m_text, 0, "the file begins with a byte-order mark");
    }
    if (m_notUtf8 == kNone && !m_utf8.ends()) m_notUtf8 = m_length;
    m_utf8 = Utf8Check();
    if (m_heldCr) {
      if (m_text.ends_with('\r')) m_text.pop_back();
      --m_length;
      if (m_crLines++ == 0) m_firstCr = placeIn(m_line, m_text, m_text.size());
    }
    if (m_loneCr != kNone) {
      m_found.add(kCarriageReturn, m_line, m_text, m_loneCr, "a carriage return inside the line");
    }
    if (m_nul != kNone) {
      m_found.add(kNulByte, m_line, m_text, m_nul, "a NUL: the reader ignores the rest of the line");
    }
    if (m_notUtf8 != kNone) {
      m_found.add(kNotUtf8, m_line, m_text, m_notUtf8, "bytes that are not UTF-8");
    }
    if (m_length > kMostBytes) {
      m_found.add(kLineTooLong, m_line, m_text, kMostBytes,
                  "the line has " + std::to_string(m_length) + " bytes; in parallel it is cut here, behind the first " +
                      std::to_string(kMostBytes));
    }
    m_text.clear();
    m_length = 0;
    m_nul = m_loneCr = m_notUtf8 = kNone;
    m_heldCr = false;
    ++m_line;
  }

  DiagnosticList& m_found;
  Utf8Check m_utf8;
  std::string m_text;
  std::size_t m_length = 0;
  std::size_t m_nul = kNone, m_loneCr = kNone, m_notUtf8 = kNone;
  bool m_heldCr = false;
  int m_line = 1;
  int m_crLines = 0;
  Place m_firstCr;
};

}  // namespace

void checkRawBytes(std::istream& stream, DiagnosticList& found) {
  constexpr std::size_t kPiece = 65536;
  const auto piece = std::make_unique<char[]>(kPiece);
  RawFile file(found);
  while (stream.good()) {
    stream.read(piece.get(), static_cast<std::streamsize>(kPiece));
    const auto count = stream.gcount();
    for (std::streamsize i = 0; i < count; ++i) file.take(piece[static_cast<std::size_t>(i)]);
  }
  file.finish();
}

void checkRawFile(const std::string& fileName, DiagnosticList& found) {
  std::ifstream stream(fileName, std::ios::binary);
  checkRawBytes(stream, found);
}

}  // namespace zeb
