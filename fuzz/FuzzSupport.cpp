// The opener stands here in the program itself, so the library opens these files in memory instead of the disk's.
#include "fuzz/FuzzSupport.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <memory>
#include <streambuf>
#include <utility>

#include "engine/Field.hpp"
#include "platform/ZEB3DTool.h"
#include "tests/support/MemberContent.hpp"

namespace zebfuzz {

namespace {

using zebtest::contentOf;
using zebtest::sameContent;

class MemoryBuffer final : public std::streambuf {
 public:
  explicit MemoryBuffer(std::string_view content) : m_content(content) { rewind(); }

  void rewind() {
    char* begin = const_cast<char*>(m_content.data());  // never written: a buffer for reading
    setg(begin, begin, begin + m_content.size());
  }

 private:
  std::string_view m_content;
};

struct File {
  std::string name;
  std::unique_ptr<MemoryBuffer> buffer;
};

std::vector<File> theFiles;
bool mayOpen = true;

class OutputBuffer final : public std::streambuf {
 public:
  std::string text;

 protected:
  std::streamsize xsputn(const char* data, std::streamsize count) override {
    const std::size_t room = Output::kLimit - std::min(Output::kLimit, text.size());
    text.append(data, std::min(room, static_cast<std::size_t>(count)));
    return count;
  }
  int_type overflow(int_type character) override {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
      const char c = traits_type::to_char_type(character);
      xsputn(&c, 1);
    }
    return traits_type::not_eof(character);
  }
};

OutputBuffer& outputBuffer() {
  static auto* const kBuffer = new OutputBuffer;  // std::cout may be flushed after every destructor
  return *kBuffer;
}

bool isOwned(zeb::FieldType type) {
  return type == zeb::FieldType::kText || type == zeb::FieldType::kInts || type == zeb::FieldType::kDoubles;
}

constexpr std::size_t kLongestShared = 254;  // what a rank receives of a line

}  // namespace

void fail(const std::string& what) {
  std::fprintf(stderr, "finding: %s\n", what.c_str());
  std::abort();
}

Files::Files() { mayOpen = true; }
Files::~Files() { theFiles.clear(); }

void Files::add(std::string name, std::string_view content) {
  theFiles.push_back({std::move(name), std::make_unique<MemoryBuffer>(content)});
}

void Files::forbidOpening() { mayOpen = false; }
void Files::allowOpening() { mayOpen = true; }

void Output::start() { std::cout.rdbuf(&outputBuffer()); }
std::string Output::take() { return std::exchange(outputBuffer().text, std::string()); }
void Output::drop() { outputBuffer().text.clear(); }

std::vector<std::string_view> wholeLines(std::string_view content) {
  std::vector<std::string_view> lines;
  while (!content.empty()) {
    const std::size_t end = content.find('\n');
    const std::string_view line = content.substr(0, end);
    lines.push_back(line.substr(0, line.find('\0')));
    content.remove_prefix(end == content.npos ? content.size() : end + 1);
  }
  return lines;
}

bool readsTheSameInSerial(std::string_view content) {
  const auto isCut = [](std::string_view line) { return line.size() > kLongestShared; };
  const std::vector<std::string_view> lines = wholeLines(content);
  return std::none_of(lines.begin(), lines.end(), isCut);
}

void requireLineByLine(const zeb::CallLog& log, std::string_view content, bool withBarrier) {
  zeb::CallLog expected;
  const auto addRead = [&](int end) {
    if (withBarrier) expected.addBarrier();
    expected.addInt(end);
  };
  for (const std::string_view line : wholeLines(content)) {
    addRead(0);
    char text[zeb::kCallTextSize] = {};
    std::memcpy(text, line.data(), std::min(line.size(), kLongestShared));
    expected.addText(text);
  }
  do {
    addRead(-1);
  } while (expected.size() < log.size());
  if (!(expected == log)) fail("not every line was shared, once and in order:\n" + log.text());
}

void requireEqual(const zeb::BlockTable& table, void* a, void* b, const char* what) {
  for (const zeb::Section& section : table.sections) {
    for (const zeb::Row& row : section.rows) {
      if (sameContent(row.field, a, b)) continue;
      fail(std::string(what) + " differ in " + std::string(table.className) + "." + std::string(row.field.member));
    }
  }
}

void HandedOut::collect(const zeb::BlockTable& table, void* block) {
  for (const zeb::Section& section : table.sections) {
    for (const zeb::Row& row : section.rows) {
      if (!isOwned(row.field.type)) continue;
      const std::string_view content = contentOf(row.field, block);
      if (content.data() != nullptr) m_arrays.push_back(content);
    }
  }
}

// AddressSanitizer is the judge here: the last element of what was released is no longer readable.
void HandedOut::later() const {
  volatile char sink = 0;
  for (const std::string_view array : m_arrays) sink = static_cast<char>(sink ^ array.front() ^ array.back());
}

void Bytes::raw(void* out, std::size_t size) {
  const std::size_t count = std::min(size, m_rest.size());
  std::memset(out, 0, size);
  std::memcpy(out, m_rest.data(), count);
  m_rest.remove_prefix(count);
}

unsigned Bytes::byte() {
  unsigned char value = 0;
  raw(&value, 1);
  return value;
}

std::int32_t Bytes::int32() {
  std::int32_t value = 0;
  raw(&value, sizeof value);
  return value;
}

double Bytes::real() {
  double value = 0.0;
  raw(&value, sizeof value);
  return value;
}

}  // namespace zebfuzz

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  zebfuzz::Output::start();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zebfuzz::checkInput(zebfuzz::Bytes(data, size));
  zebfuzz::Output::drop();
  return 0;
}

// Short stacks of allocations and a small quarantine: a run allocates little and is over soon.
extern "C" const char* __asan_default_options() { return "malloc_context_size=5:quarantine_size_mb=32"; }

void CZEBFileIO::ZEBOpenFile(std::ifstream& stream, const char* fileName, ZEBOpenMode mode, int, int) {
  using namespace zebfuzz;
  require(mayOpen, "a rank other than 0 opened a file");
  require(mode == kZEBOpenRead, "a file was not opened for reading");
  for (const File& file : theFiles) {
    if (file.name != fileName) continue;
    file.buffer->rewind();
    static_cast<std::ios&>(stream).rdbuf(file.buffer.get());  // also clears the stream's state
    return;
  }
  stream.setstate(std::ios_base::failbit);
}
