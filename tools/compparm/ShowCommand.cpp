// compparm show: reads a CMP or CMX file as a solver would and presents every block.
#include <algorithm>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>

#include "inspect/OutputCapture.hpp"
#include "inspect/ParameterFile.hpp"
#include "inspect/Provenance.hpp"
#include "inspect/Settings.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

struct ShowArguments {
  AnalysisArguments analysis;
  std::optional<zeb::FileKind> as;
  std::vector<std::string> blocks;
  bool changedOnly = false;
  bool raw = false;
  bool json = false;
  int ranks = 1;
};

struct Shown {
  zeb::FileKind kind = zeb::FileKind::kCmp;
  std::vector<zeb::BlockSettings> blocks;
  std::string messages;  // what the library printed while it read
  std::string refusal;   // of the viscoelastic file
  int lines = 0;
  RankComparison ranks;
};

constexpr std::string_view kKindNames[] = {"cmp", "cmx", "std"};

std::string_view kindName(zeb::FileKind kind) { return kKindNames[static_cast<int>(kind)]; }

std::optional<zeb::FileKind> kindNamed(const std::string& name) {
  const auto at = std::find(std::begin(kKindNames), std::end(kKindNames), name) - std::begin(kKindNames);
  if (at == std::ssize(kKindNames)) return {};
  return static_cast<zeb::FileKind>(at);
}

Json jsonOrigin(const zeb::Origin& origin) {
  switch (origin.kind) {
    case zeb::Origin::Kind::kFile: {
      Json json = {{"kind", "file"}, {"line", origin.line}};
      if (!origin.file.empty()) json["file"] = origin.file;
      return json;
    }
    case zeb::Origin::Kind::kRepair:
      return {{"kind", "repair"}, {"condition", origin.note}};
    case zeb::Origin::Kind::kDefault:
      break;
  }
  return {{"kind", "default"}};
}

