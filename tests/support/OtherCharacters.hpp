// A host's global locale at its worst: it takes every character of a file for another one.
#pragma once

#include <locale>

namespace zebtest {

struct OtherCharacters : std::codecvt<char, char, std::mbstate_t> {
  bool do_always_noconv() const noexcept override { return false; }
  result do_in(std::mbstate_t&, const char* from, const char* fromEnd, const char*& fromNext, char* to, char* toEnd,
               char*& toNext) const override {
    for (; from != fromEnd && to != toEnd; ++from, ++to) *to = '?';
    fromNext = from;
    toNext = to;
    return ok;
  }
};

/// The global locale while it lives.
class GlobalLocale {
 public:
  explicit GlobalLocale(const std::locale& locale) : m_before(std::locale::global(locale)) {}
  ~GlobalLocale() { std::locale::global(m_before); }
  GlobalLocale(const GlobalLocale&) = delete;
  GlobalLocale& operator=(const GlobalLocale&) = delete;

 private:
  std::locale m_before;
};

}  // namespace zebtest
