// The checker over hostile files of every kind, with or without a viscoelastic companion, repaired or not.
//
// Byte 1: the switches below. Byte 2: molding type (modulo their number). Then the file; for a CMP file behind the
// first byte 0x1E the viscoelastic file.
#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <string>

#include "frame/MoldingTypes.hpp"
#include "fuzz/FuzzSupport.hpp"
#include "inspect/check/Bytes.hpp"
#include "inspect/check/Check.hpp"
#include "inspect/check/DiagnosticOutput.hpp"

namespace {

using namespace zebfuzz;
using Json = nlohmann::ordered_json;

constexpr char kSeparator = '\x1e';
constexpr char kFileName[] = "zeb-fuzz-memory.cmp";  // no such file on the disk: the reader finds it in memory
constexpr char kCompanionName[] = "zeb-fuzz-memory.vecmp";

struct Input {
  explicit Input(Bytes bytes) {
    const unsigned switches = bytes.byte();
    kind = (switches & 3u) == 3   ? zeb::FileKind::kStd
           : (switches & 3u) == 2 ? zeb::FileKind::kCmx
                                  : zeb::FileKind::kCmp;
    options.repair = (switches & 4u) == 0;
    options.material = (switches & 8u) != 0 ? 1 : 0;
    options.wax = (switches & 16u) != 0;
    tellsDefaults = (switches & 32u) != 0;
    isThorough = (switches & 64u) != 0 && std::hash<std::string_view>()(bytes.rest()) % 256 == 0;
    options.viscoelastic = (switches & 128u) != 0;
    options.molding = static_cast<int>(bytes.byte() % zeb::moldingTypes().size());
    const std::size_t separator = kind == zeb::FileKind::kCmp ? bytes.rest().find(kSeparator) : std::string_view::npos;
    content = bytes.rest().substr(0, separator);
    if (separator == bytes.rest().npos) return;
    companion = bytes.rest().substr(separator + 1);
    hasCompanion = options.viscoelastic = true;
  }

  zeb::FileKind kind;
  zeb::AnalysisOptions options;
  bool tellsDefaults = false;
  // Writes JSON and SARIF, checks twice: slow, so not always. A hash decides, or the search would turn to these inputs.
  bool isThorough = false;
  bool hasCompanion = false;
  std::string_view content, companion;
};

std::vector<std::string_view> linesOf(std::string_view content) {
  std::vector<std::string_view> lines;
  while (!content.empty()) {
    const std::size_t end = content.find('\n');
    lines.push_back(content.substr(0, end));
    content.remove_prefix(end == content.npos ? content.size() : end + 1);
  }
  return lines;
}

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

void requireInside(const zeb::Diagnostic& found, const std::vector<std::string_view>& lines) {
  const zeb::Place& place = found.place;
  require(place.line >= 0 && static_cast<std::size_t>(place.line) <= lines.size(), "a line outside of the file");
  require(place.column >= 1 && place.textColumn >= 1 && place.textColumn <= place.column, "a column before the line");
  require(place.text.size() <= 120, "a long excerpt");
  if (place.line == 0) return;
  const std::string_view line = lines[static_cast<std::size_t>(place.line) - 1];
  require(static_cast<std::size_t>(place.column) <= line.size() + 1, "a column behind the line");
  require(line.find(place.text) != line.npos, "an excerpt of another line");
}

void requireWorded(const zeb::Diagnostic& found) {
  require(!found.message.empty() && !found.hint.empty(), "a finding without words");
  const std::string headline = zeb::headline(found, "warning");
  require(std::none_of(headline.begin(), headline.end(), isControl), "a control character in a headline");
  const std::string excerpt = zeb::excerpt(found);
  const auto lines = std::count(excerpt.begin(), excerpt.end(), '\n');
  require(lines == (found.place.line > 0 ? 2 : 0), "an excerpt that is not two lines");
}

void requireSorted(const std::vector<zeb::Diagnostic>& all) {
  const auto isBefore = [](const zeb::Diagnostic& a, const zeb::Diagnostic& b) {
    return std::tie(a.fileOrder, a.place.line, a.place.column) < std::tie(b.fileOrder, b.place.line, b.place.column);
  };
  require(std::is_sorted(all.begin(), all.end(), isBefore), "findings out of order");
}

void requireParses(const std::vector<zeb::Diagnostic>& all) {
  const auto dumped = [](const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::replace); };
  const Json list = Json::parse(dumped(zeb::diagnosticsAsJson(all, "warning")), nullptr, false);
  require(list.is_array() && list.size() == all.size(), "the JSON is not whole");
  const Json log = Json::parse(dumped(zeb::diagnosticsAsSarif(all, "error")), nullptr, false);
  require(log.is_object() && log["runs"][0]["results"].size() == all.size(), "the SARIF is not whole");
}

void requireSound(zeb::DiagnosticList& found, const Input& input) {
  found.sort();
  const std::vector<std::string_view> lines = linesOf(input.content), companionLines = linesOf(input.companion);
  std::map<std::pair<int, const zeb::CheckRule*>, int> counts;
  for (const zeb::Diagnostic& one : found.all()) {
    require(one.file == kFileName || one.file == kCompanionName, "a finding in no file");
    require(one.rule != &zeb::kEqualsDefault || input.tellsDefaults, "a rule that is off");
    requireInside(one, one.file == kFileName ? lines : companionLines);
    requireWorded(one);
    const int count = ++counts[{one.fileOrder, one.rule}];
    require(count <= zeb::DiagnosticList::kMostPerRule, "too many findings of a rule");
  }
  requireSorted(found.all());
}

std::string checkOnce(const Input& input, bool isFirst) {
  Files files;
  files.add(kFileName, input.content);
  if (input.hasCompanion) files.add(kCompanionName, input.companion);
  zeb::DiagnosticList found;
  found.enable(zeb::kEqualsDefault, input.tellsDefaults);
  zeb::checkFile(kFileName, input.kind, input.options, found);
  requireSound(found, input);
  std::string text;
  if (!input.isThorough) return text;
  if (isFirst) requireParses(found.all());
  for (const zeb::Diagnostic& one : found.all()) text += zeb::headline(one, "warning") + one.hint + zeb::excerpt(one);
  return text;
}

void checkBytes(const Input& input) {
  zeb::DiagnosticList found;
  found.startFile(kFileName);
  std::istringstream stream{std::string(input.content)};
  zeb::checkRawBytes(stream, found);
  requireSound(found, input);
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) {
  const Input input(bytes);
  checkBytes(input);
  const std::string first = checkOnce(input, true);
  if (input.isThorough) require(first == checkOnce(input, false), "a second check says something else");
  require(Output::take().empty(), "the checker prints");
}
