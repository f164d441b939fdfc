// compparm schedule: the moments during filling at which results are written, from the grid and the CMX file.
#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <optional>

#include "cmx/COutput_F2C_MultiTiming.h"
#include "cmx/CZEBCMX_FILL_OUTPUT_TIMES.h"
#include "engine/TextOutput.hpp"
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

using Type = COutput_F2C_MultiTiming::FillOutputType;

constexpr int kLargestSplit = 1'000'000;
constexpr int kNotAscending = 3;

struct ScheduleArguments {
  std::string file;
  double fillTime = 0.0;
  int split = 0;
  std::optional<int> type;
  std::string format;
};

struct Entry {
  double moment;
  int source;   // 0: the grid; -1, -2, ...: the first, second, ... that stems from the file
  bool merged;  // a moment of the file, or several, fell into this one of the grid
};

struct Schedule {
  int type = 0;
  double span = 0.0;
  std::vector<double> fileMoments;
  std::string cut;       // why not all of them are used; empty: they are
  std::size_t kept = 0;  // of the file's moments, in front of the cut
  std::vector<Entry> entries;
  std::string messages;
};

bool isPercent(int type) { return type == 2 || type == 3; }

std::string unit(int type) { return type == 1 ? "s" : isPercent(type) ? "%" : ""; }

std::string withUnit(double moment, int type) {
  const std::string text = zeb::formatGeneral(moment);
  return unit(type).empty() ? text : text + " " + unit(type);
}

std::string typeText(int type) {
  if (type == 1) return "type 1, seconds of filling";
  if (isPercent(type)) return "type " + std::to_string(type) + ", percent";
  return "type " + std::to_string(type) + ", a scale of the caller's own";
}

void readMoments(const ScheduleArguments& arguments, Schedule& schedule) {
  const zeb::OutputCapture capture;
  const auto file = zeb::readParameterFile(arguments.file, zeb::FileKind::kCmx, {}, nullptr, nullptr);
  const CZEBCMX_FILL_OUTPUT_TIMES& times = *file.cmx->getFILL_OUTPUT_TIMES();
  schedule.type = arguments.type.value_or(times.MultiOutputType());
  schedule.span = isPercent(schedule.type) ? 100.0 : arguments.fillTime;
  if (times.pOutTimeStep() != nullptr) {
    schedule.fileMoments.assign(times.pOutTimeStep() + 1, times.pOutTimeStep() + 1 + times.NoOutTimeStep());
  }
  schedule.messages = capture.text();
}

std::string listEnds(std::size_t id, const std::string& why, std::size_t count) {
  return "moment " + std::to_string(id) + " of the file " + why + ": it and all behind it are left out (" +
         std::to_string(count - id + 1) + " of " + std::to_string(count) + ")";
}

std::vector<Entry> resultOf(COutput_F2C_MultiTiming& timing, int count) {
  std::vector<Entry> entries;
  for (int i = 1; i <= count; ++i) {
    Entry entry{};
    timing.Output_Step2(i, entry.moment, entry.source);
    entries.push_back(entry);
  }
  return entries;
}

// The grid alone, as the calculation itself makes it: an entry of the file that stands on it is a merged one.
std::vector<Entry> gridOf(const ScheduleArguments& arguments, const Schedule& schedule) {
  COutput_F2C_MultiTiming timing;
  timing.Input_Step1(arguments.fillTime, arguments.split, 0, static_cast<Type>(schedule.type));
  int count = 0;
  timing.Output_Step1(count);
  return resultOf(timing, count);
}

// The calculation's own statuses say what was refused; an unset moment ends its list just as silently as a zero.
void readIn(COutput_F2C_MultiTiming& timing, Schedule& schedule) {
  const std::vector<double>& moments = schedule.fileMoments;
  for (std::size_t id = 1; id <= moments.size(); ++id) {
    const double moment = moments[id - 1];
    const bool refused = timing.Input_Step2(static_cast<int>(id), moment) != 0;
    if (schedule.cut.empty() && (refused || !(moment > 0.0))) {
      const std::string valid = "(0, " + withUnit(schedule.span, schedule.type) + "]";
      schedule.cut =
          listEnds(id, refused ? "(" + zeb::formatGeneral(moment) + ") lies outside " + valid : "is not above 0",
                   moments.size());
    }
    if (schedule.cut.empty()) schedule.kept = id;
  }
}

