// Reads the JSON text of a material file. The text is a user's: everything in it is checked before it is used.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <nlohmann/json.hpp>

#include "standalone/MaterialEngine.h"
#include "standalone/MaterialRecord.hpp"

namespace zeb {
namespace {

using Json = nlohmann::json;

constexpr std::size_t kLargestList = 1000000;
constexpr std::size_t kDeepestNesting = 16;

/// A value together with where it stands, for example `tables[2].values[0]`.
class Node {
 public:
  Node(const Json& value, std::string path) : value_(&value), path_(std::move(path)) {}

  const Json& value() const { return *value_; }

  [[noreturn]] void fail(const std::string& problem) const {
    throw MaterialFileError(path_.empty() ? problem : path_ + ": " + problem);
  }

  void checkObject(std::initializer_list<const char*> names) const {
    if (!value_->is_object()) fail("must be an object");
    for (const auto& item : value_->items()) {
      const auto isItem = [&item](const char* name) { return item.key() == name; };
      if (std::none_of(names.begin(), names.end(), isItem)) fail("has the unknown name " + quoted(item.key()));
    }
    const auto comment = value_->find("comment");
    if (comment != value_->end() && !comment->is_string()) member("comment").fail("must be a string");
  }

  bool has(const char* name) const { return value_->contains(name); }

  Node member(const char* name) const {
    const auto found = value_->find(name);
    if (found == value_->end()) fail("lacks \"" + std::string(name) + '"');
    return {*found, path_.empty() ? name : path_ + '.' + name};
  }

  std::size_t listSize(std::size_t smallest, std::size_t largest) const {
    if (!value_->is_array()) fail("must be a list");
    if (value_->size() < smallest || value_->size() > largest) {
      const std::string least = std::to_string(smallest);
      const std::string limits = smallest == largest ? least : least + " to " + std::to_string(largest);
      fail("must have " + limits + " elements, has " + std::to_string(value_->size()));
    }
    return value_->size();
  }

  Node element(std::size_t index) const { return {(*value_)[index], path_ + '[' + std::to_string(index) + ']'}; }

  int integer() const {
    constexpr auto kLargest = std::numeric_limits<int>::max();
    constexpr auto kSmallest = std::numeric_limits<int>::min();
    if (!value_->is_number_integer()) fail("must be an integer");
    const bool tooLarge = value_->is_number_unsigned() && value_->get<std::uint64_t>() > kLargest;
    if (tooLarge || value_->get<std::int64_t>() > kLargest || value_->get<std::int64_t>() < kSmallest) {
      fail("does not fit a 32-bit integer");
    }
    return value_->get<int>();
  }

  double number() const {
    if (!value_->is_number()) fail("must be a number");
    const double number = value_->get<double>();
    if (!std::isfinite(number)) fail("must be finite");
    return number;
  }

  static std::string quoted(const std::string& name) {
    constexpr std::size_t kShown = 40;
    std::string shown = '"' + name.substr(0, kShown) + (name.size() > kShown ? "...\"" : "\"");
    for (char& character : shown) {
      if (character < ' ' || character > '~') character = '?';
    }
    return shown;
  }

 private:
  const Json* value_;
  std::string path_;
};

/// Checks numbers without building a path for each: a list may be long.
void readNumbers(const Node& list, double* out) {
  const Json& elements = list.value();
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const Json& element = elements[i];
    out[i] = element.is_number_float() ? element.get<double>() : list.element(i).number();
  }
}

void readIntegers(const Node& list, std::size_t count, int* out) {
  list.listSize(count, count);
  for (std::size_t i = 0; i < count; ++i) out[i] = list.element(i).integer();
}

/// How many bytes of a valid UTF-8 text fit `limit` without cutting a character.
std::size_t fittingLength(const std::string& text, std::size_t limit) {
  if (text.size() <= limit) return text.size();
  std::size_t length = limit;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) --length;
  return length;
}

void readTexts(const Node& texts, MaterialRecord& record) {
  const std::size_t count = texts.listSize(0, record.texts.size());
  for (std::size_t i = 0; i < count; ++i) {
    const Node text = texts.element(i);
    if (text.value().is_null()) continue;
    if (!text.value().is_string()) text.fail("must be a string or null");
    const auto& content = text.value().get_ref<const std::string&>();
    std::memcpy(record.texts[i].data(), content.data(), fittingLength(content, kMaterialTextSize - 1));
    record.material.szText[i] = record.texts[i].data();
  }
}

void readTable(const Node& table, ZebMatParam& param, std::vector<double>& values) {
  table.checkObject({"a", "b", "values", "comment"});
  param.iA = table.member("a").integer();
  param.iB = table.member("b").integer();
  const Node list = table.member("values");
  const std::size_t count = list.listSize(0, kLargestList);
  values.resize(count + 1);
  readNumbers(list, values.data());
  param.iCount = static_cast<int>(count);
}

void readTables(const Node& tables, MaterialRecord& record) {
  const std::size_t count = tables.listSize(0, record.tables.size());
  for (std::size_t i = 0; i < record.tables.size(); ++i) {
    record.tables[i].resize(1);
    if (i < count) readTable(tables.element(i), record.material.table[i], record.tables[i]);
    record.material.table[i].pdValue = record.tables[i].data();
  }
}

