// The plain text-file opener: files are opened in binary and delivered in text mode on every system.
#include <cstring>
#include <fstream>
#include <ios>
#include <locale>
#include <memory>
#include <streambuf>
#include <typeinfo>

#include "platform/ZEB3DTool.h"
#include "standalone/HostDefinition.hpp"

namespace zeb {
namespace {

/// Delivers a file's characters with each CR LF turned into LF. Forward reading only: no seeking, no writing.
class TextModeBuffer final : public std::streambuf {
 public:
  explicit TextModeBuffer(std::filebuf& file) : file_(file) {}

  std::filebuf& file() const { return file_; }

  void forget() {
    setg(area_, area_, area_);
    heldCr_ = false;
    ended_ = false;
  }

  /// Reads ahead; false if the file cannot be read. A directory opens without complaint and fails only here.
  bool start() {
    forget();
    try {
      fill();
      return true;
    } catch (const std::ios_base::failure&) {
      return false;
    }
  }

 protected:
  int_type underflow() override {
    if (gptr() == egptr() && !fill()) return traits_type::eof();
    return traits_type::to_int_type(*gptr());
  }

 private:
  // Larger than the file buffer's own area, so that the file buffer reads straight into this one.
  static constexpr std::streamsize kAreaSize = 16384;

  bool fill();
  static char* dropCrBeforeLf(char* begin, char* end);

  std::filebuf& file_;
  bool ended_ = false;   // the file gave less than it was asked for
  bool heldCr_ = false;  // the block read last ended in a CR, which waits for the character after it
  char area_[kAreaSize];
};

bool TextModeBuffer::fill() {
  char* end = area_;
  do {
    const std::streamsize held = heldCr_ ? 1 : 0;
    const std::streamsize read = ended_ ? 0 : file_.sgetn(area_ + held, kAreaSize - held);
    ended_ = read < kAreaSize - held;
    if (heldCr_) area_[0] = '\r';
    end = area_ + held + read;
    heldCr_ = read > 0 && end[-1] == '\r';
    if (heldCr_) --end;
  } while (heldCr_ && end == area_);
  setg(area_, area_, dropCrBeforeLf(area_, end));
  return gptr() != egptr();
}

char* TextModeBuffer::dropCrBeforeLf(char* begin, char* end) {
  const auto findCr = [end](char* from) {
    return static_cast<char*>(std::memchr(from, '\r', static_cast<std::size_t>(end - from)));
  };
  char* cr = findCr(begin);
  if (cr == nullptr) return end;
  char* out = cr;
  while (cr != nullptr) {
    char* const kept = cr + 1 < end && cr[1] == '\n' ? cr + 1 : cr;
    char* const nextCr = findCr(cr + 1);
    const std::size_t length = static_cast<std::size_t>((nextCr != nullptr ? nextCr : end) - kept);
    std::memmove(out, kept, length);
    out += length;
    cr = nextCr;
  }
  return out;
}

int bufferSlot() {
  static const int slot = std::ios_base::xalloc();
  return slot;
}

/// Keeps one owner per buffer through the stream's end and through copyfmt, in either direction.
void ownBuffer(std::ios_base::event event, std::ios_base& stream, int slot) {
  if (event == std::ios_base::imbue_event) return;
  auto* const buffer = static_cast<TextModeBuffer*>(stream.pword(slot));
  stream.pword(slot) = nullptr;
  if (event == std::ios_base::copyfmt_event || buffer == nullptr) return;  // after copyfmt it is the other stream's
  // A stream that copies another's format lives on; one that is being destroyed is no more than its base by now.
  const bool lives = typeid(stream) != typeid(std::ios_base);
  auto* const living = lives ? dynamic_cast<std::ios*>(&stream) : nullptr;
  if (living != nullptr && living->rdbuf() == buffer) living->rdbuf(&buffer->file());
  delete buffer;
}

TextModeBuffer* ownedBufferOf(std::ifstream& stream) {
  return static_cast<TextModeBuffer*>(stream.pword(bufferSlot()));
}

TextModeBuffer& textBufferOf(std::ifstream& stream) {
  if (TextModeBuffer* const owned = ownedBufferOf(stream)) return *owned;
  auto buffer = std::make_unique<TextModeBuffer>(*stream.rdbuf());
  stream.register_callback(ownBuffer, bufferSlot());
  stream.pword(bufferSlot()) = buffer.get();
  return *buffer.release();
}

/// A host's global locale must change neither the characters read nor the newline that lines end at.
void useClassicLocale(std::ifstream& stream) {
  const std::locale& classic = std::locale::classic();
  if (stream.getloc() != classic) stream.imbue(classic);
  if (stream.rdbuf()->getloc() != classic) stream.rdbuf()->pubimbue(classic);
}

}  // namespace
}  // namespace zeb

void CZEBFileIO::ZEBOpenFile(std::ifstream& stream, const char* fileName, ZEBOpenMode mode, int first, int second) {
  using Opener = void(CZEBFileIO*, std::ifstream&, const char*, ZEBOpenMode, int, int);
  if (auto* const open = zeb::hostDefinition<Opener>(zeb::symbol::kOpenFile, __builtin_return_address(0))) {
    return open(this, stream, fileName, mode, first, second);
  }
  if (stream.is_open()) stream.close();
  if (zeb::TextModeBuffer* const used = zeb::ownedBufferOf(stream)) used->forget();
  if (fileName == nullptr || mode != kZEBOpenRead) {
    stream.setstate(std::ios_base::failbit);
    return;
  }
  zeb::useClassicLocale(stream);
  stream.open(fileName, std::ios_base::in | std::ios_base::binary);
  if (!stream.is_open()) return;
  zeb::TextModeBuffer& buffer = zeb::textBufferOf(stream);
  const bool readable = buffer.start();
  static_cast<std::ios&>(stream).rdbuf(&buffer);
  if (readable) return;
  stream.close();
  stream.setstate(std::ios_base::failbit);
}