void merge(COutput_F2C_MultiTiming& timing, const std::vector<Entry>& grid, Schedule& schedule) {
  const std::vector<double>& moments = schedule.fileMoments;
  int count = 0;
  if (timing.Output_Step1(count) == kNotAscending) {
    std::size_t id = 1;
    while (id < schedule.kept && moments[id] > moments[id - 1]) ++id;
    schedule.kept = id;
    schedule.cut = listEnds(id + 1,
                            "(" + zeb::formatGeneral(moments[id]) + ") is not above the one before it (" +
                                zeb::formatGeneral(moments[id - 1]) + ")",
                            moments.size());
  }
  schedule.entries = resultOf(timing, count);
  // Both are in ascending order.
  auto next = grid.begin();
  for (Entry& entry : schedule.entries) {
    while (next != grid.end() && next->moment < entry.moment) ++next;
    entry.merged = entry.source < 0 && next != grid.end() && next->moment == entry.moment;
  }
}

// Of the file's moments that are kept, those without an entry: they share one, or lie at the end of filling.
std::size_t withoutEntry(const Schedule& schedule) {
  const auto fromFile = [](const Entry& entry) { return entry.source < 0; };
  const auto entries = std::count_if(schedule.entries.begin(), schedule.entries.end(), fromFile);
  return schedule.kept - static_cast<std::size_t>(entries);
}

std::string sourceText(const Entry& entry) {
  if (entry.source == 0) return "grid";
  return "CMX " + std::to_string(-entry.source) + (entry.merged ? ", merged into the grid" : "");
}

void printJson(const ScheduleArguments& arguments, const Schedule& schedule) {
  Json entries = Json::array();
  for (const Entry& entry : schedule.entries) {
    entries.push_back({{"moment", entry.moment},
                       {"source", entry.source},
                       {"from", entry.source == 0 ? "grid" : "CMX"},
                       {"merged", entry.merged}});
  }
  Json moments = Json::array();
  for (const double moment : schedule.fileMoments) {
    moments.push_back(std::isfinite(moment) ? Json(moment) : jsonOf(zeb::exact(moment)));
  }
  Json document = {{"file", arguments.file},
                   {"type", schedule.type},
                   {"fillTime", arguments.fillTime},
                   {"span", schedule.span},
                   {"split", arguments.split},
                   {"unit", unit(schedule.type)},
                   {"cmxMoments", std::move(moments)},
                   {"moments", std::move(entries)},
                   {"withoutEntry", withoutEntry(schedule)}};
  if (!schedule.cut.empty()) document["cut"] = schedule.cut;
  if (!schedule.messages.empty()) document["messages"] = schedule.messages;
  print(document);
}

void printHeading(const ScheduleArguments& arguments, const Schedule& schedule) {
  std::cout << coloured(Colour::kBold, arguments.file) << "  " << typeText(schedule.type) << ", filling time "
            << zeb::formatGeneral(arguments.fillTime) << " s, grid of " << arguments.split << " steps of "
            << withUnit(schedule.span / arguments.split, schedule.type) << ", " << schedule.fileMoments.size()
            << (schedule.fileMoments.size() == 1 ? " moment" : " moments") << " in the file\n\n";
}

void printEnd(const Schedule& schedule) {
  for (const std::string& line : split(schedule.messages, '\n')) std::cout << line << '\n';
  if (!schedule.cut.empty()) std::cout << coloured(Colour::kYellow, "The list is cut short: ") << schedule.cut << ".\n";
  if (const std::size_t count = withoutEntry(schedule); count > 0) {
    std::cout << count
              << (count == 1 ? " moment of the file has no entry of its own: it shares one, or lies"
                             : " moments of the file have no entry of their own: they share one, or lie")
              << " at or behind the end of filling.\n";
  }
  std::cout << schedule.entries.size() << (schedule.entries.size() == 1 ? " output moment" : " output moments")
            << ". The end of filling is not among them.\n";
}

void printText(const Schedule& schedule) {
  const std::size_t width = std::to_string(schedule.entries.size()).size();
  for (std::size_t i = 0; i < schedule.entries.size(); ++i) {
    const Entry& entry = schedule.entries[i];
    const std::string number = std::to_string(i + 1);
    const std::string source = sourceText(entry);
    std::cout << "  " << std::string(width - number.size(), ' ') << number << "  "
              << padded(withUnit(entry.moment, schedule.type), 14) << "  "
              << coloured(entry.source == 0 ? Colour::kDim : Colour::kGreen, source) << '\n';
  }
  std::cout << '\n';
}

