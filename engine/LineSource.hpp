// The collective line source: rank 0 reads a line, every rank receives it.
#pragma once

#include <fstream>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "engine/LineInput.hpp"
#include "platform/ZEBCom.h"

namespace zeb {

class ReadObserver;

/// The unit of broadcast, fixed by CZEBCom::Broadc.
constexpr std::size_t ZEBLINE_MAX = 255;

/// What the readers' line sources have in common and where they differ.
struct LineSource {
  CZEBCom* com = nullptr;    ///< Not owned; null means serial: no collective call, no limit to a line's length.
  int printLevel = 0;        ///< Above 0, rank 0 traces every line that it hands on through a communicator.
  bool barrier = true;       ///< Meet at a barrier before the broadcasts.
  bool alwaysTrace = false;  ///< Whatever the print level, and the whole line also where it is cut for the others.

  /// Whether this process opens and reads the file.
  bool reads() const { return com == nullptr || com->GetCPUId() == 0; }
  bool traces() const { return alwaysTrace || printLevel > 0; }

  /// Delivers the next line (without its LF, up to its first NUL, and with a communicator at most 254 characters) and
  /// returns 1 on every rank, or returns 0 on every rank when the input is exhausted or cannot be read. `line` is then
  /// empty where the stream is read and unchanged elsewhere. Collective: one Barrier, one Broadi, and one Broadc for a
  /// delivered line.
  /// The stream stands right behind the line that was read.
  int getLine(std::istream& stream, std::string& line) const;

  /// The collective part: hands the line that was read where the file is read to every rank. False on every rank when
  /// none `isThere`. Needs a communicator.
  bool share(bool isThere, std::string_view line, char (&shared)[ZEBLINE_MAX]) const;

 private:
  void trace(std::string_view text) const;
};

/// Opens a parameter file through the platform. Returns 1, or -1 (silently) when it cannot be opened: the file is
/// then read as an empty one.
int openFile(std::ifstream& stream, const std::string& fileName);

/// One file on its way through the readers: its lines, its line source, and whoever watches. A line that is delivered
/// has margins (kLineMargin) and is valid until the next one is.
class LineReader {
 public:
  LineReader(std::istream& stream, const LineSource& source, ReadObserver* observer)
      : m_ownInput(std::in_place, stream), m_input(*m_ownInput), m_source(source), m_observer(observer) {}
  /// For lines that another source hands on: takes them where `other` stands.
  LineReader(LineReader& other, const LineSource& source)
      : m_input(other.m_input), m_source(source), m_observer(other.m_observer), m_lineNumber(other.m_lineNumber) {}

  /// As LineSource::getLine, but for the stream, which is read ahead, and for the empty line at the end.
  bool next(std::string_view& line) {
    const bool delivered = m_source.com == nullptr ? m_input.next(line, m_equals) : nextShared(line);
    m_lineNumber += delivered ? 1 : 0;
    if (m_observer != nullptr && delivered) [[unlikely]] {
      tellObserver(line);
    }
    return delivered;
  }
  /// For readers that take a fixed number of lines: a failed read is an empty line, on every rank.
  bool nextOrEmpty(std::string_view& line) {
    line = {};
    return next(line);
  }

  /// The first '=' of the line delivered last; null where it has none.
  const char* equals() const { return m_equals; }
  /// Of the line delivered last, counted from 1.
  int lineNumber() const { return m_lineNumber; }
  const LineSource& source() const { return m_source; }
  /// Null in a solver.
  ReadObserver* observer() const { return m_observer; }
  /// A copy of the line that stays, up to the next call, while more lines are taken.
  std::string_view keep(std::string_view line) { return m_kept.assign(line); }
  /// Goes on where another reader of the same stream stopped.
  void continueAfter(const LineReader& other) { m_lineNumber = other.m_lineNumber; }

 private:
  bool nextShared(std::string_view& line);
  void tellObserver(std::string_view line) const;

  struct SharedLine {
    char before[kLineMargin];
    char text[ZEBLINE_MAX];
    char behind[kLineMargin];
  };

  std::optional<LineInput> m_ownInput;
  LineInput& m_input;
  const LineSource& m_source;
  ReadObserver* m_observer;
  int m_lineNumber = 0;
  const char* m_equals = nullptr;
  SharedLine m_shared = {};
  std::string m_kept;
};

}  // namespace zeb
