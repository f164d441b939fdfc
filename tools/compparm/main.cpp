// compparm: see, check and compare the computation parameters of an injection-molding analysis.
#include <cstdio>
#include <exception>
#include <iostream>

#include "tools/compparm/Commands.hpp"
#include "tools/compparm/Terminal.hpp"

int main(int argc, char** argv) {
  CLI::App app{"Shows the computation parameters of an injection-molding analysis as the solver will use them.",
               "compparm"};
  app.require_subcommand(1);
  app.set_version_flag("--version", "compparm " ZEB_VERSION);
  app.footer(
      "Examples:\n"
      "  compparm show part.cmp                       every block, with defaults and origins\n"
      "  compparm show part.cmx                       the analysis settings\n"
      "  compparm schedule part.cmx --fill-time 1.2 --split 10    when filling writes results\n"
      "  compparm material pa66-gf30 --folder materials           a material as every rank holds it\n"
      "  compparm show part.cmp --changed             only what differs from the default\n"
      "  compparm show part.cmp --molding RTM --material 1 --block General Outlet\n"
      "  compparm show part.cmp --ranks 8             read on 8 ranks and compare them value by value\n"
      "  mpirun -np 4 compparm show part.cmp          the same over real ranks\n"
      "Exit codes: 0 clean, 1 findings or differences, 2 error.");
  int exitCode = compparm::kClean;
  compparm::addShow(app, exitCode);
  compparm::addCheck(app, exitCode);
  compparm::addSchedule(app, exitCode);
  compparm::addMaterial(app, exitCode);
  compparm::addExplain(app, exitCode);
  compparm::addDiff(app, exitCode);
  compparm::addTemplate(app, exitCode);
  compparm::addList(app, exitCode);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? compparm::kClean : compparm::kError;
  } catch (const std::exception& error) {
    return compparm::fail(error.what());
  }
  std::cout.flush();
  if (!std::cout) return compparm::fail("cannot write to standard output");
  return exitCode;
}
