#include "tools/compparm/Ranks.hpp"

#include <dlfcn.h>

#include <cstdlib>
#include <sstream>
#include <vector>

#include "standalone/ThreadCommunicator.h"
#include "standalone/mpi/MpiCommunicator.h"

namespace compparm {

namespace {

std::string firstDifference(const std::string& rank0, const std::string& other, int rank) {
  std::istringstream expected(rank0), actual(other);
  std::string a, b;
  while (std::getline(expected, a) && std::getline(actual, b)) {
    if (a == b) continue;
    return std::string("rank 0 has ")
        .append(a)
        .append(", rank ")
        .append(std::to_string(rank))
        .append(" has ")
        .append(b);
  }
  return "rank " + std::to_string(rank) + " holds other values than rank 0";
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

bool MpiRun::isPresent() {
  const char* size = std::getenv("OMPI_COMM_WORLD_SIZE");
  return size != nullptr && std::atoi(size) > 0;
}

MpiRun::MpiRun() {
  m_library = dlopen(ZEB_STANDALONE_MPI_LIBRARY, RTLD_NOW);
  if (m_library == nullptr) {
    m_error = "started by mpirun, but without MPI support: " + std::string(dlerror());
    return;
  }
  auto* create = symbol<decltype(ZebCreateMpiCommunicator)>(m_library, "ZebCreateMpiCommunicator");
  m_com = create == nullptr ? nullptr : create();
  if (m_com == nullptr) m_error = "the MPI communicator cannot be created";
}

MpiRun::~MpiRun() {
  if (m_com == nullptr) return;
  auto* destroy = symbol<decltype(ZebDestroyMpiCommunicator)>(m_library, "ZebDestroyMpiCommunicator");
  if (destroy != nullptr) destroy(m_com);
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

}  // namespace compparm
