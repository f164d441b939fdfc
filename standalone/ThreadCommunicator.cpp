// How ranks in threads meet. Rank 0 publishes each of its calls in a ring and goes on at once; the others take them in
// order. Only barriers hold a rank back, and one that all ranks insert whenever the ring would be overrun.
#include "standalone/ThreadCommunicator.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "standalone/CallKind.hpp"

namespace zeb {
namespace {

constexpr std::size_t kRingSize = 64;

// The words that ranks sleep on: two flags, above them a counter that may wrap.
constexpr std::uint32_t kPoisoned = 1;
constexpr std::uint32_t kClosed = 2;  // rank 0 has ended, nothing more will be published
constexpr std::uint32_t kOneCall = 4;

constexpr std::uint32_t counterOf(std::uint32_t word) { return word / kOneCall; }
constexpr std::uint32_t counterOfCalls(std::uint64_t calls) {
  return counterOf(static_cast<std::uint32_t>(calls * kOneCall));
}

class PoisonedTeam : public std::runtime_error {
 public:
  PoisonedTeam() : std::runtime_error("another rank of the team has failed") {}
};

std::string countText(int rank, std::uint64_t calls) {
  return "rank " + std::to_string(rank) + " made " + std::to_string(calls) + " collective calls";
}

}  // namespace

class alignas(64) ThreadTeam::Rank final : public CZEBCom {
 public:
  Rank(Meeting& meeting, int id) : meeting_(meeting), id_(id) {}

  int GetCPUId() override { return id_; }
  int GetNCPU() override;
  void Barrier() override;
  void Broadi(int& value) override { exchange(CallKind::kBroadi, &value, sizeof value); }
  void Broadd(double& value) override { exchange(CallKind::kBroadd, &value, sizeof value); }
  void Broadc(char (&buffer)[255]) override { exchange(CallKind::kBroadc, buffer, sizeof buffer); }

  std::uint64_t calls() const { return calls_; }
  void reset() {
    calls_ = 0;
    sinceMeeting_ = 0;
  }

 private:
  void exchange(CallKind kind, void* value, std::size_t size);
  void makeRoomInRing();

  Meeting& meeting_;
  const int id_;
  std::uint64_t calls_ = 0;
  std::size_t sinceMeeting_ = 0;  // calls that stand in the ring and that a slower rank may not have taken yet
};

/// What the ranks of a team share.
class ThreadTeam::Meeting {
 public:
  explicit Meeting(int ranks) : callsAtArrival_(static_cast<std::size_t>(ranks)) {
    for (int id = 0; id < ranks; ++id) ranks_.push_back(std::make_unique<Rank>(*this, id));
  }

  int size() const { return static_cast<int>(ranks_.size()); }
  Rank& rank(int index) { return *ranks_.at(static_cast<std::size_t>(index)); }

  void reset();
  void publish(std::uint64_t number, CallKind kind, const void* value, std::size_t size);
  void take(int id, std::uint64_t number, CallKind kind, void* value, std::size_t size);
  void checkPublished(int id, std::uint64_t number, CallKind kind);
  void meet(int id, std::uint64_t calls);

  void leave(int id);
  void poison(std::exception_ptr error);
  void rethrowFirstError();

 private:
  struct PublishedCall {
    CallKind kind = CallKind::kBarrier;
    char value[kCallTextSize] = {};
  };

  PublishedCall& published(std::uint64_t number) { return ring_[number % kRingSize]; }
  std::uint32_t awaitCall(std::uint64_t number);
  [[noreturn]] void fail(const std::string& message);
  void checkArrivals();

