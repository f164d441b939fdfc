// Remembers for every member what set it last.
#pragma once

#include <string>
#include <unordered_map>

#include "frame/ReadObserver.hpp"
#include "inspect/Settings.hpp"

namespace zeb {

class Provenance final : public ReadObserver {
 public:
  /// Of the member at this address; the default when nothing set it.
  Origin origin(const void* member) const;
  /// Lines of the first file.
  int linesRead() const { return m_linesRead; }
  /// Why the viscoelastic file was not taken; empty when it was, or was not asked for.
  const std::string& refusal() const { return m_refusal; }

  void fileStarted(std::string_view fileName) override;
  void lineRead(int lineNumber, std::string_view line) override;
  void keyFound(const KeyEvent& event) override;
  void viscoelasticRefused(int lineNumber, std::string_view reason) override;
  void repaired(const RepairEvent& event) override;

 private:
  std::unordered_map<const void*, Origin> m_origins;
  int m_filesStarted = 0;
  int m_linesRead = 0;
  std::string m_refusal;
  std::string m_laterFile;  // empty while the first file is read
};

}  // namespace zeb
