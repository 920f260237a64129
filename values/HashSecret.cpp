// SPDX-License-Identifier: MIT
#include "values/HashSecret.h"

#include <chrono>

#include <sys/random.h>

namespace ZrXmlLib16 {

namespace {

HashSecret MakeSecret() noexcept
{
    HashSecret secret{};
    if (getrandom(&secret, sizeof secret, GRND_NONBLOCK) != static_cast<ssize_t>(sizeof secret)) {
        // Without random numbers of the system, early at its start, the time and an address have to do.
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        secret.seed = static_cast<std::uint64_t>(ticks) * 0x9E3779B97F4A7C15;
        secret.multiplier = (secret.seed ^ reinterpret_cast<std::uintptr_t>(&secret)) * 0xD6E8FEB86659FD93;
    }
    secret.multiplier |= 1;
    return secret;
}

} // namespace

const HashSecret& GetHashSecret() noexcept
{
    static const HashSecret secret = MakeSecret();
    return secret;
}

} // namespace ZrXmlLib16
