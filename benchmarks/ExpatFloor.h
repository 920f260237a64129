// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_EXPATFLOOR_H
#define ZRXML_BENCHMARKS_EXPATFLOOR_H

#include <string>

/// Parses the document with the XML parser alone: no namespace processing, handlers that do nothing.
/// @throws std::runtime_error when the document is not well-formed.
void ParseOnly(const std::string& bytes);

#endif
