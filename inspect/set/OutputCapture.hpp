// Keeps what the library prints while a tool reads with it.
#pragma once

#include <mutex>
#include <streambuf>
#include <string>
#include <thread>

namespace zeb {

/// Takes the place of std::cout's buffer while it lives. Keeps what its own thread writes; what in-process ranks on
/// other threads write is the same text once more and is dropped.
class OutputCapture {
 public:
  OutputCapture();
  OutputCapture(const OutputCapture&) = delete;
  OutputCapture& operator=(const OutputCapture&) = delete;
  ~OutputCapture();

  /// Throws std::bad_alloc where memory failed for some of it: a stream keeps to itself what its buffer throws.
  const std::string& text() const;

 private:
  struct Buffer final : std::streambuf {
    std::streamsize xsputn(const char* data, std::streamsize count) override;
    int_type overflow(int_type character) override;

    std::mutex mutex;
    std::thread::id owner = std::this_thread::get_id();
    std::string text;
    bool isCut = false;
  };

  Buffer m_buffer;
  std::streambuf* m_before;
};

}  // namespace zeb
