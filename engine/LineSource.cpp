// One implementation for all readers; see LineSource.hpp for what differs between them.
#include "engine/LineSource.hpp"

#include <algorithm>
#include <iterator>
#include <locale>
#include <string_view>

#include "engine/ReadObserver.hpp"
#include "engine/TextOutput.hpp"
#include "platform/ZEB3DTool.h"

namespace zeb {

namespace {

std::string_view upToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

bool readLine(std::istream& stream, std::string& line) {
  if (!std::getline(stream, line, '\n')) {
    line.clear();
    return false;
  }
  line.resize(upToNul(line).size());
  return true;
}

}  // namespace

int LineSource::getLine(std::istream& stream, std::string& line) const {
  const bool isThere = reads() && readLine(stream, line);
  if (com == nullptr) return isThere ? 1 : 0;
  char shared[ZEBLINE_MAX];
  if (!share(isThere, line, shared)) return 0;
  line.assign(shared);
  return 1;
}

bool LineSource::share(bool isThere, std::string_view line, char (&shared)[ZEBLINE_MAX]) const {
  int end = 0;
  if (reads()) {
    end = isThere ? 0 : -1;
    const std::string_view text = line.substr(0, ZEBLINE_MAX - 1);
    std::fill(std::copy(text.begin(), text.end(), shared), std::end(shared), '\0');
    if (isThere && traces()) trace(alwaysTrace ? line : text);
  }
  if (barrier) com->Barrier();
  com->Broadi(end);
  if (end != 0) return false;
  com->Broadc(shared);
  shared[ZEBLINE_MAX - 1] = '\0';
  return true;
}

void LineSource::trace(std::string_view text) const {
  writeOut(" - CPUID:" + std::to_string(com->GetCPUId()) + " string: " + std::string(text) + "\n");
}

int openFile(std::ifstream& stream, const std::string& fileName) {
  // A host's global locale may take characters for others.
  if (stream.getloc() != std::locale::classic()) stream.imbue(std::locale::classic());
  CZEBFileIO opener;
  opener.ZEBOpenFile(stream, fileName.c_str(), kZEBOpenRead, 500, 10);
  return stream.good() ? 1 : -1;
}

bool LineReader::nextShared(std::string_view& line) {
  std::string_view read;
  const bool isThere = m_source.reads() && m_input.next(read, m_equals);
  const bool delivered = m_source.share(isThere, read, m_shared.text);
  line = delivered ? m_shared.text : std::string_view();
  const std::size_t equals = line.find('=');
  m_equals = equals == line.npos ? nullptr : line.data() + equals;
  return delivered;
}

void LineReader::tellObserver(std::string_view line) const { m_observer->lineRead(m_lineNumber, line); }

}  // namespace zeb
