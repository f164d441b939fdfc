// The parallel read and the distribution of a material against the bare collectives: the very same sequence of MPI
// calls without anything around it. Run by bench/mpi/run.
#define OMPI_SKIP_MPICXX 1
#define MPICH_SKIP_MPICXX 1
#include <mpi.h>

#include <cstdlib>
#include <optional>

#include "bench/BenchFiles.hpp"
#include "bench/Ratios.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Silence.hpp"
#include "material/CZEBKNMaterialParam.h"
#include "standalone/MaterialEngine.h"
#include "standalone/mpi/MpiCommunicator.h"
#include "tests/support/RecordingCommunicator.h"

namespace {

using namespace zebbench;

constexpr std::size_t kLines = 500;

std::vector<zeb::CallKind> kindsOf(const zeb::CallLog& log) {
  std::vector<zeb::CallKind> kinds;
  for (zeb::CallReader reader(log); !reader.atEnd(); reader.next()) kinds.push_back(reader.kind());
  return kinds;
}

void makeBareCalls(const std::vector<zeb::CallKind>& kinds) {
  int number = 0;
  double real = 0.0;
  char text[zeb::kCallTextSize] = {};
  for (const zeb::CallKind kind : kinds) {
    switch (kind) {
      case zeb::CallKind::kBarrier:
        MPI_Barrier(MPI_COMM_WORLD);
        break;
      case zeb::CallKind::kBroadi:
        MPI_Bcast(&number, 1, MPI_INT, 0, MPI_COMM_WORLD);
        break;
      case zeb::CallKind::kBroadd:
        MPI_Bcast(&real, 1, MPI_DOUBLE, 0, MPI_COMM_WORLD);
        break;
      case zeb::CallKind::kBroadc:
        MPI_Bcast(text, zeb::kCallTextSize, MPI_CHAR, 0, MPI_COMM_WORLD);
        break;
    }
  }
}

/// Microseconds from all ranks' common start until the last one has finished.
template <class Work>
double timeOf(Work work) {
  MPI_Barrier(MPI_COMM_WORLD);
  const double start = MPI_Wtime();
  work();
  MPI_Barrier(MPI_COMM_WORLD);
  return (MPI_Wtime() - start) * 1e6;
}

struct Samples {
  std::vector<double> whole, bare, alone;
};

/// `work(communicator)` is collective; `alone()` is what rank 0 has to do in it that is no communication.
template <class Work, class Alone>
void compare(const char* name, CZEBCom& com, int repetitions, Work work, Alone alone) {
  std::vector<zeb::CallKind> kinds;
  Samples samples;
  const bool reports = com.GetCPUId() == 0;
  {
    const zeb::Silence silence;
    zeb::RecordingCommunicator recorder(com);
    work(&recorder);
    kinds = kindsOf(recorder.log());
    for (int i = 0; i < repetitions; ++i) {
      samples.bare.push_back(timeOf([&] { makeBareCalls(kinds); }));
      samples.whole.push_back(timeOf([&] { work(&com); }));
      samples.alone.push_back(timeOf([&] {
        if (reports) alone();
      }));
    }
  }
  if (!reports) return;
  const double whole = median(samples.whole), bare = median(samples.bare), serial = median(samples.alone);
  std::printf("  %-26s %2d ranks %6zu calls  whole %10.1f us  bare %10.1f us  rank 0 alone %8.1f us\n", name,
              com.GetNCPU(), kinds.size(), whole, bare, serial);
  std::printf("  %-26s   whole/bare %.3f (fastest runs %.3f), without rank 0's own work %.3f\n", "", whole / bare,
              smallest(samples.whole) / smallest(samples.bare), (whole - serial) / bare);
}

void compareReading(CZEBCom& com, int repetitions) {
  std::optional<TemporaryFile> file;
  if (com.GetCPUId() == 0) file.emplace(firstLinesText(kLargestExample, kLines));
  const std::string path = file ? file->path() : "";
  CZEBKNCMPCompParm parameters(0, 0), serial(0, 0);
  compare(
      "read of 500 lines", com, repetitions,
      [&](CZEBCom* communicator) {
        parameters.setZEBCom(communicator);
        parameters.setSolidFillBlock(path);
      },
      [&] { serial.setSolidFillBlock(path); });
}

void compareMaterial(const char* name, CZEBCom& com, int repetitions) {
  compare(
      name, com, repetitions,
      [&](CZEBCom* communicator) {
        CZEBKNMaterialParam material;
        material.SetInput(name, communicator);
      },
      [&] {
        CZEBKNMaterialParam material;
        material.SetInput(name, nullptr);
      });
}

}  // namespace

int main(int argc, char** argv) {
  const int repetitions = argc > 1 ? std::atoi(argv[1]) : 101;
  MPI_Init(&argc, &argv);
  CZEBCom* const com = ZebCreateMpiCommunicator();
  zeb::setMaterialFolders({ZEB_EXAMPLES_DIR "/materials"});
  compareReading(*com, repetitions);
  compareMaterial("pa66-gf30", *com, repetitions);
  compareMaterial("epoxy-encapsulant", *com, repetitions);
  ZebDestroyMpiCommunicator(com);
  MPI_Finalize();
}
