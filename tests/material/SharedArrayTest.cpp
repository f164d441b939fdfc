// Shared arrays and texts: who sees what, and for how long.
#include <gtest/gtest.h>

#include <memory>

#include "engine/SharedArray.h"

namespace {

using zeb::OwnedText;
using zeb::SharedArray;

// Counts the elements that live.
struct Counted {
  static int alive;
  Counted() { ++alive; }
  ~Counted() { --alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
};
int Counted::alive = 0;

TEST(SharedArray, IsNullUntilAllocatedAndThenZero) {
  SharedArray<double> array;
  EXPECT_EQ(array.get(), nullptr);
  double* const values = array.allocate(3);
  EXPECT_EQ(array.get(), values);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(values[i], 0.0);
}

TEST(SharedArray, WhatWasHandedOutLivesAsLongAsTheObject) {
  {
    SharedArray<Counted> array;
    array.allocate(2);
    const Counted* const handedOut = array.get();
    array.allocate(3);
    EXPECT_NE(array.get(), handedOut);
    EXPECT_EQ(Counted::alive, 5);
    array = SharedArray<Counted>();
    EXPECT_EQ(array.get(), nullptr);
    EXPECT_EQ(Counted::alive, 5);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST(SharedArray, WhatNobodyAskedForIsReleasedWhenReplaced) {
  SharedArray<Counted> array;
  for (int i = 0; i < 100; ++i) array.allocate(10);
  EXPECT_EQ(Counted::alive, 10);
}

TEST(SharedArray, OneThatIsAnnouncedIsMadeOnceWhenThereIsToBeRoom) {
  SharedArray<Counted> array;
  array.makeRoom();
  EXPECT_EQ(array.get(), nullptr) << "none was announced";
  array.allocate(2);
  for (int i = 0; i < 100; ++i) array.announce(10);
  EXPECT_EQ(array.get(), nullptr);
  EXPECT_EQ(array.size(), 0u);
  EXPECT_EQ(Counted::alive, 0);
  array.makeRoom();
  const Counted* const made = array.get();
  EXPECT_NE(made, nullptr);
  EXPECT_EQ(array.size(), 10u);
  array.makeRoom();
  EXPECT_EQ(array.get(), made);
  array.announce(3);
  EXPECT_EQ(Counted::alive, 10) << "what was handed out stays";
  array.release();
  array.makeRoom();
  EXPECT_EQ(array.get(), nullptr);
}

TEST(SharedArray, CopiesShareUntilOneIsReplaced) {
  auto original = std::make_unique<SharedArray<Counted>>();
  original->allocate(4);
  SharedArray<Counted> copied(*original);
  SharedArray<Counted> assigned;
  assigned.allocate(1);
  assigned = *original;
  EXPECT_EQ(copied.get(), original->get());
  EXPECT_EQ(assigned.get(), original->get());
  EXPECT_EQ(Counted::alive, 4);
  copied.allocate(2);
  EXPECT_NE(copied.get(), original->get());
  EXPECT_EQ(Counted::alive, 6);
  original.reset();
  EXPECT_EQ(Counted::alive, 6);
}

TEST(SharedArray, AssignmentOfTheSameArrayChangesNothing) {
  {
    SharedArray<Counted> array;
    array.allocate(4);
    const Counted* const handedOut = array.get();
    const SharedArray<Counted> copied(array);
    array = copied;
    const SharedArray<Counted>& self = array;
    array = self;
    EXPECT_EQ(array.get(), handedOut);
    array.allocate(1);
    EXPECT_EQ(Counted::alive, 5);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST(OwnedText, IsNullUntilAssigned) {
  OwnedText text;
  EXPECT_EQ(text.get(), nullptr);
  text.assign(nullptr, 0);
  EXPECT_STREQ(text.get(), "");
}

TEST(OwnedText, EndsTheTextAndKeepsTheEarlierOne) {
  OwnedText text;
  text.assign("first line", 5);
  const char* const first = text.get();
  const OwnedText copied = text;
  text.assign("second", 6);
  EXPECT_STREQ(first, "first");
  EXPECT_STREQ(text.get(), "second");
  EXPECT_STREQ(copied.get(), "first");
}

}  // namespace
