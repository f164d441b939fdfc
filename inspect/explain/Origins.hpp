// Where each member's value came from: the last line or repair that set it.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "inspect/trace/LineTrace.hpp"

namespace zeb {

struct Origin {
  enum class Kind { kDefault, kFile, kRepair, kDerived };
  Kind kind = Kind::kDefault;
  std::string file = {};  ///< of kFile
  int line = 0;           ///< of kFile
  int lastLine = 0;       ///< of kFile: where a list's lines end, if not in `line`
  std::string note = {};  ///< of kRepair: the condition

  /// "default", "derived" (from other members, or set by the host), "line 12", "lines 12-15", "cover.vecmp line 3" or
  /// "repair: material type 1".
  std::string text() const;
};

class Origins final : public TraceReader {
 public:
  /// Of a member, by its address.
  Origin of(const void* member) const;
  /// Of the analysis' own file.
  int linesRead() const { return m_linesRead; }
  bool hasSections() const { return m_hasSections; }
  /// Why the companion file is not taken; empty where it is.
  const std::string& refusal() const { return m_refusal; }

  void fileStarted(std::string_view fileName) override;
  void line(const ReadLine& line) override;
  void fileRefused(int lineNumber, std::string_view text, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  Origin lines(int first, int last) const { return {Origin::Kind::kFile, m_laterFile, first, last, {}}; }
  void take(const Hit& hit, int line);
  void take(const ListTaken& list);
  void takeAbsent(const ReadLine& line);

  std::unordered_map<const void*, Origin> m_origins;
  std::unordered_map<const void*, int> m_firstElements;  // the line of the first element since the array was made
  int m_filesStarted = 0;
  std::string m_laterFile;
  int m_linesRead = 0;
  bool m_hasSections = false;
  std::string m_refusal;
};

}  // namespace zeb
