// Turns the trace of a reading into findings. A line is judged as a whole, by what the reader made of it; what depends
// on the lines behind it is judged when its section ends. The functions stand in the files of their subjects.
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "inspect/check/Diagnostic.hpp"
#include "inspect/check/KnownNames.hpp"
#include "inspect/trace/LineTrace.hpp"

namespace zeb {

class Checker final : public TraceReader {
 public:
  /// The list's current file is the one that is going to be read.
  Checker(DiagnosticList& found, FileKind kind)
      : m_found(found), m_kind(kind), m_names(&KnownNames::of(kind)), m_mainFile(found.currentFile()) {}
  Checker(const Checker&) = delete;
  Checker& operator=(const Checker&) = delete;
  ~Checker() override;

  /// After the analysis, while its blocks are there: what the repairs changed.
  void finish();

  void fileStarted(std::string_view fileName) override;
  void line(const ReadLine& line) override;
  void fileRefused(int lineNumber, std::string_view text, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
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
    const Section* section;
    Place place;
    std::string key, stays, gateValue;
    int gateSetAt;
  };
  struct Change {
    double before, after;
    std::string conditions;
  };
  struct OpenList {
    List lines;
    int announced = 0, entries = 0, expected = 0;
    bool announcesCount = false;  // the next line is to hold the count
    bool open = false, complained = false, takesLines = false, closed = false;
    Place place;
    double sum = 0.0;
    int weights = 0;
    Place lastWeight;
  };

  bool isCompanion() const { return m_files > 1; }
  /// A finding in the line that is judged.
  void add(const CheckRule& rule, std::size_t at, std::string message, std::string hint = {});
  Place here(std::size_t at) const { return placeIn(m_line->number, m_line->text, at); }
  std::string_view text() const { return m_line->text; }

  // Sections.cpp
  void judgeOutside();
  void judgeVersion();
  void judgeTagOutside(const Tag& tag);
  void judgeTagInside(const Tag& tag);
  void judgeOpening(const Opening& opening);
  void judgeClosing();
  void judgeBesideTag(const Section& section, std::string_view tag);
  void endSection();

  // Names.cpp
  void judgeKeyed();
  void judgeHits();
  const Hit* meantHit(bool isTag);
  void judgeComment();
  void judgeWithoutKey();
  void judgeOtherKeys(const Hit& own);
  bool isOfOtherSolver(std::string_view key) const;

  // Values.cpp
  void judgeOwnKey(const Hit& hit);
  void judgePresence(const Hit& hit);
  void judgeRepeated(const Hit& hit);
  void judgeValue(const Hit& hit);
  void judgeUnparsed(const Hit& hit);
  void judgeTail(const Hit& hit);
  void judgeText(const Hit& hit);
  void judgeExtras(const Hit& hit);
  void judgeReplaced(const Hit& hit, std::size_t at);
  std::string shown(const Hit& hit) const;
  void* defaultsOf(const Section& section);
  bool holdsDefault(const Hit& hit);
  bool isDefault(const Hit& hit, double value);

  // Gates.cpp
  void noteGate(const Hit& hit);
  void judgeGated(const Hit& hit);
  void reportGated(const Gated& gated);
  bool losesNothing(const Hit& gated) const;

  // Lists.cpp
  void judgeLists();
  void startList(const Hit& hit);
  void endList();
  void judgeTaken();
  void judgeUnused();
  void judgeEntry();
  void judgeCount();
  void judgeEntryTail();
  void judgeFinite(std::size_t at, double value, std::string_view text);
  bool isTakenInPlaceOf() const;
  bool isOfSwitchedOffList(const Hit& notStored) const;
  std::string forgetElements(const Row& count);
  void judgeMissingElements();

  // Positional.cpp
  void judgePositional();
  void judgePositionalVersion();
  void judgeFields();
  void judgeNotTaken(const Hit& hit);
  bool judgeShort(bool isFree);
  void reportShort(Pending pending, const std::string& lostSection);
  void reportEnded();

  DiagnosticList& m_found;
  FileKind m_kind;
  const KnownNames* m_names;
  int m_mainFile;
  int m_files = 0;

  const ReadLine* m_line = nullptr;  // that is judged
  std::vector<const Hit*> m_hits;    // its keys

  // the section that is being read
  const Section* m_section = nullptr;
  Place m_opening;
  std::string m_nestedClose;  // ends the lines of a section inside this one, which are therefore lost
  bool m_nestedSeen = false;
  bool m_explained = false;  // why it is not closed has been said
  std::unordered_map<const Row*, SetBy> m_setAt;
  std::map<const Row*, Pending> m_pending;
  std::vector<Gated> m_gated;
  int m_gateSetAt = 0, m_gateOpenedAt = 0;
  OpenList m_list;

  // outside of sections
  std::string m_unknownSection;
  const Section* m_positional = nullptr;  // the one read last
  bool m_positionalShort = false;
  Pending m_tagInFreeLine;  // a sign of missing lines only if a later line is wrong, too
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
