// A file of any kind read the short way, as in a solver, and line by line under an observer's eyes, as in the tools.
//
// The bytes are those of CMPFuzz, whose corpus and dictionary serve here too, but for two switches in byte 2: 4 makes
// it a file for the standard solver, 8 one of analysis settings.
#include "frame/MoldingTypes.hpp"
#include "fuzz/FuzzSupport.hpp"
#include "inspect/set/ParameterFile.hpp"
#include "inspect/trace/LineTrace.hpp"

namespace {

using namespace zebfuzz;

constexpr char kSeparator = '\x1e';
constexpr std::string_view kFileName = "fuzz.cmp", kCompanionName = "fuzz.vecmp";

struct Input {
  explicit Input(Bytes bytes) {
    options.molding = static_cast<int>(bytes.byte() % 16 % zeb::moldingTypes().size());
    const unsigned switches = bytes.byte();
    options.material = (switches & 1u) != 0 ? 1 : 0;
    if ((switches & 4u) != 0) kind = zeb::FileKind::kStd;
    if ((switches & 8u) != 0) kind = zeb::FileKind::kCmx;
    const std::size_t separator = bytes.rest().find(kSeparator);
    content = bytes.rest().substr(0, separator);
    options.viscoelastic = separator != bytes.rest().npos;
    if (options.viscoelastic) companion = bytes.rest().substr(separator + 1);
    options.repair = false;
  }

  zeb::FileKind kind = zeb::FileKind::kCmp;
  zeb::AnalysisOptions options;
  std::string_view content, companion;
};

bool holds(std::string_view line, std::string_view text) { return line.find(text) != line.npos; }

// That the reader found in each keyed line the keys that the plain definition finds. A key that opens a list may go on
// with another line.
struct HitsCheck final : zeb::TraceReader {
  explicit HitsCheck(const Input& read) : input(read) {}

  void fileStarted(std::string_view name) override {
    lines = wholeLines(name == kCompanionName ? input.companion : input.content);
  }

  void line(const zeb::ReadLine& line) override {
    if (line.part == zeb::ReadLine::Part::kNone || line.isMissing) return;
    require(line.number > 0 && static_cast<std::size_t>(line.number) <= lines.size(), "a line that is not there");
    const std::string_view text = lines[static_cast<std::size_t>(line.number) - 1];
    require(line.text == text, "another line is read than stands there");
    if (line.part == zeb::ReadLine::Part::kKeyed && !line.end) checkKeys(*line.section, text, line.hits);
  }

  static void checkKeys(const zeb::Section& section, std::string_view line, const std::vector<zeb::Hit>& hits) {
    require(!holds(line, section.close), "the closing line is overlooked");
    std::size_t found = 0;
    for (std::size_t key = 0; key < section.filter.keys.size(); ++key) {
      const std::string_view text = section.filter.keys[key];
      const zeb::Row& row = section.rowOf(key);
      if (!holds(line, text) || (text == row.otherKey && holds(line, row.key))) continue;
      if (row.opensList()) return;
      require(found < hits.size() && hits[found].row == &row, "the keys found are not those of the line");
      ++found;
    }
    require(found == hits.size(), "more keys are found than the line holds");
  }

  const Input& input;
  std::vector<std::string_view> lines;
};

void check(const Input& input) {
  const std::string name(kFileName);
  Files files;
  files.add(name, input.content);
  if (input.options.viscoelastic) files.add(std::string(kCompanionName), input.companion);
  const zeb::ParameterFile plain = zeb::readParameterFile(name, input.kind, input.options, nullptr, nullptr);
  const std::string printed = Output::take();
  HitsCheck hits(input);
  const zeb::ParameterFile watched = zeb::readTraced(name, input.kind, input.options, nullptr, hits);
  require(Output::take() == printed, "a watched reading prints something else");
  const std::vector<zeb::BlockView> blocks = plain.blocks(), watchedBlocks = watched.blocks();
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    requireEqual(*blocks[i].table, blocks[i].block, watchedBlocks[i].block, "a plain and a watched reading");
  }
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) { check(Input(bytes)); }
