// The solver's communicator, as the host's companion library declares it.
#pragma once

#include "platform/ZEBVisible.h"

/// Collective operations between the ranks of one solver run. Rank 0 is the source of every broadcast; every
/// rank must make the same sequence of calls. Not owned by the objects it is handed to.
class ZEB_VISIBLE CZEBCom {
 public:
  virtual ~CZEBCom() = default;
  virtual int GetCPUId() = 0;  ///< This rank, 0 to GetNCPU() - 1; rank 0 reads the files.
  virtual int GetNCPU() = 0;   ///< Number of ranks.
  virtual void Barrier() = 0;
  virtual void Broadi(int& value) = 0;
  virtual void Broadd(double& value) = 0;
  virtual void Broadc(char (&buffer)[255]) = 0;
};
