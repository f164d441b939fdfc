// Every member of a block has a row, and every getter of a public header belongs to one: what no table knows of would
// be neither shown nor compared.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <new>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "ZEBKNCompParm.h"
#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "engine/BlockAccess.h"
#include "engine/ParameterTable.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zeb::BlockView;

std::vector<BlockView> allBlocks(const CZEBKNCMPCompParm& set, const CZEBKNCMXCompParm& settings) {
  std::vector<BlockView> views = zeb::blocksOf(set);
  for (const BlockView& view : zeb::blocksOf(settings)) {
    if (view.table->className.starts_with("CZEBCMX_")) views.push_back(view);
  }
  return views;
}

// --- Members ----------------------------------------------------------------------------------------------------

// The bytes of a new object that its construction writes: those that keep the filling of the storage are padding.
template <class Block>
std::vector<bool> writtenBytes() {
  std::vector<bool> written(sizeof(Block), true);
  alignas(Block) unsigned char storage[2][sizeof(Block)];
  for (int filling = 0; filling < 2; ++filling) {
    unsigned char* const bytes = storage[filling];
    std::fill_n(bytes, sizeof(Block), static_cast<unsigned char>(filling == 0 ? 0x5A : 0xA5));
    new (bytes) Block;
  }
  for (std::size_t i = 0; i < sizeof(Block); ++i) written[i] = !(storage[0][i] == 0x5A && storage[1][i] == 0xA5);
  for (auto& bytes : storage) std::launder(reinterpret_cast<Block*>(bytes))->~Block();
  return written;
}

std::size_t sizeOf(zeb::FieldType type) {
  switch (type) {
    case zeb::FieldType::kInt:
      return sizeof(int);
    case zeb::FieldType::kDouble:
      return sizeof(double);
    case zeb::FieldType::kBool:
      return sizeof(bool);
    case zeb::FieldType::kText:
      return sizeof(zeb::OwnedText);
    case zeb::FieldType::kInts:
      return sizeof(zeb::SharedArray<int>);
    case zeb::FieldType::kDoubles:
      return sizeof(zeb::SharedArray<double>);
    case zeb::FieldType::kNone:
      break;
  }
  return 0;
}

std::ptrdiff_t bytesWithoutRow(const std::string& className) {
  std::ptrdiff_t bytes = 0;
  for (const zebtest::TsvRow& row : zebtest::readTsv("other_members.tsv")) {
    if (row.at("class") == className) bytes += std::stol(row.at("bytes"));
  }
  return bytes;
}

template <class Block>
void expectRowsCover() {
  Block block;
  const zeb::BlockTable& table = zeb::tableOf<Block>();
  std::vector<bool> uncovered = writtenBytes<Block>();
  for (const zeb::Section& section : table.sections) {
    for (const zeb::Row& row : section.rows) {
      const auto* member = static_cast<const char*>(row.field.locate(&block));
      const auto offset = static_cast<std::size_t>(member - reinterpret_cast<const char*>(&block));
      ASSERT_LE(offset + sizeOf(row.field.type), uncovered.size()) << table.className << " " << row.field.member;
      for (std::size_t i = 0; i < sizeOf(row.field.type); ++i) uncovered[offset + i] = false;
    }
  }
  if (std::count(uncovered.begin(), uncovered.end(), true) == bytesWithoutRow(std::string(table.className))) return;
  for (std::size_t i = 0; i < uncovered.size(); ++i) {
    if (uncovered[i] && (i == 0 || !uncovered[i - 1])) {
      ADD_FAILURE() << table.className << ": no row covers the member at byte " << i << " of " << uncovered.size();
    }
  }
  ADD_FAILURE() << table.className << ": other_members.tsv lists the members without a row";
}

template <class... Blocks>
void expectRowsCoverAll(zeb::BlockTypes<Blocks...> /*all*/) {
  (expectRowsCover<Blocks>(), ...);
}

TEST(BlockObject, HoldsNoMemberWithoutARow) { expectRowsCoverAll(zeb::CMPBlocks()); }

TEST(SettingsObject, HoldsNoMemberWithoutARow) { expectRowsCoverAll(zeb::CMXBlocks()); }

// --- Getters ----------------------------------------------------------------------------------------------------

std::set<std::string> gettersOfRows(const BlockView& view) {
  std::set<std::string> getters;
  for (const zeb::Section& section : view.table->sections) {
    for (const zeb::Row& row : section.rows) getters.emplace(row.field.getter);
  }
  return getters;
}

// The const operations that a header declares.
std::set<std::string> gettersOfHeader(const std::filesystem::path& header) {
  std::ifstream file(header);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const std::regex declaration(R"((\w+)\([^()]*\)\s*const\s*;)");
  std::set<std::string> getters;
  for (std::sregex_iterator it(text.begin(), text.end(), declaration), end; it != end; ++it) getters.insert((*it)[1]);
  return getters;
}

TEST(PublicHeaders, DeclareNoGetterWithoutARow) {
  std::map<std::string, std::set<std::string>> known;
  for (const zebtest::TsvRow& row : zebtest::readTsv("other_getters.tsv")) {
    known[row.at("class")].insert(row.at("getter"));
  }
  const CZEBKNCMPCompParm set(0, 0);
  const CZEBKNCMXCompParm settings(0);
  const auto root = std::filesystem::path(ZEB_TEST_DATA_DIR).parent_path().parent_path();
  for (const BlockView& view : allBlocks(set, settings)) {
    const std::string className(view.table->className);
    const auto header = root / (className.starts_with("CZEBCMX_") ? "cmx" : "blocks") / (className + ".h");
    const std::set<std::string> rows = gettersOfRows(view), declared = gettersOfHeader(header);
    EXPECT_FALSE(declared.empty()) << header;
    for (const std::string& getter : declared) {
      EXPECT_TRUE(rows.contains(getter) || known[className].contains(getter))
          << className << "::" << getter << "() belongs to no row and does not stand in other_getters.tsv";
    }
    for (const std::string& getter : known[className]) {
      EXPECT_TRUE(declared.contains(getter)) << className << "::" << getter << "() is in other_getters.tsv only";
      EXPECT_FALSE(rows.contains(getter)) << className << "::" << getter << "() has a row";
    }
  }
}

}  // namespace
