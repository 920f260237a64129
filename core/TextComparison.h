// SPDX-License-Identifier: MIT
#ifndef CORE_TEXTCOMPARISON_H
#define CORE_TEXTCOMPARISON_H

#include <cstddef>
#include <cstring>
#include <string>

namespace ZrXmlLib16 {

/// Compares two texts of one length by blocks, of which the last may overlap the one before.
/// @param length at least a block.
template <std::size_t Block> bool SameBlocks(const wchar_t* left, const wchar_t* right, std::size_t length) noexcept
{
    const auto isBlockSame = [left, right](std::size_t at) {
        return std::memcmp(left + at, right + at, Block * sizeof(wchar_t)) == 0;
    };
    for (std::size_t at = 0; at + Block < length; at += Block) {
        if (!isBlockSame(at)) {
            return false;
        }
    }
    return isBlockSame(length - Block);
}

/// Equality of two names, which are short and mostly of different lengths or equal: without a call, and with few
/// branches.
inline bool SameText(const std::wstring& left, const std::wstring& right) noexcept
{
    const std::size_t length = left.size();
    const wchar_t* const a = left.data();
    const wchar_t* const b = right.data();
    if (length != right.size() || a == b) {
        return length == right.size();
    }
    if (length >= 8) {
        return SameBlocks<8>(a, b, length);
    }
    if (length >= 4) {
        return SameBlocks<4>(a, b, length);
    }
    std::size_t same = 0;
    while (same < length && a[same] == b[same]) {
        ++same;
    }
    return same == length;
}

} // namespace ZrXmlLib16

#endif