void printJson(const ShowArguments& arguments, const Shown& shown) {
  Json blocks = Json::array();
  for (const zeb::BlockSettings& block : shown.blocks) {
    Json members = Json::array();
    for (const zeb::Setting& setting : block.settings) {
      Json member = {{"member", setting.member},
                     {"value", jsonOf(*setting.row, setting.value)},
                     {"default", jsonOf(*setting.row, setting.defaultValue)},
                     {"origin", jsonOrigin(setting.origin)}};
      if (!setting.row->key.empty()) member["key"] = setting.row->key;
      members.push_back(std::move(member));
    }
    blocks.push_back({{"block", block.name}, {"class", block.table->className}, {"members", std::move(members)}});
  }
  Json document = {{"file", arguments.analysis.file}, {"kind", kindName(shown.kind)}};
  if (shown.kind == zeb::FileKind::kCmp) {
    document["molding"] = arguments.analysis.moldingName();
    document["material"] = arguments.analysis.options.material;
  }
  document["blocks"] = std::move(blocks);
  if (shown.ranks.ranks > 1) {
    document["ranks"] = {{"count", shown.ranks.ranks}, {"same", shown.ranks.same()}};
    if (!shown.ranks.same()) document["ranks"]["difference"] = shown.ranks.difference;
  }
  if (!shown.refusal.empty()) document["viscoelasticFileRefused"] = shown.refusal;
  if (!shown.messages.empty()) document["messages"] = shown.messages;
  // Texts of the file may be no UTF-8: what is not is replaced.
  std::cout << document.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

std::string heading(const zeb::BlockSettings& block) {
  std::string sections;
  for (const zeb::Section& section : block.table->sections) {
    if (!section.open.empty()) sections += (sections.empty() ? "" : " ") + std::string(section.open);
  }
  if (block.table->sections.size() > 3) sections = std::to_string(block.table->sections.size()) + " sections";
  return coloured(Colour::kBold, block.name) + "  " + coloured(Colour::kDim, sections);
}

void printBlock(const zeb::BlockSettings& block) {
  std::size_t memberWidth = 0, valueWidth = 0;
  for (const zeb::Setting& setting : block.settings) {
    memberWidth = std::max(memberWidth, setting.member.size());
    valueWidth = std::max(valueWidth, std::min<std::size_t>(setting.value.size(), 24));
  }
  std::cout << heading(block) << '\n';
  for (const zeb::Setting& setting : block.settings) {
    std::string value = padded(setting.value, valueWidth);
    if (setting.isChanged()) value = coloured(Colour::kGreen, value);
    std::string note = setting.origin.text();
    if (setting.isChanged()) note += " (default " + setting.defaultValue + ")";
    std::cout << "  " << padded(setting.member, memberWidth) << "  " << value << "  " << coloured(Colour::kDim, note)
              << '\n';
  }
  std::cout << '\n';
}

std::string readAs(const AnalysisArguments& analysis, zeb::FileKind kind) {
  if (kind == zeb::FileKind::kCmx) return "analysis settings (CMX)";
  if (kind == zeb::FileKind::kStd) return "as the standard solver reads it";
  const auto& options = analysis.options;
  return "molding type " + analysis.moldingName() + ", material type " + std::to_string(options.material) +
         (options.wax ? ", wax" : "") + (options.viscoelastic ? ", viscoelastic" : "") +
         (options.repair ? "" : ", not repaired");
}

void printText(const ShowArguments& arguments, const Shown& shown) {
  std::cout << coloured(Colour::kBold, arguments.analysis.file) << "  " << shown.lines << " lines, "
            << readAs(arguments.analysis, shown.kind) << "\n\n";
  std::size_t changed = 0;
  for (const zeb::BlockSettings& block : shown.blocks) {
    if (!block.settings.empty()) printBlock(block);
    changed += static_cast<std::size_t>(
        std::count_if(block.settings.begin(), block.settings.end(), [](const auto& s) { return s.isChanged(); }));
  }
  if (!shown.messages.empty()) {
    std::cout << coloured(Colour::kBold, "Printed while reading") << '\n';
    std::istringstream lines(shown.messages);
    for (std::string line; std::getline(lines, line);) std::cout << "  " << line << '\n';
    std::cout << '\n';
  }
  if (!shown.refusal.empty()) {
    std::cout << coloured(Colour::kYellow, "The viscoelastic file is not taken: ") << shown.refusal
              << ". A solver would write a default one in its place.\n";
  }
  std::cout << changed << (changed == 1 ? " value differs" : " values differ") << " from the default.\n";
  if (shown.ranks.ranks > 1) {
    std::cout << "Read on " << shown.ranks.ranks << " ranks: "
              << (shown.ranks.same() ? coloured(Colour::kGreen, "all hold the same values.")
                                     : coloured(Colour::kRed, "they differ: " + shown.ranks.difference))
              << '\n';
  }
}

std::vector<zeb::BlockView> chosenBlocks(const ShowArguments& arguments, const zeb::ParameterFile& set) {
  std::vector<zeb::BlockView> blocks = set.blocks();
  if (arguments.blocks.empty()) return blocks;
  std::erase_if(blocks, [&](const zeb::BlockView& block) {
    return std::none_of(arguments.blocks.begin(), arguments.blocks.end(),
                        [&](const std::string& name) { return zeb::isNamed(block, name); });
  });
  return blocks;
}

std::string unknownBlock(const ShowArguments& arguments, const zeb::ParameterFile& set) {
  const std::vector<zeb::BlockView> blocks = set.blocks();
  for (const std::string& name : arguments.blocks) {
    if (std::none_of(blocks.begin(), blocks.end(), [&](const auto& block) { return zeb::isNamed(block, name); }))
      return name;
  }
  return {};
}

// Reads on this rank and, where wanted, on others; afterwards `provenance` knows where this rank's values came from.
struct Reading {
  zeb::ParameterFile set;
  RankComparison ranks;
};

Reading read(const ShowArguments& arguments, zeb::FileKind kind, const MpiRun* mpi, zeb::Provenance& provenance) {
  Reading reading;
  const auto& analysis = arguments.analysis;
  const auto onRank = [&](CZEBCom& com) {
    zeb::ReadObserver* observer = com.GetCPUId() == 0 ? &provenance : nullptr;
    auto set = zeb::readParameterFile(analysis.file, kind, analysis.options, &com, observer);
    std::string values = zeb::fingerprint(set.blocks());
    if (com.GetCPUId() == 0) reading.set = std::move(set);
    return values;
  };
  if (mpi != nullptr) {
    reading.ranks = mpi->compare(onRank);
  } else if (arguments.ranks > 1) {
    reading.ranks = compareThreads(arguments.ranks, onRank);
  } else {
    reading.set = zeb::readParameterFile(analysis.file, kind, analysis.options, nullptr, &provenance);
  }
  return reading;
}

// The standard solver's reader echoes every line that it shares, whatever the print level.
std::string withoutLineEcho(const std::string& text) {
  std::string kept;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(" - CPUID:")) kept += line + '\n';
  }
  return kept;
}

