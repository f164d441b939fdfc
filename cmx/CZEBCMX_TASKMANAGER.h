// How the task manager runs the solver.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the task manager, from the block `<TASKMANAGER>`. A plain value; assignment copies it.
class CZEBCMX_TASKMANAGER {
 public:
  CZEBCMX_TASKMANAGER();
  CZEBCMX_TASKMANAGER(const CZEBCMX_TASKMANAGER& other);
  ~CZEBCMX_TASKMANAGER();
  CZEBCMX_TASKMANAGER& operator=(const CZEBCMX_TASKMANAGER& other);

  int iFlagAccelerationType() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_TASKMANAGER>();

  int m_iFlagAccelerationType = 0;
};
