// One rank of a team whose other ranks are never late; writes down what happens.
#pragma once

#include <string>
#include <vector>

#include "platform/ZEBCom.h"

using Events = std::vector<std::string>;

/// Receives nothing: values stay as they are.
class WatchedRank final : public CZEBCom {
 public:
  WatchedRank(int rank, int ranks, Events& events) : rank_(rank), ranks_(ranks), events_(events) {}
  int GetCPUId() override { return rank_; }
  int GetNCPU() override { return ranks_; }
  void Barrier() override { events_.emplace_back("barrier"); }
  void Broadi(int& /*value*/) override { events_.emplace_back("Broadi"); }
  void Broadd(double& /*value*/) override { events_.emplace_back("Broadd"); }
  void Broadc(char (&/*buffer*/)[255]) override { events_.emplace_back("Broadc"); }

 private:
  int rank_;
  int ranks_;
  Events& events_;
};
