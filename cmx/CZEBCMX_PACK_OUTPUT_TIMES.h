// Moments of packing at which results are written.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Output moments of packing, from the block `<PACK_OUTPUT_TIMES>`. The key ValueNoPackOutputTime is followed at once
/// by its number of lines "id = moment", blanks around the '='; their order counts, not their IDs. Assignment shares
/// the moments.
class CZEBCMX_PACK_OUTPUT_TIMES {
 public:
  CZEBCMX_PACK_OUTPUT_TIMES();
  CZEBCMX_PACK_OUTPUT_TIMES(const CZEBCMX_PACK_OUTPUT_TIMES& other);
  ~CZEBCMX_PACK_OUTPUT_TIMES();
  CZEBCMX_PACK_OUTPUT_TIMES& operator=(const CZEBCMX_PACK_OUTPUT_TIMES& other);

  /// Number of output moments, 0 to 1,000,000.
  int iNoOutTimeStep() const;
  /// The output moments: iNoOutTimeStep() + 1 doubles, 0.0 at 0, the moments at 1 to iNoOutTimeStep(), 0.0 where the
  /// file had none. Null while no ValueNoPackOutputTime was read. Valid until the block is destroyed; not owned by the
  /// caller.
  const double* pOutTimeStep() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_PACK_OUTPUT_TIMES>();

  int m_iNoOutTimeStep = 0;
  zeb::SharedArray<double> m_pOutTimeStep;
};