void readCoefficients(const Node& root, MaterialRecord& record) {
  record.material.pdCoefficient = record.coefficients.data();
  const auto used = static_cast<std::size_t>(usedCoefficients(record.material.iModel[2]));
  if (used == 0 && !root.has("coefficients")) return;
  const Node list = root.member("coefficients");
  list.listSize(used, record.coefficients.size());
  readNumbers(list, record.coefficients.data());
}

void readEntry(const Node& node, ZEB_MTC_Entry& entry, double& value) {
  node.checkObject({"value", "ints", "doubles", "comment"});
  value = node.member("value").number();
  readIntegers(node.member("ints"), std::size(entry.iValue), entry.iValue);
  const Node doubles = node.member("doubles");
  doubles.listSize(0, std::size(entry.dValue));
  readNumbers(doubles, entry.dValue);
}

void readTestCurve(const Node& node, MaterialTestCurve& curve) {
  node.checkObject({"a", "b", "entries", "comment"});
  const int a = node.member("a").integer();
  const int b = node.member("b").integer();
  const Node entries = node.member("entries");
  const std::size_t count = entries.listSize(0, kLargestList);
  curve.entries.resize(count);
  curve.values.resize(count);
  for (std::size_t i = 0; i < count; ++i) readEntry(entries.element(i), curve.entries[i], curve.values[i]);
  curve.record = {a, b, static_cast<int>(count), curve.entries.data(), curve.values.data()};
}

void readTestCurves(const Node& list, MaterialRecord& record) {
  record.testCurves.resize(list.listSize(0, kLargestList));
  for (std::size_t i = 0; i < record.testCurves.size(); ++i) readTestCurve(list.element(i), record.testCurves[i]);
}

/// The JSON library's message without its own name tag and without the raw bytes it may quote.
std::string plainMessage(const std::string& message) {
  constexpr std::size_t kShown = 200;
  const std::size_t tagEnd = message.find("] ");
  std::string plain = message.substr(tagEnd == std::string::npos ? 0 : tagEnd + 2, kShown);
  for (char& character : plain) {
    if (character < ' ' || character > '~') character = '?';
  }
  return plain;
}

/// A tree that is taken down without an allocation: the JSON library's own destructor makes one for every value that
/// holds others, and where memory fails there it ends the program.
struct Document {
  Document() = default;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document() { clear(root); }

  static void clear(Json& value) {
    if (!value.is_structured()) return;
    for (Json& inner : value) clear(inner);
    value.clear();
  }

  Json root;
};

/// Builds the tree from a text. Refuses what the JSON library takes: any depth, and the last of two values of one name.
class Builder final : public nlohmann::json_sax<Json> {
 public:
  explicit Builder(Json& root) : member_(&root) {}

  bool null() override { return put(nullptr); }
  bool boolean(bool value) override { return put(value); }
  bool number_integer(number_integer_t value) override { return put(value); }
  bool number_unsigned(number_unsigned_t value) override { return put(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return put(value); }
  bool string(string_t& value) override { return put(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }  // no text holds any
  bool start_object(std::size_t /*size*/) override { return open(Json::value_t::object); }
  bool end_object() override { return close(); }
  bool start_array(std::size_t /*size*/) override { return open(Json::value_t::array); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    checkDepth();
    if (open_.back()->contains(name)) throw MaterialFileError("has the name " + Node::quoted(name) + " twice");
    member_ = &(*open_.back())[name];
    return true;
  }

  bool parse_error(std::size_t /*position*/, const std::string& /*token*/, const Json::exception& error) override {
    throw MaterialFileError(plainMessage(error.what()));
  }

 private:
  void checkDepth() const {
    if (open_.size() > kDeepestNesting) throw MaterialFileError("is nested too deeply");
  }

  Json& place() {
    checkDepth();
    return !open_.empty() && open_.back()->is_array() ? open_.back()->emplace_back() : *member_;
  }

  bool put(Json value) {
    place() = std::move(value);
    return true;
  }

  bool open(Json::value_t type) {
    open_.push_back(&place());
    *open_.back() = Json(type);
    return true;
  }

  bool close() {
    open_.pop_back();
    return true;
  }

  Json* member_;  // the value of the last name, or the root
  std::vector<Json*> open_;
};

}  // namespace

void parseMaterial(const std::string& json, MaterialRecord& record) {
  Document document;
  Builder builder(document.root);
  Json::sax_parse(json, &builder);
  const Node root(document.root, "");
  root.checkObject({"$schema", "comment", "header", "texts", "tables", "model", "coefficients", "last", "testCurves"});
  ZebMaterial& material = record.material;
  readIntegers(root.member("header"), std::size(material.iHeader), material.iHeader);
  readTexts(root.member("texts"), record);
  readTables(root.member("tables"), record);
  readIntegers(root.member("model"), std::size(material.iModel), material.iModel);
  readCoefficients(root, record);
  if (root.has("last")) material.dLast = root.member("last").number();
  if (root.has("testCurves")) readTestCurves(root.member("testCurves"), record);
}

}  // namespace zeb
