// compparm: see, check and compare the computation parameters of an injection-molding analysis.
#include <atomic>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

#include "tools/compparm/Commands.hpp"
#include "tools/compparm/HelpText.hpp"
#include "tools/compparm/Ranks.hpp"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

void addCommands(CLI::App& app, int& exitCode) {
  addShow(app, exitCode);
  addCheck(app, exitCode);
  addExplain(app, exitCode);
  addDiff(app, exitCode);
  addSchedule(app, exitCode);
  addMaterial(app, exitCode);
  addTemplate(app, exitCode);
  addList(app, exitCode);
  const auto teach = [&](const char* name, const std::vector<Example>& examples) {
    CLI::App* command = app.get_subcommand(name);
    if (command->get_footer().empty()) command->footer(examplesText(examples));
  };
  teach("check", {{"check part.cmp", "what a solver would ignore or misread, line by line"},
                  {"check part.cmp --molding RTM --material 1", "with the repairs of that analysis"},
                  {"check part.cmp --format sarif", "for other programs"}});
  teach("material", {{"material pa66-gf30 --folder materials", "every table and test curve"},
                     {"material pa66-gf30 --folder materials --ranks 8", "distribute it and compare the copies"}});
}

// For packaging and the shell, not for people: `compparm manual` writes the manual page, `compparm complete WORD...`
// the words that the last WORD can become.
bool servesTheShell(const CLI::App& app, const std::vector<std::string>& words) {
  if (words.empty()) return false;
  if (words.front() == "manual") {
    std::cout << manualPage(app);
    return true;
  }
  if (words.front() != "complete") return false;
  for (const std::string& word : completions(app, {words.begin() + 1, words.end()})) std::cout << word << '\n';
  return true;
}

// Looked at in the end: streams keep to themselves what is thrown inside them, and the texts that they make are cut.
constinit std::atomic<bool> hasMemoryFailed{false};

void noteFailedMemory() {
  hasMemoryFailed = true;
  throw std::bad_alloc();
}

int run(int argc, char** argv) {
  CLI::App app{"Shows the computation parameters of an injection-molding analysis as the solver will use them.",
               "compparm"};
  app.require_subcommand(1);
  app.set_version_flag("--version", "compparm " ZEB_VERSION, "Print the version and exit");
  int exitCode = kClean;
  addCommands(app, exitCode);
  app.footer(examplesText({{"show part.cmp", "every block, with defaults and origins"},
                           {"show part.cmp --changed", "only what differs from the default"},
                           {"check part.cmp", "what the solver would silently ignore or misread"},
                           {"explain part.cmp AirPressure", "how one parameter came to its value"},
                           {"diff old.cmp new.cmp", "what differs for the solver, not in the text"},
                           {"schedule part.cmx --fill-time 1.2 --split 10", "when filling writes results"},
                           {"template --molding RTM", "a commented file with every default"},
                           {"list outlet pressure", "keys by any word"},
                           {"COMMAND --help", "options and examples of a command"}}) +
             "\nExit codes: 0 clean, 1 findings or differences, 2 error.");
  const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
  try {
    if (!servesTheShell(app, words)) app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() != 0) return fail(problemOf(app, words, error.what()));
    app.exit(error);  // prints the help or the version
  }
  std::cout.flush();
  if (hasMemoryFailed) throw std::bad_alloc();
  if (!std::cout) return fail("cannot write to standard output");
  return exitCode;
}

// What no catch reaches ends here: memory that fails before main begins or in a destructor. (A JSON document's needs
// some.)
[[noreturn]] void tellAndEnd() noexcept {
  try {
    if (const auto error = std::current_exception()) std::rethrow_exception(error);
  } catch (const std::exception& error) {
    MpiRun::abort(fail(error));
  } catch (...) {
  }
  MpiRun::abort(hasMemoryFailed ? fail(std::bad_alloc()) : fail("ended by an error that nobody expected"));
}

// Ahead of the initialisers of the command line's own objects, which allocate.
__attribute__((constructor(101))) void prepareToTell() {
  std::set_terminate(tellAndEnd);
  std::set_new_handler(noteFailedMemory);
}

}  // namespace

}  // namespace compparm

int main(int argc, char** argv) {
  try {
    return compparm::run(argc, argv);
  } catch (const std::exception& error) {
    const int exitCode = compparm::fail(error);
    if (compparm::MpiRun::isPresent()) compparm::MpiRun::abort(exitCode);
    return exitCode;
  }
}