  std::vector<std::unique_ptr<Rank>> ranks_;
  std::array<PublishedCall, kRingSize> ring_;
  std::atomic<std::uint32_t> publishedCalls_{0};
  std::atomic<std::uint32_t> meetings_{0};
  std::vector<std::uint64_t> callsAtArrival_;
  std::atomic<int> arrived_{0};
  std::atomic<int> left_{0};
  std::mutex errorMutex_;
  std::exception_ptr firstError_;
};

int ThreadTeam::Rank::GetNCPU() { return meeting_.size(); }

void ThreadTeam::Rank::makeRoomInRing() {
  if (sinceMeeting_ < kRingSize) return;
  meeting_.meet(id_, calls_);
  sinceMeeting_ = 0;
}

void ThreadTeam::Rank::exchange(CallKind kind, void* value, std::size_t size) {
  makeRoomInRing();
  if (id_ == 0) {
    meeting_.publish(calls_, kind, value, size);
  } else {
    meeting_.take(id_, calls_, kind, value, size);
  }
  ++calls_;
  ++sinceMeeting_;
}

void ThreadTeam::Rank::Barrier() {
  makeRoomInRing();
  if (id_ == 0) meeting_.publish(calls_, CallKind::kBarrier, nullptr, 0);
  meeting_.meet(id_, calls_);
  if (id_ != 0) meeting_.checkPublished(id_, calls_, CallKind::kBarrier);
  ++calls_;
  sinceMeeting_ = 1;  // the barrier itself: a slower rank may still look at it
}

void ThreadTeam::Meeting::reset() {
  for (const auto& rank : ranks_) rank->reset();
  publishedCalls_ = 0;
  meetings_ = 0;
  arrived_ = 0;
  left_ = 0;
  firstError_ = nullptr;
}

void ThreadTeam::Meeting::publish(std::uint64_t number, CallKind kind, const void* value, std::size_t size) {
  if ((publishedCalls_.load(std::memory_order_acquire) & kPoisoned) != 0) throw PoisonedTeam();
  PublishedCall& call = published(number);
  call.kind = kind;
  if (size > 0) std::memcpy(call.value, value, size);
  publishedCalls_.fetch_add(kOneCall, std::memory_order_acq_rel);
  publishedCalls_.notify_all();
}

std::uint32_t ThreadTeam::Meeting::awaitCall(std::uint64_t number) {
  std::uint32_t word = publishedCalls_.load(std::memory_order_acquire);
  // No rank can be further than the ring's size behind rank 0, nor before it: equal means not yet published.
  while (counterOf(word) == counterOfCalls(number) && (word & (kPoisoned | kClosed)) == 0) {
    publishedCalls_.wait(word, std::memory_order_acquire);
    word = publishedCalls_.load(std::memory_order_acquire);
  }
  return word;
}

void ThreadTeam::Meeting::take(int id, std::uint64_t number, CallKind kind, void* value, std::size_t size) {
  const std::uint32_t word = awaitCall(number);
  if ((word & kPoisoned) != 0) throw PoisonedTeam();
  if (counterOf(word) == counterOfCalls(number)) {
    fail("rank " + std::to_string(id) + " waits in " + callName(kind) + ", but rank 0 has ended after " +
         std::to_string(number) + " collective calls");
  }
  checkPublished(id, number, kind);
  std::memcpy(value, published(number).value, size);
}

void ThreadTeam::Meeting::checkPublished(int id, std::uint64_t number, CallKind kind) {
  const CallKind sent = published(number).kind;
  if (sent == kind) return;
  fail("collective call " + std::to_string(number) + ": rank 0 made " + callName(sent) + ", rank " +
       std::to_string(id) + " made " + callName(kind));
}

void ThreadTeam::Meeting::meet(int id, std::uint64_t calls) {
  const std::uint32_t before = meetings_.load(std::memory_order_acquire);
  if ((before & kPoisoned) != 0) throw PoisonedTeam();
  callsAtArrival_[static_cast<std::size_t>(id)] = calls;
  // Sequentially consistent, like the two accesses in leave(): a rank that waits and one that leaves see each other.
  if (arrived_.fetch_add(1) + 1 == size()) {
    checkArrivals();
    arrived_.store(0);
    meetings_.fetch_add(kOneCall, std::memory_order_acq_rel);
    meetings_.notify_all();
    return;
  }
  if (left_.load() > 0) fail("rank " + std::to_string(id) + " waits for a rank that has ended");
  std::uint32_t word = before;
  while (counterOf(word) == counterOf(before) && (word & kPoisoned) == 0) {
    meetings_.wait(word, std::memory_order_acquire);
    word = meetings_.load(std::memory_order_acquire);
  }
  if ((word & kPoisoned) != 0) throw PoisonedTeam();
}

void ThreadTeam::Meeting::checkArrivals() {
  for (std::size_t id = 1; id < callsAtArrival_.size(); ++id) {
    if (callsAtArrival_[id] == callsAtArrival_[0]) continue;
    fail("ranks meet in different calls: " + countText(0, callsAtArrival_[0]) + " before, " +
         countText(static_cast<int>(id), callsAtArrival_[id]));
  }
}

void ThreadTeam::Meeting::leave(int id) {
  left_.fetch_add(1);
  if (arrived_.load() > 0) fail("rank " + std::to_string(id) + " has ended while others wait for it");
  if (id != 0) return;
  publishedCalls_.fetch_or(kClosed, std::memory_order_acq_rel);
  publishedCalls_.notify_all();
}

void ThreadTeam::Meeting::fail(const std::string& message) {
  const std::runtime_error error(message);
  poison(std::make_exception_ptr(error));
  throw error;
}

void ThreadTeam::Meeting::poison(std::exception_ptr error) {
  {
    const std::lock_guard lock(errorMutex_);
    if (firstError_ == nullptr) firstError_ = std::move(error);
  }
  for (std::atomic<std::uint32_t>* word : {&publishedCalls_, &meetings_}) {
    word->fetch_or(kPoisoned, std::memory_order_acq_rel);
    word->notify_all();
  }
}

void ThreadTeam::Meeting::rethrowFirstError() {
  if (firstError_ != nullptr) std::rethrow_exception(std::exchange(firstError_, nullptr));
  for (int id = 1; id < size(); ++id) {
    if (rank(id).calls() == rank(0).calls()) continue;
    throw std::runtime_error(countText(0, rank(0).calls()) + ", " + countText(id, rank(id).calls()));
  }
}

ThreadTeam::ThreadTeam(int ranks) {
  if (ranks < 1) throw std::invalid_argument("a team needs at least one rank");
  meeting_ = std::make_unique<Meeting>(ranks);
}

ThreadTeam::~ThreadTeam() = default;

int ThreadTeam::size() const { return meeting_->size(); }

CZEBCom& ThreadTeam::rank(int index) { return meeting_->rank(index); }

void ThreadTeam::run(const std::function<void(int rank, CZEBCom& com)>& work) {
  meeting_->reset();
  const auto runRank = [this, &work](int id) {
    try {
      work(id, rank(id));
      meeting_->leave(id);
    } catch (...) {
      meeting_->poison(std::current_exception());
    }
  };
  std::vector<std::thread> threads;
  threads.reserve(static_cast<std::size_t>(size()));
  const auto start = [&](int id) {
    try {
      threads.emplace_back(runRank, id);
    } catch (const std::system_error& error) {
      const std::string rank = "rank " + std::to_string(id) + " of " + std::to_string(size());
      throw std::system_error(error.code(), rank + " cannot be started");
    }
  };
  try {
    for (int id = 1; id < size(); ++id) start(id);
    runRank(0);
  } catch (...) {
    meeting_->poison(std::current_exception());
  }
  for (std::thread& thread : threads) thread.join();
  meeting_->rethrowFirstError();
}

}  // namespace zeb
