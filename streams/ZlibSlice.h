// SPDX-License-Identifier: MIT
#ifndef STREAMS_ZLIBSLICE_H
#define STREAMS_ZLIBSLICE_H

#include <algorithm>

#define ZLIB_CONST // input is read only
#include <zlib.h>

namespace ZrXmlLib16 {

/// Takes the next slice of a long buffer, as zlib counts in 32 bits; the pointer is advanced by zlib.
inline uInt NextSlice(unsigned long& remaining)
{
    constexpr unsigned long MAXIMUM_SLICE = 1UL << 30;
    const unsigned long slice = std::min(remaining, MAXIMUM_SLICE);
    remaining -= slice;
    return static_cast<uInt>(slice);
}

} // namespace ZrXmlLib16

#endif
