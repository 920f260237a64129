// SPDX-License-Identifier: MIT
#ifndef CORE_ERRORPOSITION_H
#define CORE_ERRORPOSITION_H

#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrException.h"

#include <string>

namespace ZrXmlLib16 {

/// Enters line and column into exceptions. The first position stays: the innermost place knows best.
class ErrorPosition {
public:
    static void Attach(CZrException& exception, unsigned long line, unsigned long column) noexcept
    {
        if (exception.m_line == 0) {
            exception.m_line = line;
            exception.m_column = column;
        }
    }
    static void Attach(CZrException& exception, const CXmlElement& element) noexcept
    {
        Attach(exception, element.GetLine(), element.GetColumn());
    }
};

/// Runs the action; its failures get the position of the element.
template <class Action> decltype(auto) ReadingAt(const CXmlElement& element, Action&& action)
{
    try {
        return action();
    } catch (CZrException& exception) {
        ErrorPosition::Attach(exception, element);
        throw;
    }
}

/// Throws the exception with the position of the element.
template <class Exception> [[noreturn]] void ThrowAt(const CXmlElement& element, Exception exception)
{
    ErrorPosition::Attach(exception, element);
    throw exception;
}

} // namespace ZrXmlLib16

#endif
