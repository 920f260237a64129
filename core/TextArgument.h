// SPDX-License-Identifier: MIT
#ifndef CORE_TEXTARGUMENT_H
#define CORE_TEXTARGUMENT_H

namespace ZrXmlLib16 {

/// Null text arguments mean empty text throughout the public interface.
inline const wchar_t* TextOrEmpty(const wchar_t* text)
{
    return text ? text : L"";
}

} // namespace ZrXmlLib16

#endif
