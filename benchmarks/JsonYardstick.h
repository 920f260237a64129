// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_JSONYARDSTICK_H
#define ZRXML_BENCHMARKS_JSONYARDSTICK_H

#include <cstddef>
#include <string>

/// RapidJSON on the same text: a document tree, which is kept for WriteYardstick in place of the one before.
/// @throws std::runtime_error for text that is not JSON.
void ParseYardstick(const std::string& json);
/// Writes the tree of the last ParseYardstick.
/// @return the number of bytes.
std::size_t WriteYardstick();

#endif
