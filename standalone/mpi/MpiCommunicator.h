// The communicator over MPI, and what a tool needs besides to compare ranks. Needs no MPI header.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/ZEBCom.h"

namespace zeb {

/// Collective calls over an MPI communicator. MPI must be initialised before and finalised after.
class MpiCommunicator final : public CZEBCom {
 public:
  MpiCommunicator();  ///< Over MPI_COMM_WORLD.

  /// Over another communicator, named by its Fortran handle: `MPI_Comm_c2f(comm)`. Not owned, not duplicated.
  explicit MpiCommunicator(int fortranHandle);

  int GetCPUId() override { return rank_; }
  int GetNCPU() override { return ranks_; }
  void Barrier() override;
  void Broadi(int& value) override;
  void Broadd(double& value) override;
  void Broadc(char (&buffer)[255]) override;

 private:
  std::uintptr_t handle_ = 0;  // holds the MPI_Comm, whatever type that is
  int rank_ = 0;
  int ranks_ = 1;
};

}  // namespace zeb

// Plain C names, so that a program can load this library only when it runs under MPI (dlsym with the names below).
// All functions but Destroy and Abort are collective over MPI_COMM_WORLD.
extern "C" {

/// A communicator over MPI_COMM_WORLD. Initialises MPI if nobody has, with ranks that yield their core while they wait
/// (Open MPI's mpi_yield_when_idle, unless the environment says otherwise).
CZEBCom* ZebCreateMpiCommunicator();

/// Ends a communicator made above (null is ignored). The last one finalises MPI if the first one initialised it.
void ZebDestroyMpiCommunicator(CZEBCom* communicator);

/// Ends all ranks with this exit code, also those that wait in a collective call, or for MPI to be initialised on this
/// rank. Allocates nothing itself. Where MPI is finalised nobody waits, and only this rank ends.
[[noreturn]] void ZebMpiAbort(int exitCode);

/// 1 on every rank if every rank passes a value other than 0, else 0.
int ZebMpiAllAgree(int localOk);

/// Receives the text of one rank; `text` is valid during the call only and is not terminated.
typedef void (*ZebMpiTextReceiver)(void* context, int rank, const char* text, std::size_t length);

/// Brings every rank's text to rank 0, where `receive` is called once per rank, in rank order. Texts may hold any bytes
/// and have any length. `receive` must not throw; on other ranks it is not called and may be null.
void ZebMpiGatherText(const char* text, std::size_t length, ZebMpiTextReceiver receive, void* context);

}  // extern "C"
