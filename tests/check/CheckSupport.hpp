// Checking texts as if they were files.
#pragma once

#include <string>
#include <vector>

#include "inspect/check/Check.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace zebtest {

/// What a test may say about a check.
struct Checking {
  zeb::FileKind kind = zeb::FileKind::kCmp;
  zeb::AnalysisOptions options = {};
  std::vector<std::string> enabled = {};  ///< rules that are off by default
};

inline std::vector<zeb::Diagnostic> findingsOf(const std::string& fileName, const Checking& checking = {}) {
  zeb::DiagnosticList found;
  for (const std::string& id : checking.enabled) found.enable(*zeb::ruleNamed(id), true);
  zeb::checkFile(fileName, checking.kind, checking.options, found);
  found.sort();
  return found.all();
}

inline std::vector<zeb::Diagnostic> findingsIn(const std::string& content, const Checking& checking = {}) {
  const TemporaryFile file(content);
  return findingsOf(file.path(), checking);
}

inline std::string idOf(const zeb::Diagnostic& finding) { return std::string(finding.rule->id); }

/// One line per finding, for failures.
inline std::string told(const std::vector<zeb::Diagnostic>& findings) {
  std::string text;
  for (const zeb::Diagnostic& finding : findings) {
    text += std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column) + ": " + finding.message +
            " [" + idOf(finding) + "]\n";
  }
  return text;
}

}  // namespace zebtest
