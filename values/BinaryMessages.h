// SPDX-License-Identifier: MIT
#ifndef VALUES_BINARYMESSAGES_H
#define VALUES_BINARYMESSAGES_H

/// Every fixed text of the binary value, with its arguments.
namespace ZrXmlLib16 {
namespace Message {

/// index (int)
constexpr wchar_t INDEX_OUT_OF_RANGE[] = L"Index Out of range [%d]";
/// number of values that share the buffer (int)
constexpr wchar_t APPEND_TO_SHARED_DATA[] = L"Failed to append. [RefCount=%d]";
/// number of values that still share the buffer (int)
constexpr wchar_t RELEASE_OF_SHARED_DATA[] = L"Failed to release data. [RefCount=%d]";
constexpr wchar_t HEX_LENGTH_ODD[] = L"Invalid length in hex string";
/// the character (wint_t)
constexpr wchar_t HEX_DIGIT_INVALID[] = L"Invalid char in hex string [%lc]";

} // namespace Message
} // namespace ZrXmlLib16

#endif
