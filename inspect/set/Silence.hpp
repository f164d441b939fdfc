// Drops what the library prints where nobody wants to read it.
#pragma once

#include <iostream>
#include <streambuf>

namespace zeb {

/// Takes the place of std::cout's buffer while it lives. Keeps nothing, however much is printed.
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

}  // namespace zeb
