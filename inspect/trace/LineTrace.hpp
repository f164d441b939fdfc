// The one observer of the readers: turns what they tell into a record of each line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/SharedArray.h"
#include "inspect/set/ParameterFile.hpp"
#include "inspect/trace/ReadLine.hpp"

namespace zeb {

/// Is told of the lines of a reading in their order, each when all is known that became of it. The records are valid
/// during the call only, so that a file of any length takes no memory.
class TraceReader {
 public:
  virtual ~TraceReader() = default;
  virtual void fileStarted(std::string_view /*fileName*/) {}
  virtual void line(const ReadLine& /*line*/) {}
  /// Nothing of the file is kept: the line that decided it, its text, and why. Where the file ends before that line,
  /// its last one; 0 where it has none or cannot be opened.
  virtual void fileRefused(int /*lineNumber*/, std::string_view /*text*/, std::string_view /*reason*/) {}
  virtual void repaired(const RepairEvent& /*event*/) {}
  /// Whether records shall hold the values of the row's member: it costs a text for each, and an array's is long.
  virtual bool wantsValueOf(const Row& /*row*/) const { return false; }
};

/// A line is handed on when the next one is read; the lines of a positional section together, when it ends, as a later
/// line may decide about an earlier one.
class LineTrace final : public ReadObserver {
 public:
  explicit LineTrace(TraceReader& reader) : m_reader(reader) {}

  /// Hands on what is left; to be called when all has been read.
  void finish();

  void fileStarted(std::string_view fileName) override;
  void lineRead(int lineNumber, std::string_view line) override;
  void versionRead(bool parsed, int version) override;
  void sectionOpened(const Section& section, void* block, int lineNumber, std::string_view openingLine) override;
  void sectionEnded(const Section& section, SectionEnd end) override;
  void keyFound(const KeyEvent& event) override;
  void lineOfList(const EntryEvent& entry) override;
  void listEnded() override;
  void linePositional(int positionalLine, int converted, int expected, std::string_view tail) override;
  void fileRefused(int lineNumber, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  /// What the members of an open list were before it. The arrays are held, so that a new one has another address.
  struct Before {
    const Row* row;
    void* block;
    std::string value;
    SharedArray<int> ints;
    SharedArray<double> doubles;
    bool isReplaced() const;
  };

  ReadLine& start(int number, std::string_view text, ReadLine::Part part);
  ReadLine& lineOf(const KeyEvent& event);
  void handOn();
  void release();
  void openList(const Hit& hit, const KeyEvent& event);
  void closeList();
  std::string valueFor(const Row& row, void* block) const;

  TraceReader& m_reader;
  ReadLine m_line;
  bool m_hasLine = false;
  std::vector<ReadLine> m_held;  // of the positional section that is being read
  const Section* m_section = nullptr;
  void* m_block = nullptr;
  int m_linesInSection = 0;
  bool m_listIsOpen = false;
  ListTaken m_list;
  std::vector<Before> m_before;
};

/// Reads the file as a solver would. `options` matter to kCmp alone; `com` may be null.
ParameterFile readTraced(const std::string& fileName, FileKind kind, const AnalysisOptions& options, CZEBCom* com,
                         TraceReader& reader);

}  // namespace zeb
