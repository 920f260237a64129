// SPDX-License-Identifier: MIT
#ifndef TESTS_ROBUSTNESS_GROWTH_H
#define TESTS_ROBUSTNESS_GROWTH_H

#include <functional>
#include <string>
#include <vector>

namespace TestSupport {

/// An operation whose cost may grow no faster than what it is done to.
struct GrowthCase {
    std::string name;
    /// Makes the input of about that many octets and returns the operation on it.
    std::function<std::function<void()>(std::size_t)> prepare;
};

/// Every reader and writer, each with documents of every shape, and large collections by index.
const std::vector<GrowthCase>& GrowthCases();

} // namespace TestSupport

#endif
