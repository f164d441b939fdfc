// compparm show: reads a CMP or CMX file as a solver would and presents every block.
#include <algorithm>
#include <iostream>
#include <memory>

#include "inspect/explain/Origins.hpp"
#include "inspect/explain/Settings.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/ParameterFile.hpp"
#include "tools/compparm/AnalysisArguments.hpp"
#include "tools/compparm/Commands.hpp"
#include "tools/compparm/HelpText.hpp"
#include "tools/compparm/JsonText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

struct ShowArguments {
  AnalysisArguments analysis;
  std::vector<std::string> blocks;
  bool changedOnly = false;
  bool raw = false;
  std::string format;
  int ranks = 1;
};

struct Shown {
  zeb::FileKind kind = zeb::FileKind::kCmp;
  std::vector<zeb::BlockSettings> blocks;
  std::string messages;  // what the library printed while it read
  std::string refusal;   // of the viscoelastic file
  int lines = 0;
  bool hasSections = false;
  RankComparison ranks;
};

Json jsonOrigin(const zeb::Origin& origin) {
  switch (origin.kind) {
    case zeb::Origin::Kind::kFile: {
      Json json = {{"kind", "file"}, {"line", origin.line}};
      if (origin.lastLine > origin.line) json["lastLine"] = origin.lastLine;
      if (!origin.file.empty()) json["file"] = origin.file;
      return json;
    }
    case zeb::Origin::Kind::kRepair:
      return {{"kind", "repair"}, {"condition", origin.note}};
    case zeb::Origin::Kind::kDerived:
      return {{"kind", "derived"}};
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
  Json document = arguments.analysis.asJson(shown.kind);
  document["lines"] = shown.lines;
  document["hasSections"] = shown.hasSections;
  document["blocks"] = std::move(blocks);
  if (shown.ranks.ranks > 1) {
    document["ranks"] = {{"count", shown.ranks.ranks}, {"same", shown.ranks.same()}};
    if (!shown.ranks.same()) document["ranks"]["difference"] = shown.ranks.difference;
  }
  if (!shown.refusal.empty()) document["viscoelasticFileRefused"] = shown.refusal;
  if (!shown.messages.empty()) document["messages"] = shown.messages;
  print(document);
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
    std::string value = padded(printable(setting.value), valueWidth);
    if (setting.isChanged()) value = coloured(Colour::kGreen, value);
    std::string note = setting.origin.text();
    if (setting.isChanged()) note += " (default " + setting.defaultValue + ")";
    std::cout << "  " << padded(setting.member, memberWidth) << "  " << value << "  " << coloured(Colour::kDim, note)
              << '\n';
  }
  std::cout << '\n';
}

