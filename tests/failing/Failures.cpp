// The opener, the operator new and the link() of this program take precedence over those of the libraries.
#include "tests/failing/Failures.h"

#include <dlfcn.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <new>
#include <streambuf>
#include <vector>

#include "platform/ZEB3DTool.h"

namespace {

constexpr int kNever = -1;

std::atomic<int> linesUntilFailure = kNever;
std::atomic<bool> linksAreRefused = false;
std::atomic<std::size_t> large = SIZE_MAX;
std::atomic<int> largeAllocations = 0;

/// The characters of another buffer, one by one, up to the failure.
class FailingBuffer final : public std::streambuf {
 public:
  FailingBuffer(std::streambuf& source, int lines) : m_source(source), m_lines(lines) {}

 protected:
  int_type underflow() override {
    if (m_lines == 0) throw std::ios_base::failure("the disk is gone");
    const int_type next = m_source.sbumpc();
    if (traits_type::eq_int_type(next, traits_type::eof())) return next;
    m_character = traits_type::to_char_type(next);
    if (m_character == '\n') --m_lines;
    setg(&m_character, &m_character, &m_character + 1);
    return next;
  }

 private:
  std::streambuf& m_source;
  int m_lines;
  char m_character = 0;
};

template <class Function>
Function next(const char* symbol) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

}  // namespace

namespace zebtest {

ReadsFailBehind::ReadsFailBehind(int lines) { linesUntilFailure = lines; }
ReadsFailBehind::~ReadsFailBehind() { linesUntilFailure = kNever; }

LinksAreRefused::LinksAreRefused() { linksAreRefused = true; }
LinksAreRefused::~LinksAreRefused() { linksAreRefused = false; }

LargeAllocations::LargeAllocations(std::size_t fromBytes) {
  largeAllocations = 0;
  large = fromBytes;
}
LargeAllocations::~LargeAllocations() { large = SIZE_MAX; }
int LargeAllocations::count() const { return largeAllocations; }

}  // namespace zebtest

void CZEBFileIO::ZEBOpenFile(std::ifstream& stream, const char* fileName, ZEBOpenMode mode, int first, int second) {
  using Opener = void (*)(CZEBFileIO*, std::ifstream&, const char*, ZEBOpenMode, int, int);
  // CZEBFileIO::ZEBOpenFile(std::ifstream&, const char*, ZEBOpenMode, int, int)
  static const auto standIn =
      next<Opener>("_ZN10CZEBFileIO11ZEBOpenFileERSt14basic_ifstreamIcSt11char_traitsIcEEPKc11ZEBOpenModeii");
  standIn(this, stream, fileName, mode, first, second);
  if (linesUntilFailure == kNever || !stream.is_open()) return;
  static std::vector<std::unique_ptr<FailingBuffer>> buffers;  // they outlive their streams
  std::ios& base = stream;
  buffers.push_back(std::make_unique<FailingBuffer>(*base.rdbuf(), linesUntilFailure));
  base.rdbuf(buffers.back().get());
}

void* operator new(std::size_t bytes) {
  if (bytes >= large) ++largeAllocations;
  if (void* const memory = std::malloc(bytes)) return memory;
  throw std::bad_alloc();
}

void* operator new[](std::size_t bytes) { return operator new(bytes); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" int link(const char* from, const char* to) noexcept {
  static const auto real = next<int (*)(const char*, const char*)>("link");
  if (!linksAreRefused) return real(from, to);
  errno = EPERM;
  return -1;
}
