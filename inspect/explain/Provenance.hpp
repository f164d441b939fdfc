// Remembers for every member what set it last.
#pragma once

#include <string>
#include <unordered_map>

#include "engine/ReadObserver.hpp"
#include "inspect/set/Settings.hpp"
#include "inspect/trace/ListTrace.hpp"

namespace zeb {

class Provenance final : public ReadObserver {
 public:
  /// Of the member at this address; the default when nothing set it.
  Origin origin(const void* member) const;
  /// Lines of the first file.
  int linesRead() const { return m_linesRead; }
  /// Whether the first file holds anything that its reader knows: a section, a block or a head.
  bool hasSections() const { return m_hasSections; }
  /// Why the viscoelastic file was not taken; empty when it was, or was not asked for.
  const std::string& refusal() const { return m_refusal; }

  void fileStarted(std::string_view fileName) override;
  void lineRead(int lineNumber, std::string_view line) override;
  void sectionOpened(const Section& section, int lineNumber) override;
  void sectionClosed(const Section& section, int lineNumber) override;
  void sectionUnclosed(const Section& section, int lineNumber) override;
  void keyFound(const KeyEvent& event) override;
  void lineOfList(const Section& section, int lineNumber, std::string_view line, bool used) override;
  void linePositional(const Section& section, int lineNumber, int positionalLine, int converted, int expected,
                      std::string_view tail) override;
  void viscoelasticRefused(int lineNumber, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  // A list's members are complete only when the next thing happens.
  void settleList();
  Origin here(int line, int lastLine = 0) const { return {Origin::Kind::kFile, m_laterFile, line, lastLine, {}}; }

  std::unordered_map<const void*, Origin> m_origins;
  std::unordered_map<const void*, int> m_firstElements;  // of arrays whose elements have keys: the first one's line
  ListTrace m_list;
  int m_listLine = 0;
  void* m_positionalBlock = nullptr;  // whose fields are being read
  int m_filesStarted = 0;
  int m_linesRead = 0;
  bool m_hasSections = false;
  std::string m_refusal;
  std::string m_laterFile;  // empty while the first file is read
};

}  // namespace zeb
