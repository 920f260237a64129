// SPDX-License-Identifier: MIT
#ifndef CORE_HUGEPAGES_H
#define CORE_HUGEPAGES_H

#include <cstddef>

namespace ZrXmlLib16 {

/// Blocks from this size on are worth an advice.
constexpr std::size_t LEAST_FOR_HUGE_PAGES = std::size_t(4) << 20;

/// Asks for huge pages for a large block that has not been touched yet: the memory of a large document is touched once,
/// and most of that costs page faults. A refusal changes nothing, nor does a block that is smaller.
void AdviseHugePages(void* block, std::size_t size) noexcept;

} // namespace ZrXmlLib16

#endif
