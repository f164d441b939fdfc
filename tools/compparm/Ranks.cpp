#include "tools/compparm/Ranks.hpp"

#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "standalone/ThreadCommunicator.h"
#include "standalone/mpi/MpiCommunicator.h"
#include "tools/compparm/Terminal.hpp"

namespace compparm {

namespace {

std::string firstDifference(const std::string& rank0, const std::string& other, int rank) {
  const std::vector<std::string> expected = split(rank0, '\n'), actual = split(other, '\n');
  const auto [a, b] = std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  const std::string name = "rank " + std::to_string(rank);
  if (a == expected.end() || b == actual.end()) return name + " holds other values than rank 0";
  return std::string("rank 0 has ").append(*a).append(", ").append(name).append(" has ").append(*b);
}

RankComparison compare(const std::vector<std::string>& values) {
  RankComparison result{static_cast<int>(values.size()), {}};
  for (std::size_t rank = 1; rank < values.size(); ++rank) {
    if (values[rank] == values[0]) continue;
    result.difference = firstDifference(values[0], values[rank], static_cast<int>(rank));
    break;
  }
  return result;
}

template <class Function>
Function* symbol(void* library, const char* name) {
  return reinterpret_cast<Function*>(dlsym(library, name));
}

bool isAskedFor = false;  // by --mpi

// What launchers tell of the job, the most telling first. The library is loaded for any of it; the number of ranks is
// then MPI's.
int ranksLaunched() {
  struct Variable {
    const char* name;
    int isCountFrom0;
  };
  constexpr Variable kVariables[] = {
      {"OMPI_COMM_WORLD_SIZE", 0}, {"PMI_SIZE", 0}, {"MPI_LOCALNRANKS", 0}, {"PMIX_RANK", 1}};
  for (const Variable& variable : kVariables) {
    const char* value = std::getenv(variable.name);
    const int ranks = value == nullptr || *value == '\0' ? 0 : std::atoi(value) + variable.isCountFrom0;
    if (ranks > 0) return ranks;
  }
  return 0;
}

void addMpi(CLI::App& command) {
  CLI::Option* mpi = command.add_flag_function(
      "--mpi", [](std::int64_t) { isAskedFor = true; },
      "This is a rank of an MPI job, also where no variable of its launcher tells so");
  if (CLI::Option* ranks = command.get_option_no_throw("--ranks"); ranks != nullptr) mpi->excludes(ranks);
}

int onRanks(const std::function<int(const MpiRun* mpi)>& run) {
  if (!MpiRun::isPresent()) return run(nullptr);
  MpiRun mpi;
  const std::string problem = mpi.join();
  if (!problem.empty()) return fail(problem);
  int result = run(&mpi);
  // Launchers end a job, and take its exit code, when the first rank ends with another than 0.
  if (mpi.rank() != 0) result = kClean;
  mpi.leave();
  return result;
}

}  // namespace

void addRanks(CLI::App& command, int& ranks, const char* about) {
  const auto isFree = [](const std::string&) {
    return MpiRun::isPresent() ? "mpirun has started ranks of its own: leave the option out" : "";
  };
  command.add_option("--ranks", ranks, about)
      ->check(CLI::Range(1, 512).description("1 to 512"))
      ->check(isFree)
      ->type_name("N");
}

RankComparison compareThreads(int ranks, const RankTask& task) {
  std::vector<std::string> values(static_cast<std::size_t>(ranks));
  zeb::ThreadTeam team(ranks);
  team.run([&](int rank, CZEBCom& com) { values[static_cast<std::size_t>(rank)] = task(com); });
  return compare(values);
}

bool MpiRun::isPresent() { return isAskedFor || ranksLaunched() > 0; }

std::string MpiRun::join() {
  const int launched = ranksLaunched();  // MPI may change the variables
  m_library = dlopen(ZEB_STANDALONE_MPI_LIBRARY, RTLD_NOW);
  if (m_library == nullptr) return "started by mpirun, but without MPI support: " + std::string(dlerror());
  auto* create = symbol<decltype(ZebCreateMpiCommunicator)>(m_library, "ZebCreateMpiCommunicator");
  m_com = create == nullptr ? nullptr : create();
  if (m_com == nullptr) return "the MPI communicator cannot be created";
  // A library that does not know the launcher takes each process for a job of its own.
  if (m_com->GetNCPU() >= launched) return {};
  return "started on " + std::to_string(launched) + " ranks by the launcher of another MPI than it was built for";
}

void MpiRun::abort(int exitCode) {
  void* library = isPresent() ? dlopen(ZEB_STANDALONE_MPI_LIBRARY, RTLD_NOW) : nullptr;
  auto* abortAll = library == nullptr ? nullptr : symbol<decltype(ZebMpiAbort)>(library, "ZebMpiAbort");
  if (abortAll != nullptr) abortAll(exitCode);
  std::_Exit(exitCode);
}

void MpiRun::leave() {
  auto* destroy = symbol<decltype(ZebDestroyMpiCommunicator)>(m_library, "ZebDestroyMpiCommunicator");
  if (destroy != nullptr) destroy(std::exchange(m_com, nullptr));
}

int MpiRun::rank() const { return m_com == nullptr ? 0 : m_com->GetCPUId(); }

RankComparison MpiRun::compare(const RankTask& task) const {
  const std::string own = task(*m_com);
  std::vector<std::string> values(static_cast<std::size_t>(m_com->GetNCPU()));
  auto* gather = symbol<decltype(ZebMpiGatherText)>(m_library, "ZebMpiGatherText");
  gather(
      own.data(), own.size(),
      [](void* context, int rank, const char* text, std::size_t length) {
        (*static_cast<std::vector<std::string>*>(context))[static_cast<std::size_t>(rank)].assign(text, length);
      },
      &values);
  RankComparison result{m_com->GetNCPU(), {}};
  if (rank() == 0) result = compparm::compare(values);
  int same = result.same() ? 1 : 0;
  m_com->Broadi(same);
  if (same == 0 && result.same()) result.difference = "the ranks differ";
  return result;
}

void runOnRanks(CLI::App& command, int& exitCode, std::function<int(const MpiRun* mpi)> run) {
  addMpi(command);
  command.callback([&exitCode, run = std::move(run)] { exitCode = onRanks(run); });
}

void runOnce(CLI::App& command, int& exitCode, std::function<int()> run) {
  runOnRanks(command, exitCode,
             [run = std::move(run)](const MpiRun* mpi) { return mpi == nullptr || mpi->rank() == 0 ? run() : kClean; });
}

}  // namespace compparm
