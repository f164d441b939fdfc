// The communicator over MPI: each call is the MPI call of the same meaning.
#include "standalone/mpi/MpiCommunicator.h"

#define OMPI_SKIP_MPICXX 1  // the C interface only: MPI's withdrawn C++ classes would be linked otherwise
#define MPICH_SKIP_MPICXX 1
#include <mpi.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace zeb {
namespace {

// MPI_Comm is a pointer in one implementation and an int in another.
static_assert(sizeof(MPI_Comm) <= sizeof(std::uintptr_t));

std::uintptr_t pack(MPI_Comm comm) {
  std::uintptr_t handle = 0;
  std::memcpy(&handle, &comm, sizeof comm);  // NOLINT(bugprone-sizeof-expression): a handle, here a pointer
  return handle;
}

MPI_Comm unpack(std::uintptr_t handle) {
  MPI_Comm comm;
  std::memcpy(&comm, &handle, sizeof comm);  // NOLINT(bugprone-sizeof-expression)
  return comm;
}

constexpr int kGatherTag = 4711;
constexpr unsigned long long kLargestMessage = 1ULL << 30;  // MPI counts in ints

/// Calls `transfer(offset, length)` for each message of a text.
template <typename Transfer>
void inMessages(unsigned long long length, Transfer transfer) {
  for (unsigned long long offset = 0; offset < length; offset += kLargestMessage) {
    transfer(offset, static_cast<int>(std::min(kLargestMessage, length - offset)));
  }
}

int liveCommunicators = 0;
bool initialisedHere = false;

void initialiseMpi() {
  int initialised = 0;
  MPI_Initialized(&initialised);
  if (initialised != 0) return;
  setenv("OMPI_MCA_mpi_yield_when_idle", "1", 0);
  MPI_Init(nullptr, nullptr);
  initialisedHere = true;
}

void finaliseMpi() {
  int finalised = 0;
  MPI_Finalized(&finalised);
  if (finalised == 0) MPI_Finalize();
  initialisedHere = false;
}

}  // namespace

MpiCommunicator::MpiCommunicator() : MpiCommunicator(static_cast<int>(MPI_Comm_c2f(MPI_COMM_WORLD))) {}

MpiCommunicator::MpiCommunicator(int fortranHandle) : handle_(pack(MPI_Comm_f2c(fortranHandle))) {
  MPI_Comm_rank(unpack(handle_), &rank_);
  MPI_Comm_size(unpack(handle_), &ranks_);
}

void MpiCommunicator::Barrier() { MPI_Barrier(unpack(handle_)); }

void MpiCommunicator::Broadi(int& value) { MPI_Bcast(&value, 1, MPI_INT, 0, unpack(handle_)); }

void MpiCommunicator::Broadd(double& value) { MPI_Bcast(&value, 1, MPI_DOUBLE, 0, unpack(handle_)); }

void MpiCommunicator::Broadc(char (&buffer)[255]) { MPI_Bcast(buffer, 255, MPI_CHAR, 0, unpack(handle_)); }

}  // namespace zeb

CZEBCom* ZebCreateMpiCommunicator() {
  zeb::initialiseMpi();
  auto* const communicator = new zeb::MpiCommunicator();
  ++zeb::liveCommunicators;
  return communicator;
}

void ZebDestroyMpiCommunicator(CZEBCom* communicator) {
  if (communicator == nullptr) return;
  delete communicator;
  if (--zeb::liveCommunicators == 0 && zeb::initialisedHere) zeb::finaliseMpi();
}

void ZebMpiAbort(int exitCode) {
  int finalised = 0;
  MPI_Finalized(&finalised);
  if (finalised == 0) {
    zeb::initialiseMpi();
    MPI_Abort(MPI_COMM_WORLD, exitCode);
  }
  std::_Exit(exitCode);
}

int ZebMpiAllAgree(int localOk) {
  const int mine = localOk != 0 ? 1 : 0;
  int all = 0;
  MPI_Allreduce(&mine, &all, 1, MPI_INT, MPI_MIN, MPI_COMM_WORLD);
  return all;
}

void ZebMpiGatherText(const char* text, std::size_t length, ZebMpiTextReceiver receive, void* context) {
  int rank = 0;
  int ranks = 1;
  MPI_Comm_rank(MPI_COMM_WORLD, &rank);
  MPI_Comm_size(MPI_COMM_WORLD, &ranks);
  const unsigned long long mine = length;
  std::vector<unsigned long long> lengths(rank == 0 ? static_cast<std::size_t>(ranks) : 0);
  MPI_Gather(&mine, 1, MPI_UNSIGNED_LONG_LONG, lengths.data(), 1, MPI_UNSIGNED_LONG_LONG, 0, MPI_COMM_WORLD);
  if (rank != 0) {
    zeb::inMessages(mine, [text](unsigned long long offset, int count) {
      MPI_Send(text + offset, count, MPI_CHAR, 0, zeb::kGatherTag, MPI_COMM_WORLD);
    });
    return;
  }
  receive(context, 0, text, length);
  std::vector<char> received;
  for (int source = 1; source < ranks; ++source) {
    received.resize(lengths[static_cast<std::size_t>(source)]);
    zeb::inMessages(received.size(), [&received, source](unsigned long long offset, int count) {
      MPI_Recv(received.data() + offset, count, MPI_CHAR, source, zeb::kGatherTag, MPI_COMM_WORLD, MPI_STATUS_IGNORE);
    });
    receive(context, source, received.data(), received.size());
  }
}
