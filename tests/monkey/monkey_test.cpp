// Seeded random user events and host puts on every control, with invariants checked after each.
// The test command plays a bounded run; `monkey_tests --events=1000000 --seed=7` plays a long one.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "tests/monkey/monkey.h"

namespace {
int g_events = 20000;
std::uint64_t g_seed = 20261123;
}  // namespace

namespace zenta::monkey {
namespace {

class Monkey : public ::testing::TestWithParam<std::size_t> {};

TEST_P(Monkey, KeepsEveryInvariant) {
  auto drivers = AllDrivers();
  Driver& driver = *drivers[GetParam()];
  EXPECT_EQ(Play(driver, g_seed + GetParam(), g_events), "");
}

INSTANTIATE_TEST_SUITE_P(EveryControl, Monkey, ::testing::Range<std::size_t>(0, AllDrivers().size()),
                         [](const ::testing::TestParamInfo<std::size_t>& param) {
                           return AllDrivers()[param.param]->Name();
                         });

}  // namespace
}  // namespace zenta::monkey

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  for (int i = 1; i < argc; ++i) {
    if (std::strncmp(argv[i], "--events=", 9) == 0) g_events = std::atoi(argv[i] + 9);
    if (std::strncmp(argv[i], "--seed=", 7) == 0) g_seed = std::strtoull(argv[i] + 7, nullptr, 10);
  }
  return RUN_ALL_TESTS();
}