void printText(const ShowArguments& arguments, const Shown& shown) {
  std::cout << coloured(Colour::kBold, arguments.analysis.file) << "  " << shown.lines << " lines, "
            << arguments.analysis.readAs(shown.kind) << "\n\n";
  std::size_t changed = 0;
  for (const zeb::BlockSettings& block : shown.blocks) {
    if (!block.settings.empty()) printBlock(block);
    changed += static_cast<std::size_t>(
        std::count_if(block.settings.begin(), block.settings.end(), [](const auto& s) { return s.isChanged(); }));
  }
  if (!shown.messages.empty()) {
    std::cout << coloured(Colour::kBold, "Printed while reading") << '\n';
    for (const std::string& line : split(shown.messages, '\n')) std::cout << "  " << printable(line) << '\n';
    std::cout << '\n';
  }
  if (!shown.hasSections) {
    std::cout << coloured(Colour::kYellow, "The file holds no section that its reader knows: ")
              << "every value is a default or a repair.\n";
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

std::vector<std::string> namesOf(const zeb::ParameterFile& set) {
  std::vector<std::string> names;
  for (const zeb::BlockView& block : set.blocks()) {
    names.push_back(block.name);
    for (const zeb::Section& section : block.table->sections) names.emplace_back(section.name);
  }
  return names;
}

// Reads on this rank and, where wanted, on others; afterwards `origins` knows where this rank's values came from.
struct Reading {
  zeb::ParameterFile set;
  RankComparison ranks;
};

Reading read(const ShowArguments& arguments, zeb::FileKind kind, const MpiRun* mpi, zeb::Origins& origins) {
  Reading reading;
  const auto& analysis = arguments.analysis;
  const auto onRank = [&](CZEBCom& com) {
    auto set = com.GetCPUId() == 0 ? zeb::readTraced(analysis.file, kind, analysis.options, &com, origins)
                                   : zeb::readParameterFile(analysis.file, kind, analysis.options, &com, nullptr);
    std::string values = zeb::fingerprint(set.blocks());
    if (com.GetCPUId() == 0) reading.set = std::move(set);
    return values;
  };
  if (mpi != nullptr) {
    reading.ranks = mpi->compare(onRank);
  } else if (arguments.ranks > 1) {
    reading.ranks = compareThreads(arguments.ranks, onRank);
  } else {
    reading.set = zeb::readTraced(analysis.file, kind, analysis.options, nullptr, origins);
  }
  return reading;
}

// The standard solver's reader echoes every line that it shares, whatever the print level.
std::string withoutLineEcho(const std::string& text) {
  std::string kept;
  for (const std::string& line : split(text, '\n')) {
    if (!line.starts_with(" - CPUID:")) kept += line + '\n';
  }
  return kept;
}

int show(const ShowArguments& arguments, zeb::FileKind kind, const MpiRun* mpi) {
  zeb::Origins origins;
  Reading reading;
  Shown shown;
  {
    const zeb::OutputCapture capture;
    reading = read(arguments, kind, mpi, origins);
    shown.messages = kind == zeb::FileKind::kStd ? withoutLineEcho(capture.text()) : capture.text();
  }
  const int exitCode = reading.ranks.same() ? kClean : kFindings;
  if (mpi != nullptr && mpi->rank() != 0) return exitCode;
  const std::string unknown = unknownBlock(arguments, reading.set);
  if (!unknown.empty()) {
    return fail("no block or section is named " + unknown + didYouMean(unknown, namesOf(reading.set)));
  }
  if (arguments.raw) {
    reading.set.cmp->OutputParameters();
    if (!reading.ranks.same()) return fail("the ranks differ: " + reading.ranks.difference), kFindings;
    return exitCode;
  }
  shown.blocks = zeb::settingsOf(chosenBlocks(arguments, reading.set), &origins);
  shown.kind = kind;
  shown.lines = origins.linesRead();
  shown.hasSections = origins.hasSections();
  shown.ranks = reading.ranks;
  shown.refusal = origins.refusal();
  if (arguments.changedOnly) {
    for (zeb::BlockSettings& block : shown.blocks) {
      std::erase_if(block.settings, [](const zeb::Setting& setting) { return !setting.isChanged(); });
    }
  }
  arguments.format == "json" ? printJson(arguments, shown) : printText(arguments, shown);
  return exitCode;
}

// Decided before the ranks of an mpirun meet, so that all of them stop.
int check(const ShowArguments& arguments, zeb::FileKind& kind) {
  const std::string problem = arguments.analysis.problem();
  if (!problem.empty()) return fail(problem);
  kind = arguments.analysis.kind();
  if (!arguments.raw || kind == zeb::FileKind::kCmp) return kClean;
  return fail(arguments.analysis.file + ": the library has no dump for " +
              (kind == zeb::FileKind::kCmx ? "a CMX file" : "the standard solver") + ", so --raw cannot be had");
}

int run(const ShowArguments& arguments, const MpiRun* mpi) {
  zeb::FileKind kind = zeb::FileKind::kCmp;
  // Rank 0 alone looks at the file: it is the one that reads it.
  int exitCode = mpi == nullptr || mpi->rank() == 0 ? check(arguments, kind) : kClean;
  if (mpi != nullptr) {
    mpi->communicator()->Broadi(exitCode);
    int shared = static_cast<int>(kind);
    mpi->communicator()->Broadi(shared);
    kind = static_cast<zeb::FileKind>(shared);
  }
  return exitCode == kClean ? show(arguments, kind, mpi) : exitCode;
}

}  // namespace

void addShow(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<ShowArguments>();
  CLI::App* command = app.add_subcommand("show", "Read a CMP or CMX file as a solver would and show every block");
  arguments->analysis.addTo(*command);
  arguments->analysis.addKindTo(*command);
  command
      ->add_option("--block", arguments->blocks,
                   "Only these blocks: block, class or section names (General, FIBER_ARD, SOLID_FILL)")
      ->type_name("BLOCK");
  command->add_flag("--changed", arguments->changedOnly, "Only members that differ from their default");
  addRanks(*command, arguments->ranks, "Read on N in-process ranks and compare them value by value");
  auto* raw = command->add_flag("--raw", arguments->raw, "The library's own dump of a CMP file, byte for byte");
  addFormat(*command, arguments->format, {"text", "json"});
  command->get_option("--format")->excludes(raw);
  command->footer(examplesText({{"show part.cmp --changed", "only what differs from the default"},
                                {"show part.cmp --molding RTM --material 1", "after that analysis' repairs"},
                                {"show part.cmp --block General Outlet", "two blocks"},
                                {"show part.cmp --viscoelastic --block VE", "with part.vecmp"},
                                {"show part.cmx --format json", "the analysis settings, for scripts"},
                                {"show part.cmp --as std", "what the standard solver sees"},
                                {"show part.cmp --ranks 8", "read on 8 ranks and compare them value by value"}}) +
                  "\nUnder mpirun the real ranks are compared. Exit codes: 0, 1 when ranks differ, 2 error.");
  runOnRanks(*command, exitCode, [arguments](const MpiRun* mpi) { return run(*arguments, mpi); });
}

}  // namespace compparm
