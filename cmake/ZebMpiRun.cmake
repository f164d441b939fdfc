# How this build starts programs on several ranks: on any machine, as root in a container too, with more ranks than
# cores, without a remote shell and without a network.
include_guard()

# A name may have been given where several MPI stand side by side.
find_program(zebMpiRun ${MPIEXEC_EXECUTABLE} REQUIRED NO_CACHE)
set(zebMpiEnvironment
  OMPI_ALLOW_RUN_AS_ROOT=1
  OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1
  OMPI_MCA_rmaps_base_oversubscribe=1
  # Ranks outnumber cores: a waiting rank must let the others run.
  OMPI_MCA_mpi_yield_when_idle=1
  OMPI_MCA_plm=isolated
  OMPI_MCA_btl=self,vader
  OMPI_MCA_btl_vader_single_copy_mechanism=none)
if(ZEB_SANITIZE)
  # Open MPI replaces allocation functions, which the sanitizer does too, and keeps memory to the end of the process in
  # modules that it has unloaded by then, so that it cannot be told from ours: leaks are looked for in the other tests.
  # detect_odr_violation as in tests/CMakeLists.txt.
  list(APPEND zebMpiEnvironment OMPI_MCA_memory=^patcher ASAN_OPTIONS=detect_leaks=0:detect_odr_violation=1)
endif()
