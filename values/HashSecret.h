// SPDX-License-Identifier: MIT
#ifndef VALUES_HASHSECRET_H
#define VALUES_HASHSECRET_H

#include "values/Int128.h"

#include <cstdint>

namespace ZrXmlLib16 {

/// What hash values of texts from documents depend on. Different in every process, so that nobody can write texts that
/// collide.
struct HashSecret {
    std::uint64_t seed;
    std::uint64_t multiplier; // odd
};

const HashSecret& GetHashSecret() noexcept;

inline std::uint64_t MultiplyAndFold(std::uint64_t left, std::uint64_t right) noexcept
{
    const UInt128 product = UInt128{left} * right;
    return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
}

} // namespace ZrXmlLib16

#endif
