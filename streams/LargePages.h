// SPDX-License-Identifier: MIT
#ifndef STREAMS_LARGEPAGES_H
#define STREAMS_LARGEPAGES_H

#include <cstddef>

namespace ZrXmlLib16 {

/// Blocks from this size on are worth telling.
constexpr std::size_t LEAST_FOR_LARGE_PAGES = std::size_t{4} << 20;

/// Tells the system, before a block of memory is filled for the first time, that large pages may be used for it: each
/// ordinary page that is touched first costs about as much as filling it. Nothing happens for small blocks.
void PreferLargePages(void* block, std::size_t size) noexcept;

} // namespace ZrXmlLib16

#endif
