// Turns what happens while the library reads a file into findings. A line is judged as a whole: when the next one
// comes, everything that the reader made of it is known.
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "engine/ReadObserver.hpp"
#include "inspect/check/CheckNames.hpp"
#include "inspect/check/Diagnostic.hpp"

namespace zeb {

class CheckObserver final : public ReadObserver {
 public:
  /// The list's current file is the one that is going to be read.
  CheckObserver(DiagnosticList& found, FileKind kind)
      : m_found(found), m_kind(kind), m_names(&KnownNames::of(kind)), m_mainFile(found.currentFile()) {}
  CheckObserver(const CheckObserver&) = delete;
  CheckObserver& operator=(const CheckObserver&) = delete;
  ~CheckObserver() override;

  /// After the analysis, while its blocks are there: the last line and what the repairs changed.
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
  void fieldNotTaken(const KeyEvent& event) override;
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
  struct SetBy {
    Place place;
    std::string_view key;
    void* block = nullptr;
  };
  struct Pending {
    Place place;
    std::string message;
  };
  struct Gated {
    Place place;
    std::string key, stays, gateValue;
    int gateSetAt;
  };
  struct Change {
    double before, after;
    std::string conditions;
  };
  struct List {
    ListLines lines;
    int announced = 0, entries = 0, expected = 0;
    bool announcesCount = false;  // the next line is to hold the count
    bool open = false, complained = false, takesLines = false, closed = false;
    Place place;
    double sum = 0.0;
    int weights = 0;
    Place lastWeight;
  };

  void add(CheckRule rule, std::size_t at, std::string message, std::string hint = {});
  Place here(std::size_t at) const { return placeIn(m_line, m_text, at); }

  // the line of a keyed section
  void finishLine();
  void judgeSectionLine();
  void judgeTag(const Tag& tag);
  void judgeBesideTag(std::string_view tag);
  void judgeHits();
  const Hit* meantHit(bool isTag);
  void judgeComment();
  void judgeOwnKey(const Hit& hit);
  void judgePresence(const Hit& hit);
  void judgeRepeated(const Hit& hit);
  void judgeValue(const Hit& hit);
  void judgeTail(const Hit& hit);
  void judgeText(const Hit& hit);
  void judgeExtras(const Hit& hit, std::size_t valueAt);
  void judgeWithoutKey();
  void judgeGated(const Hit& hit);
  void judgeOtherKeys(const Hit& own);
  bool losesNothing(const Hit& gated) const;
  bool isOfSwitchedOffList(const Hit& notStored) const;
  bool isOfOtherSolver(std::string_view key) const;
  void* defaultsOf(const Section& section);
  bool holdsDefault(const Section& section, const Row& row, void* block);
  void judgeReplaced(const Section& section, const Row& row, void* block, double typed, std::size_t at);

  // lists and positional lines
  void startList(const KeyEvent& event);
  void judgeEntry(const Section& section, std::string_view line);
  void judgeEntryTail(std::string_view line);
  void judgeFinite(std::size_t at, double value, std::string_view text);
  bool isTakenInPlaceOf(const Section& section, std::string_view line) const;
  void endList();
  std::string forgetElements(const Row& count);
  void judgeMissingElements();
  void judgeField(const KeyEvent& event, std::size_t at);
  bool judgeShortPositional(const Section& section, int positionalLine, bool isFree);
  void reportShortPositional(Pending pending, const std::string& lostSection);

  void endSection();
  void reportGated(const Gated& gated);
  void judgeTagOutside(const Tag& tag);

  DiagnosticList& m_found;
  FileKind m_kind;
  const KnownNames* m_names;
  int m_mainFile;
  int m_files = 0;
  bool isCompanion() const { return m_files > 1; }

  // the line
  std::string m_text;
  std::string m_textBefore;  // of the line before
  int m_line = 0;
  bool m_judged = true;  // nothing is left to be said about it
  std::vector<Hit> m_hits;

  // the section that is being read
  const Section* m_section = nullptr;
  Place m_opening;
  std::string m_openingText;  // the whole line of the last opening
  std::string m_nestedClose;  // ends the lines of a section inside this one, which are therefore lost
  bool m_nestedSeen = false;
  bool m_explained = false;  // why it is not closed has been said
  std::unordered_map<const Row*, SetBy> m_setAt;
  std::map<const Row*, Pending> m_pending;
  std::vector<Gated> m_gated;
  int m_gateSetAt = 0, m_gateOpenedAt = 0;
  List m_list;

  // outside of sections
  std::string m_unknownSection;
  const Section* m_positional = nullptr;  // the one read last
  bool m_positionalShort = false;
  int m_linesSinceOpening = 0;
  bool m_isCarriedOver = false;  // a field that the positional line lacks has the value of the line above
  Pending m_tagInFreeLine;       // a sign of missing lines only if a later line is wrong, too
  std::string m_sectionInFreeLine;

  // of the analysis' own file
  Place m_firstText;  // neither blank nor comment
  bool m_isAnythingRead = false, m_isAnythingSaid = false;

  std::unordered_map<const Section*, int> m_sectionsSeen;
  std::unordered_map<const void*, Place> m_origins;
  std::map<const void*, Change> m_changes;
  std::unordered_map<const BlockTable*, void*> m_defaults;
};

}  // namespace zeb
