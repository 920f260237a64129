// SPDX-License-Identifier: MIT
#ifndef CORE_FORMATLENGTH_H
#define CORE_FORMATLENGTH_H

#include <cstdarg>
#include <cstddef>

namespace ZrXmlLib16 {

/// An upper bound of the number of characters that a wide printf-style format produces, without the terminator. Reads
/// the arguments that the format names, so the caller passes a copy of its list.
std::size_t MeasureFormat(const wchar_t* format, va_list arguments);

} // namespace ZrXmlLib16

#endif
