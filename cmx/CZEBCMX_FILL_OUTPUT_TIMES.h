// Moments of filling at which results are written.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Output moments of filling, from the block `<FILL_OUTPUT_TIMES>`. The key ValueNoFillOutputTime is followed at once
/// by its number of lines "id = moment", blanks around the '='; their order counts, not their IDs. Assignment shares
/// the moments.
class CZEBCMX_FILL_OUTPUT_TIMES {
 public:
  CZEBCMX_FILL_OUTPUT_TIMES();
  CZEBCMX_FILL_OUTPUT_TIMES(const CZEBCMX_FILL_OUTPUT_TIMES& other);
  ~CZEBCMX_FILL_OUTPUT_TIMES();
  CZEBCMX_FILL_OUTPUT_TIMES& operator=(const CZEBCMX_FILL_OUTPUT_TIMES& other);

  int MultiOutputType() const;
  /// Number of output moments, 0 to 1,000,000.
  int NoOutTimeStep() const;
  /// The output moments: NoOutTimeStep() + 1 doubles, 0.0 at 0, the moments at 1 to NoOutTimeStep(), 0.0 where the file
  /// had none. Null while no ValueNoFillOutputTime was read. Valid until the block is destroyed; not owned by the
  /// caller.
  const double* pOutTimeStep() const;

  /// Sets the scale of the moments. Always 1.
  int setMultiOutputType(int type);

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_OUTPUT_TIMES>();

  int m_iMultiOutputType = 1;
  int m_iNoOutTimeStep = 0;
  zeb::SharedArray<double> m_pOutTimeStep;
};