int show(const ShowArguments& arguments, zeb::FileKind kind, const MpiRun* mpi) {
  zeb::Provenance provenance;
  Reading reading;
  Shown shown;
  {
    const zeb::OutputCapture capture;
    reading = read(arguments, kind, mpi, provenance);
    shown.messages = kind == zeb::FileKind::kStd ? withoutLineEcho(capture.text()) : capture.text();
  }
  const int exitCode = reading.ranks.same() ? kClean : kFindings;
  if (mpi != nullptr && mpi->rank() != 0) return exitCode;
  const std::string unknown = unknownBlock(arguments, reading.set);
  if (!unknown.empty()) return fail("no block or section is named " + unknown);
  if (arguments.raw) {
    reading.set.cmp->OutputParameters();
    if (!reading.ranks.same()) return fail("the ranks differ: " + reading.ranks.difference), kFindings;
    return exitCode;
  }
  shown.blocks = zeb::settingsOf(chosenBlocks(arguments, reading.set), &provenance);
  shown.kind = kind;
  shown.lines = provenance.linesRead();
  shown.ranks = reading.ranks;
  shown.refusal = provenance.refusal();
  if (arguments.changedOnly) {
    for (zeb::BlockSettings& block : shown.blocks) {
      std::erase_if(block.settings, [](const zeb::Setting& setting) { return !setting.isChanged(); });
    }
  }
  arguments.json ? printJson(arguments, shown) : printText(arguments, shown);
  return exitCode;
}

// Decided before the ranks of an mpirun meet, so that all of them stop.
int check(const ShowArguments& arguments, zeb::FileKind& kind) {
  const std::string problem = arguments.analysis.problem();
  if (!problem.empty()) return fail(problem);
  const std::string& file = arguments.analysis.file;
  kind = arguments.as.value_or(zeb::recogniseKind(file).value_or(zeb::FileKind::kCmp));
  if (kind == zeb::FileKind::kCmp) return kClean;
  const std::string reader = kind == zeb::FileKind::kCmx ? "a CMX file" : "the standard solver";
  if (arguments.raw) return fail(file + ": the library has no dump for " + reader + ", so --raw cannot be had");
  if (arguments.analysis.isForCmpOnly()) {
    return fail(file + ": --molding, --material, --wax, --viscoelastic and --no-repair have no meaning for " + reader);
  }
  return kClean;
}

int run(const ShowArguments& arguments) {
  zeb::FileKind kind = zeb::FileKind::kCmp;
  if (!MpiRun::isPresent()) {
    const int exitCode = check(arguments, kind);
    return exitCode == kClean ? show(arguments, kind, nullptr) : exitCode;
  }
  const MpiRun mpi;
  if (!mpi.error().empty()) return fail(mpi.error());
  // Rank 0 alone looks at the file: it is the one that reads it.
  int exitCode = mpi.rank() == 0 ? check(arguments, kind) : kClean;
  mpi.communicator()->Broadi(exitCode);
  int shared = static_cast<int>(kind);
  mpi.communicator()->Broadi(shared);
  return exitCode == kClean ? show(arguments, static_cast<zeb::FileKind>(shared), &mpi) : exitCode;
}

}  // namespace

void addShow(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<ShowArguments>();
  CLI::App* command = app.add_subcommand("show", "Read a CMP or CMX file as a solver would and show every block");
  arguments->analysis.addTo(*command);
  command
      ->add_option_function<std::string>(
          "--as", [arguments](const std::string& name) { arguments->as = kindNamed(name); },
          "Read the file as cmp, cmx or std (what the standard solver sees of a CMP file); default: what its first "
          "block tag or section says")
      ->check(CLI::IsMember({"cmp", "cmx", "std"}))
      ->type_name("KIND");
  command
      ->add_option("--block", arguments->blocks,
                   "Only these blocks: block, class or section names (General, FIBER_ARD, SOLID_FILL)")
      ->type_name("NAME");
  command->add_flag("--changed", arguments->changedOnly, "Only members that differ from their default");
  command->add_option("--ranks", arguments->ranks, "Read on N in-process ranks and compare them value by value")
      ->check(CLI::Range(1, 512))
      ->type_name("N");
  auto* raw = command->add_flag("--raw", arguments->raw, "The library's own dump of a CMP file, byte for byte");
  command
      ->add_option_function<std::string>(
          "--format", [arguments](const std::string& format) { arguments->json = format == "json"; }, "text or json")
      ->check(CLI::IsMember({"text", "json"}))
      ->type_name("FORMAT")
      ->excludes(raw);
  command->callback([arguments, &exitCode] { exitCode = run(*arguments); });
}

}  // namespace compparm
