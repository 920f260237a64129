// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_TESTTEXT_H
#define TESTS_SUPPORT_TESTTEXT_H

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"

#include <gtest/gtest.h>

#include <string>

namespace TestSupport {

/// UTF-8 of wide text, for failure messages.
inline std::string Narrow(const std::wstring& text)
{
    return ZrXmlLib16::UnicodeToMultiByte(text.c_str());
}

/// Runs the action and returns the message of the exception of type E that it throws; anything else fails the test.
template <class E, class Action> std::wstring MessageOf(Action action)
{
    try {
        action();
    } catch (const E& exception) {
        return exception.GetMessage();
    }
    ADD_FAILURE() << "no exception was thrown";
    return std::wstring();
}

} // namespace TestSupport

#endif
