// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_FAILURE_H
#define TESTS_SUPPORT_FAILURE_H

#include "support/TestObject.h"
#include "support/TestText.h"

#include <functional>
#include <string>

namespace TestSupport {

/// An exception and its inner ones, outermost first: "Validation: message\nPath: /a <- Zr: message". Types are written
/// without "CZr" and "Exception"; the base class is "Zr".
std::string ChainOf(const ZrXmlLib16::CZrException& exception);

/// The chain that the action ends with; empty when nothing is thrown.
std::string FailureOf(const std::function<void()>& action);

/// The texts of FailureOf that recur: the wrapper that names the element of a class, and the report of a child left
/// over.
std::string Unprocessed(const std::string& path, const std::string& inner);
std::string LeftOver(const std::string& path, const std::string& parent, const std::string& child);

/// Reads the text into a new object: its description, or the failure.
std::string Read(const TestClass& type, const std::wstring& xml,
    const ZrXmlLib16::CSerializationContext& context = ZrXmlLib16::CSerializationContext::m_defaultContext);

/// The unformatted text without header, or the failure.
std::string Write(const TestObject& object,
    const ZrXmlLib16::CSerializationContext& context = ZrXmlLib16::CSerializationContext::m_defaultContext);

} // namespace TestSupport

#endif
