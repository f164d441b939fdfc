// One implementation for all readers; see LineSource.hpp for what differs between them.
#include "frame/LineSource.hpp"

#include <algorithm>
#include <cstring>

#include "frame/ReadObserver.hpp"
#include "frame/TextOutput.hpp"
#include "platform/ZEB3DTool.h"

namespace zeb {

namespace {

bool readLine(std::istream& stream, std::string& line) {
  if (!std::getline(stream, line)) {
    line.clear();
    return false;
  }
  const std::size_t nul = line.find('\0');
  if (nul != line.npos) line.resize(nul);
  return true;
}

}  // namespace

int LineSource::getLine(std::istream& stream, std::string& line) const {
  return com == nullptr ? (readLine(stream, line) ? 1 : 0) : shareLine(stream, line);
}

int LineSource::shareLine(std::istream& stream, std::string& line) const {
  char buffer[kLineMax];
  int end = 0;
  if (com->GetCPUId() == 0) {
    if (readLine(stream, line)) {
      const std::size_t length = std::min(line.size(), kLineMax - 1);
      std::memcpy(buffer, line.data(), length);
      std::memset(buffer + length, 0, kLineMax - length);
      if (traces()) {
        writeOut(" - CPUID:" + std::to_string(com->GetCPUId()) + " string: " + std::string(buffer, length) + "\n");
      }
    } else {
      end = -1;
    }
  }
  if (barrier) com->Barrier();
  com->Broadi(end);
  if (end != 0) return 0;
  com->Broadc(buffer);
  buffer[kLineMax - 1] = '\0';
  line.assign(buffer);
  return 1;
}

int openFile(std::ifstream& stream, const std::string& fileName) {
  CZEBFileIO opener;
  opener.ZEBOpenFile(stream, fileName.c_str(), kZEBOpenRead, 500, 10);
  return stream.good() ? 1 : -1;
}

bool LineReader::next(std::string& line) {
  if (m_source.getLine(m_stream, line) == 0) return false;
  ++m_lineNumber;
  if (m_observer != nullptr) [[unlikely]] {
    m_observer->lineRead(m_lineNumber, line);
  }
  return true;
}

bool LineReader::nextOrEmpty(std::string& line) {
  if (next(line)) return true;
  line.clear();
  return false;
}

}  // namespace zeb
