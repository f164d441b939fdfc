// The whole story of a member: each line that touched it, what the reader made of the line, each repair.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "inspect/trace/LineTrace.hpp"

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
  /// Another key that stands in the same line.
  struct Other {
    std::string_view key;
    const Row* row;
    KeyOutcome outcome;
    std::string after;
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
  std::vector<Other> others;
  std::vector<std::string> listLines;
  int positionalLine = 0;   ///< of a field, counted in its section
  std::string reason;       ///< of a field or section that is not read
  std::string condition;    ///< of a repair
  std::string before;       ///< of a repair: the member's value, exactly
  std::string after;        ///< the member's value behind the step; empty where it is known only to be unchanged
  std::size_t order = 0;    ///< among all steps
  std::size_t leftOut = 0;  ///< steps of the member before this one that are not kept

  /// Whether the step gave the member a value, be it the same.
  bool sets() const {
    return !after.empty() && outcome != KeyOutcome::kUnparsed && outcome != KeyOutcome::kGated &&
           outcome != KeyOutcome::kNotStored;
  }
};

/// Of a member that is set very often only the first and the last kMostSteps steps are kept; fewer of an array so long
/// that the texts of its values would fill more than kMostText characters.
///
/// Records while a file is read and repaired; ask afterwards, as long as the parameter set lives.
class History final : public TraceReader {
 public:
  History() = default;
  /// Keeps only what happens to these members.
  explicit History(std::vector<const Row*> wanted) : m_wanted(std::move(wanted)) {}

  /// Of a row that is one element of an array: its own key's steps, or also those of the other elements' keys.
  enum class Elements { kOwn, kAll };

  /// The steps of the row's member in `block`, in order, with those that set the whole array.
  std::vector<const HistoryStep*> stepsOf(const Row& row, void* block, Elements elements = Elements::kOwn) const;
  /// The lines that opened the section, in order.
  std::vector<int> openings(const Section& section) const;

  bool wantsValueOf(const Row& row) const override;
  void fileStarted(std::string_view fileName) override;
  void line(const ReadLine& line) override;
  void fileRefused(int lineNumber, std::string_view text, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  static constexpr std::size_t kMostSteps = 1000;
  static constexpr std::size_t kMostText = 20'000'000;
  // What happened to one member by one of its rows.
  struct Chain {
    std::vector<HistoryStep> first;
    std::deque<HistoryStep> last;
    std::size_t firstText = 0, lastText = 0;  // characters of the values
    void add(HistoryStep step);
  };

  HistoryStep stepAt(HistoryStep::Kind kind, const ReadLine& line, const Section* section) const;
  HistoryStep stepOf(const Hit& hit, const ReadLine& line) const;
  std::vector<HistoryStep::Other> othersOf(const Row& row) const;
  void addHits(const ReadLine& line);
  void addList(const ListTaken& list, const ReadLine& line);
  void addUnreadFields(const ReadLine& line);
  void addRefusal(const ReadLine& line);
  bool isWanted(const Row& row) const;
  void add(const Row& row, HistoryStep step);

  std::vector<const Row*> m_wanted;  // empty: all
  std::map<std::pair<const void*, const Row*>, Chain> m_chains;
  std::vector<HistoryStep> m_refusals;
  std::vector<std::pair<const Section*, int>> m_openings;
  std::size_t m_steps = 0;
  int m_keysLine = 0;
  std::vector<HistoryStep::Other> m_keys;  // of the line m_keysLine
  int m_filesStarted = 0;
  std::string m_laterFile;
};

}  // namespace zeb
