// The whole story of every member: each line that touched it, what the reader made of the line, each repair.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/ReadObserver.hpp"
#include "inspect/trace/ListTrace.hpp"

namespace zeb {

/// One thing that happened to a member, or to a section that holds it.
struct HistoryStep {
  enum class Kind {
    kLine,          ///< a key or positional field with the member's value
    kList,          ///< a list that another key announced
    kMissingField,  ///< the positional line lacks the field, or reading stops before it
    kNotTaken,      ///< the positional field is read and its value not taken
    kRefused,       ///< the section or head is not read
    kRepair,
  };
  Kind kind = Kind::kLine;
  const Section* section = nullptr;  ///< null for a repair, and for a head that a version line refuses
  const Row* row = nullptr;          ///< of the key that stood in the line; null for a repair or a refusal
  const Row* target = nullptr;       ///< of the member that was set; null for a repair or a refusal
  const void* address = nullptr;     ///< of the member; null where none was set
  KeyOutcome outcome = KeyOutcome::kStored;
  std::string file;  ///< empty for the analysis' own file
  int lineNumber = 0;
  std::string line;  ///< as the reader saw it
  std::string key;   ///< the spelling that matched; empty for a field
  std::string used;  ///< the part of the value text that the conversion took
  std::string left;  ///< the part behind it
  std::vector<std::string> listLines;
  int positionalLine = 0;  ///< of a field, counted in its section
  std::string reason;      ///< of a field or section that is not read
  std::string condition;   ///< of a repair
  std::string before;      ///< of a repair: the member's value, exactly
  std::string after;       ///< the member's value behind the step; empty where it is known only to be unchanged

  /// Whether the step gave the member a value, be it the same.
  bool sets() const { return !after.empty() && (outcome == KeyOutcome::kStored || outcome == KeyOutcome::kRefused); }
};

/// Records while a file is read and repaired; ask afterwards, as long as the parameter set lives.
class History final : public ReadObserver {
 public:
  History() = default;
  /// Keeps only the lines that touch these members, whatever else they hold.
  explicit History(std::vector<const Row*> wanted) : m_wanted(std::move(wanted)) {}

  /// Of a row that is one element of an array: its own key's steps, or also those of the other elements' keys.
  enum class Elements { kOwn, kAll };

  /// The steps of the row's member in `block`, in order, with those that set the whole array.
  std::vector<const HistoryStep*> stepsOf(const Row& row, void* block, Elements elements = Elements::kOwn) const;
  /// The other keys that stand in the line of the step.
  std::vector<const HistoryStep*> othersOf(const HistoryStep& step) const;
  /// The lines that opened the section, in order.
  std::vector<int> openings(const Section& section) const;

  void fileStarted(std::string_view fileName) override;
  void lineRead(int lineNumber, std::string_view line) override;
  void versionRead(int lineNumber, std::string_view line, bool parsed, int version) override;
  void sectionOpened(const Section& section, int lineNumber) override;
  void sectionClosed(const Section& section, int lineNumber) override;
  void sectionUnclosed(const Section& section, int lineNumber) override;
  void sectionRefused(const Section& section, int lineNumber, int version) override;
  void keyFound(const KeyEvent& event) override;
  void fieldNotTaken(const KeyEvent& event) override;
  void lineOfList(const Section& section, int lineNumber, std::string_view line, bool used) override;
  void linePositional(const Section& section, int lineNumber, int positionalLine, int converted, int expected,
                      std::string_view tail) override;
  void viscoelasticRefused(int lineNumber, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  struct Opening {
    const Section* section;
    int lineNumber;
  };

  HistoryStep stepAt(HistoryStep::Kind kind, const Section* section, int lineNumber) const;
  HistoryStep stepOf(const KeyEvent& event) const;
  // Whether a field of the line just read has set the row's member.
  bool isSetBy(int lineNumber, const Row& row) const;
  void takeBack(const KeyEvent& event);
  void forgetUnwanted();
  void addVersionStep(const Section& section);
  void addListStep(const Row& row, void* block, const std::vector<ListTrace::Line>& lines, std::string after);
  // A list's members are complete only when the next thing happens.
  void settleList();

  std::vector<const Row*> m_wanted;  // empty: all
  std::vector<HistoryStep> m_steps;
  std::size_t m_decided = 0;  // of the steps: they stay
  std::vector<Opening> m_openings;
  ListTrace m_list;
  HistoryStep m_listStep;                          // of the key that announced the open list
  std::map<const Row*, std::string> m_listValues;  // before the line behind that key, which may set elements
  bool m_listIsNew = false;
  HistoryStep m_versionStep;  // of the line behind the opening just read
  bool m_isOpening = false;   // since the last line
  int m_filesStarted = 0;
  std::string m_laterFile;
  std::string m_line, m_lineBefore;
  int m_lineNumber = 0;
  bool m_lineIsNew = false;    // since the last positional line
  bool m_hasNotTaken = false;  // among the steps of the head just read
};

}  // namespace zeb
