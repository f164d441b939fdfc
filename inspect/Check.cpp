#include "inspect/Check.hpp"

#include <filesystem>
#include <iostream>
#include <streambuf>

#include "inspect/CheckObserver.hpp"
#include "inspect/CheckRawFile.hpp"

namespace zeb {

namespace {

/// Drops what the library prints while it reads; nothing is kept, whatever the file's length.
class Silence {
 public:
  Silence() : m_before(std::cout.rdbuf(&m_nothing)) {}
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
  ~Silence() { std::cout.rdbuf(m_before); }

 private:
  struct Nothing final : std::streambuf {
    std::streamsize xsputn(const char* /*data*/, std::streamsize count) override { return count; }
    int_type overflow(int_type character) override { return traits_type::not_eof(character); }
  };

  Nothing m_nothing;
  std::streambuf* m_before;
};

}  // namespace

void checkFile(const std::string& fileName, FileKind kind, const AnalysisOptions& options, DiagnosticList& found) {
  found.startFile(fileName);
  AnalysisOptions asked = options;
  if (kind == FileKind::kCmp && asked.viscoelastic && !std::filesystem::path(fileName).has_extension()) {
    found.add(CheckRule::kNoExtension, Place(),
              "the name has no extension: a solver finds no name for the viscoelastic file");
    asked.viscoelastic = false;
  }
  checkRawFile(fileName, found);
  const Silence silence;
  CheckObserver observer(found, kind);
  const ParameterFile read = readParameterFile(fileName, kind, asked, nullptr, &observer);
  observer.finish();
}

}  // namespace zeb
