// The collective line source: rank 0 reads a line, every rank receives it.
#pragma once

#include <fstream>
#include <istream>
#include <string>
#include <string_view>

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
  int getLine(std::istream& stream, std::string& line) const;

 private:
  int shareLine(std::istream& stream, std::string& line) const;
  void trace(std::string_view text) const;
};

/// Opens a parameter file through the platform. Returns 1, or -1 (silently) when it cannot be opened: the file is
/// then read as an empty one.
int openFile(std::ifstream& stream, const std::string& fileName);

/// One file on its way through the readers: its stream, its line source, and whoever watches.
class LineReader {
 public:
  LineReader(std::istream& stream, const LineSource& source, ReadObserver* observer, int linesBefore = 0)
      : m_stream(stream), m_source(source), m_observer(observer), m_lineNumber(linesBefore) {}

  /// As LineSource::getLine.
  bool next(std::string& line);
  /// For readers that take a fixed number of lines: a failed read is an empty line, on every rank.
  bool nextOrEmpty(std::string& line);

  /// Of the line delivered last, counted from 1.
  int lineNumber() const { return m_lineNumber; }
  std::istream& stream() const { return m_stream; }
  const LineSource& source() const { return m_source; }
  /// Null in a solver.
  ReadObserver* observer() const { return m_observer; }
  /// The line on which a section reader works: one buffer for all sections of a file. Lists use their own.
  std::string& sectionLine() { return m_sectionLine; }
  /// Goes on where another reader of the same stream stopped.
  void continueAfter(const LineReader& other) { m_lineNumber = other.m_lineNumber; }

 private:
  std::istream& m_stream;
  const LineSource& m_source;
  ReadObserver* m_observer;
  int m_lineNumber = 0;
  std::string m_sectionLine;
};

}  // namespace zeb
