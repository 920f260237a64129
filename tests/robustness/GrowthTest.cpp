// SPDX-License-Identifier: MIT
// Twice the input costs at most 2.3 times the allocations and memory. Instructions are counted by
// scripts/measure-growth, which runs the one case that the environment names.
#include "robustness/Growth.h"
#include "robustness/Measure.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace TestSupport;

namespace {

constexpr double LARGEST_RATIO = 2.3;
constexpr std::size_t MEBI = std::size_t(1) << 20;

void ExpectGrowth(const GrowthCase& growth, std::size_t smallest, std::size_t largest)
{
    Cost before = CostOf(growth.prepare(smallest));
    double worst = 0;
    for (std::size_t size = 2 * smallest; size <= largest; size *= 2) {
        const Cost after = CostOf(growth.prepare(size));
        EXPECT_GE(LARGEST_RATIO * static_cast<double>(before.blocks) + 64, static_cast<double>(after.blocks))
            << growth.name << ' ' << size;
        EXPECT_GE(LARGEST_RATIO * static_cast<double>(before.peakBytes) + 65536, static_cast<double>(after.peakBytes))
            << growth.name << ' ' << size;
        worst = std::max(worst, static_cast<double>(after.peakBytes) / static_cast<double>(before.peakBytes + 1));
        before = after;
    }
    testing::Test::RecordProperty(growth.name, std::to_string(worst));
}

} // namespace

TEST(Growth, OfAllocationsIsLinear)
{
    // From 1 to 16 MiB when asked for, which takes minutes in a debug build.
    const bool isLong = std::getenv("ZRXML_TEST_LARGE") != nullptr;
    for (const GrowthCase& growth : GrowthCases())
        ExpectGrowth(growth, isLong ? MEBI : MEBI / 16, isLong ? 16 * MEBI : MEBI / 4);
}

TEST(Growth, OneCase)
{
    const char* const name = std::getenv("ZRXML_GROWTH_CASE");
    const char* const octets = std::getenv("ZRXML_GROWTH_OCTETS");
    if (!name || !octets)
        GTEST_SKIP() << "run by scripts/measure-growth";
    if (std::string(name) == "list") {
        for (const GrowthCase& growth : GrowthCases())
            std::printf("case: %s\n", growth.name.c_str());
        return;
    }
    for (const GrowthCase& growth : GrowthCases())
        if (growth.name == name) {
            const std::function<void()> action = growth.prepare(static_cast<std::size_t>(std::atol(octets)));
            if (!std::getenv("ZRXML_GROWTH_PREPARES_ONLY"))
                action();
            return;
        }
    FAIL() << "no case " << name;
}
