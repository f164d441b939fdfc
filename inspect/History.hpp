// The whole story of every member: each line that touched it, what the reader made of the line, each repair.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/ReadObserver.hpp"

namespace zeb {

/// One thing that happened to a member.
struct HistoryStep {
  enum class Kind {
    kLine,          ///< a key or positional field with the member's value
    kList,          ///< a list that another key announced
    kMissingField,  ///< the positional line lacks the field, which counts as 0
    kRepair,
  };
  Kind kind = Kind::kLine;
  const Section* section = nullptr;  ///< null for a repair
  const Row* row = nullptr;          ///< of the key that stood in the line; null for a repair
  const Row* target = nullptr;       ///< of the member that was set; null for a repair
  const void* address = nullptr;     ///< of the member; null for a missing field
  KeyOutcome outcome = KeyOutcome::kStored;
  std::string file;  ///< empty for the analysis' own file
  int lineNumber = 0;
  std::string line;  ///< as the reader saw it
  std::string key;   ///< the spelling that matched; empty for a field
  std::string used;  ///< the part of the value text that the conversion took
  std::string left;  ///< the part behind it
  std::vector<std::string> listLines;
  std::string condition;  ///< of a repair
  std::string before;     ///< of a repair: the member's value, exactly
  std::string after;      ///< the member's value behind the step

  /// Whether the step gave the member a value, be it the same.
  bool sets() const { return outcome == KeyOutcome::kStored || outcome == KeyOutcome::kRefused; }
};

/// Records while a file is read and repaired; ask afterwards, as long as the parameter set lives.
class History final : public ReadObserver {
 public:
  /// The steps of the row's member in `block`, in order. An element of an array has the steps of its own key and of
  /// whatever sets the whole array.
  std::vector<const HistoryStep*> stepsOf(const Row& row, void* block) const;
  /// The other keys that stand in the line of the step.
  std::vector<const HistoryStep*> othersOf(const HistoryStep& step) const;
  /// The lines that opened the section, in order.
  std::vector<int> openings(const Section& section) const;

  void fileStarted(std::string_view fileName) override;
  void lineRead(int lineNumber, std::string_view line) override;
  void sectionOpened(const Section& section, int lineNumber) override;
  void sectionClosed(const Section& section, int lineNumber) override;
  void sectionUnclosed(const Section& section, int lineNumber) override;
  void keyFound(const KeyEvent& event) override;
  void lineOfList(const Section& section, int lineNumber, std::string_view line, bool used) override;
  void linePositional(const Section& section, int lineNumber, int positionalLine, int converted, int expected,
                      std::string_view tail) override;
  void repaired(const RepairEvent& event) override;

 private:
  struct Opening {
    const Section* section;
    int lineNumber;
  };

  HistoryStep stepOf(const KeyEvent& event) const;
  // A list's members are complete only when the next thing happens.
  void settleLists();

  std::vector<HistoryStep> m_steps;
  std::vector<Opening> m_openings;
  std::size_t m_firstOpenList = 0;
  void* m_listBlock = nullptr;  // null: no list is being read
  int m_filesStarted = 0;
  std::string m_laterFile;
  std::string m_line;
};

}  // namespace zeb
