// Turns what happens while the library reads a file into findings. A line is judged as a whole: when the next one
// comes, everything that the reader made of it is known.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "frame/ReadObserver.hpp"
#include "inspect/Diagnostic.hpp"

namespace zeb {

class CheckObserver final : public ReadObserver {
 public:
  explicit CheckObserver(DiagnosticList& found) : m_found(found) {}

  /// After the analysis: the last line and what the repairs changed.
  void finish();

  void fileStarted(std::string_view fileName) override;
  void lineRead(int lineNumber, std::string_view line) override;
  void lineOutside(int lineNumber, std::string_view line) override;
  void versionRead(int lineNumber, std::string_view line, bool parsed, int version) override;
  void sectionOpened(const Section& section, int lineNumber) override;
  void sectionClosed(const Section& section, int lineNumber) override;
  void sectionUnclosed(const Section& section, int lineNumber) override;
  void sectionRefused(const Section& section, int lineNumber, int version) override;
  void keyFound(const KeyEvent& event) override;
  void lineOfList(const Section& section, int lineNumber, std::string_view line, bool used) override;
  void linePositional(const Section& section, int lineNumber, int positionalLine, int converted, int expected,
                      std::string_view tail) override;
  void viscoelasticRefused(int lineNumber, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  struct Hit {
    const Row* row;
    void* block;
    std::string_view key;  // of the table
    KeyOutcome outcome;
    std::string value, tail;
  };
  struct Place {
    int line = 0;
    std::string text;
    std::size_t at = 0;
  };
  struct Pending {
    Place place;
    std::string message;
  };
  struct Change {
    double before, after;
    std::string member, conditions;
  };
  struct List {
    int announced = 0, entries = 0, expected = 0;
    bool open = false, complained = false;
    std::string text, lastText;
    double sum = 0.0;
    int parsed = 0, lastLine = 0;
  };

  void add(CheckRule rule, std::size_t at, std::string message, std::string hint = {});
  void finishLine();
  void judgeSectionLine();
  void judgeTag(std::string_view tag);
  void judgeHits();
  void judgeOwnKey(const Hit& hit);
  void judgeTail(const Hit& hit);
  void judgeText(const Hit& hit);
  void judgeWithoutKey();
  void judgeGated(const Hit& hit);
  void judgeOtherKeys(const Hit* own);
  void judgeEquals();
  bool isDefault(const Hit& hit) const;
  void endList();
  void endSection();

  DiagnosticList& m_found;
  int m_files = 0;

  // the line
  std::string m_text;
  int m_line = 0;
  bool m_judged = true;  // nothing is left to be said about it
  std::vector<Hit> m_hits;

  // the section that is being read
  const Section* m_section = nullptr;
  Place m_opening;
  std::string m_nested;      // an opening inside the section whose lines are therefore lost
  bool m_explained = false;  // why it is not closed has been said
  std::unordered_map<std::string_view, int> m_setAt;
  std::unordered_map<std::string_view, Pending> m_pending;
  std::vector<std::pair<Place, std::string>> m_gated;
  List m_list;

  // outside of sections
  std::string m_unknownSection;
  const Section* m_positional = nullptr;  // the one read last
  bool m_positionalShort = false;

  std::unordered_map<const Section*, int> m_sectionsSeen;
  std::unordered_map<const void*, Place> m_origins;
  std::unordered_map<const void*, Change> m_changes;
};

}  // namespace zeb
