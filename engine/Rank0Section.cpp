// The members travel in the order of the rows; a text as its length (-1 for none) and pieces of 254 characters.
#include "engine/Rank0Section.hpp"

#include <algorithm>
#include <cstring>
#include <string>

#include "engine/SectionEngine.hpp"

namespace zeb {

namespace {

void shareText(OwnedText& text, CZEBCom& com, bool isSource) {
  std::string content = isSource && text.get() != nullptr ? text.get() : "";
  int length = isSource ? (text.get() == nullptr ? -1 : static_cast<int>(content.size())) : 0;
  com.Broadi(length);
  if (length < 0) return;
  const auto size = static_cast<std::size_t>(length);
  content.resize(size);
  for (std::size_t at = 0; at < size; at += ZEBLINE_MAX - 1) {
    char piece[ZEBLINE_MAX] = {};
    const std::size_t count = std::min(ZEBLINE_MAX - 1, size - at);
    if (isSource) std::memcpy(piece, content.data() + at, count);
    com.Broadc(piece);
    if (!isSource) std::memcpy(content.data() + at, piece, count);
  }
  if (!isSource) text.assign(content.data(), content.size());
}

struct MemberSharing {
  CZEBCom& com;
  bool isSource;

  void operator()(int& number) const { com.Broadi(number); }
  void operator()(double& number) const { com.Broadd(number); }
  void operator()(bool& value) const {
    int flag = value ? 1 : 0;
    com.Broadi(flag);
    value = flag != 0;
  }
  void operator()(OwnedText& text) const { shareText(text, com, isSource); }
  template <class Element>
  void operator()(SharedArray<Element>&) const {}  // no such section has any
};

}  // namespace

void readSectionOnRank0(const Section& section, void* block, LineReader& lines) {
  const LineSource& source = lines.source();
  if (source.reads()) {
    const LineSource direct{};
    LineReader own(lines, direct);
    readSection(section, block, own);
    lines.continueAfter(own);
  }
  if (source.com == nullptr) return;
  for (const Row& row : section.rows) visit(row.field, block, MemberSharing{*source.com, source.reads()});
}

}  // namespace zeb
