// The stand-ins look for a host's own under the names that the compiler gives them. tests/consumer has hosts.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include "standalone/HostDefinition.hpp"

namespace zeb::test {
namespace {

class HostDefinition : public testing::TestWithParam<const char*> {};

TEST_P(HostDefinition, IsLookedForUnderANameThatExists) { EXPECT_NE(dlsym(RTLD_DEFAULT, GetParam()), nullptr); }

TEST_P(HostDefinition, IsNotFoundWhereTheStandInIsAlone) {
  EXPECT_EQ(findHostDefinition(GetParam(), nullptr), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Symbols, HostDefinition,
                         testing::Values(symbol::kOpenFile, symbol::kGetMaterial, symbol::kGetMTCInfo,
                                         symbol::kGetMTCData, symbol::kReleaseMaterial, symbol::kMakeProcess,
                                         symbol::kEndProcess));

}  // namespace
}  // namespace zeb::test