// Three rows to scale: the file's moments, the grid's, and the axis.
void printPlot(const Schedule& schedule) {
  constexpr std::size_t kColumns = 72;
  std::string cmx(kColumns + 1, ' '), grid(kColumns + 1, ' '), axis(kColumns + 1, '-');
  for (std::size_t tick = 0; tick <= kColumns; tick += kColumns / 4) axis[tick] = '+';
  for (const Entry& entry : schedule.entries) {
    const double column = std::round(entry.moment / schedule.span * static_cast<double>(kColumns));
    const auto at = static_cast<std::size_t>(std::clamp(column, 0.0, static_cast<double>(kColumns)));
    if (entry.source < 0) cmx[at] = entry.merged ? '*' : 'o';
    if (entry.source == 0 || entry.merged) grid[at] = '|';
  }
  const auto trimmed = [](std::string row) { return row.erase(row.find_last_not_of(' ') + 1); };
  const std::string end = withUnit(schedule.span, schedule.type);
  std::cout << trimmed("  CMX   " + cmx) << '\n'
            << trimmed("  grid  " + grid) << '\n'
            << "        " << axis << '\n'
            << "        0" << std::string(kColumns - std::min(end.size(), kColumns), ' ') << end << '\n'
            << "  o from the CMX file, | of the grid, * a moment of the file merged into the grid\n\n";
}

int run(const ScheduleArguments& arguments) {
  const std::string problem = zeb::whyUnreadable(arguments.file);
  if (!problem.empty()) return fail(arguments.file + ": " + problem);
  if (zeb::recogniseKind(arguments.file) == zeb::FileKind::kCmp) {
    return fail(arguments.file + ": is a CMP file; output moments stand in a CMX file");
  }
  if (!std::isfinite(arguments.fillTime)) return fail("--fill-time: must be finite");
  if (arguments.split > kLargestSplit) return fail("--split: at most " + std::to_string(kLargestSplit) + " steps");
  Schedule schedule;
  readMoments(arguments, schedule);
  COutput_F2C_MultiTiming timing;
  switch (timing.Input_Step1(arguments.fillTime, arguments.split, static_cast<int>(schedule.fileMoments.size()),
                             static_cast<Type>(schedule.type))) {
    case -1:
      return fail("--split: a grid has at least 3 steps, not " + std::to_string(arguments.split));
    case -2:
      return fail("--fill-time: must be above 0 s, not " + zeb::formatGeneral(arguments.fillTime));
    default:
      break;
  }
  readIn(timing, schedule);
  merge(timing, gridOf(arguments, schedule), schedule);
  if (arguments.format == "json") {
    printJson(arguments, schedule);
  } else {
    printHeading(arguments, schedule);
    arguments.format == "plot" ? printPlot(schedule) : printText(schedule);
    printEnd(schedule);
  }
  return schedule.cut.empty() ? kClean : kFindings;
}

}  // namespace

void addSchedule(CLI::App& app, int& exitCode) {
  const auto arguments = std::make_shared<ScheduleArguments>();
  CLI::App* command =
      app.add_subcommand("schedule", "Merge the fill moments of a CMX file with the default grid of output moments");
  command->add_option("CMX", arguments->file, "The CMX file")->required()->type_name("");
  command->add_option("--fill-time", arguments->fillTime, "Filling time in seconds, above 0")
      ->required()
      ->type_name("T");
  command->add_option("--split", arguments->split, "Equal steps of the grid, 3 to 1,000,000")
      ->required()
      ->type_name("N");
  command
      ->add_option("--type", arguments->type,
                   "Scale of the moments: 1 seconds, 2 or 3 percent, any other a scale of your own (default: the "
                   "file's)")
      ->type_name("K");
  addFormat(*command, arguments->format, {"text", "json", "plot"});
  command->footer(examplesText({{"schedule part.cmx --fill-time 1.2 --split 10", "the merged list"},
                                {"schedule part.cmx --fill-time 1.2 --split 10 --format plot", "as a time line"},
                                {"schedule part.cmx --fill-time 1.2 --split 10 --type 2", "moments in percent"}}) +
                  "\n\"CMX n\" is the n-th entry that stems from the file. "
                  "Exit codes: 0, 1 when the file's list is cut short, 2 error.");
  runOnce(*command, exitCode, [arguments] { return run(*arguments); });
}

}  // namespace compparm
