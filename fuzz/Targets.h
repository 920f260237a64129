// SPDX-License-Identifier: MIT
#ifndef FUZZ_TARGETS_H
#define FUZZ_TARGETS_H

#include <cstddef>
#include <cstdint>

/// What the fuzzers and the replay of their corpora run on one input. Exceptions that the library may throw on any
/// input are swallowed; any other one leaves the function, and a broken promise aborts the process. They always return
/// 0.
namespace Fuzz {

/// A settings octet, then an XML document (or anything): into a document tree, into objects and back.
int RunXmlInput(const std::uint8_t* data, std::size_t size);
/// A settings octet, then JSON text.
int RunJsonInput(const std::uint8_t* data, std::size_t size);
/// A settings octet, then a Fast Infoset document.
int RunFastInfosetInput(const std::uint8_t* data, std::size_t size);
/// A settings octet, an octet for damage, then compressed octets, octets to be compressed, or Base64.
int RunCompressionInput(const std::uint8_t* data, std::size_t size);
/// Octets for item type, rule and number facets, then lines: value, lower bound, upper bound, pattern, number format.
int RunLexicalInput(const std::uint8_t* data, std::size_t size);
/// Choices for a class, an object and settings: what is written in any format reads back as the same object.
int RunRoundTripInput(const std::uint8_t* data, std::size_t size);

} // namespace Fuzz

#endif
