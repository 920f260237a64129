// SPDX-License-Identifier: MIT
#ifndef TESTS_JSON_JSONWRITING_H
#define TESTS_JSON_JSONWRITING_H

#include "ZrXmlLib16/JsonTextWriter.h"
#include "support/TestObject.h"

#include <functional>
#include <rapidjson/document.h>
#include <string>

namespace TestSupport {

struct JsonForm {
    ZrXmlLib16::JsonRoundTrip mode = ZrXmlLib16::JsonRoundTrip_Full;
    bool isFormatted = false;
    ZrXmlLib16::EOLType endOfLine = ZrXmlLib16::EOL_LF;
    const wchar_t* indent = L"\t";
};

using JsonEvents = std::function<void(ZrXmlLib16::CJsonTextWriter&)>;

/// The document that the events make.
std::wstring WriteJson(const JsonEvents& events, const JsonForm& form = {});

/// Events written as words: <name,namespace > @name,namespace,value,type =text,type [ and ] for the limits of a
/// collection, !default-namespace +prefix,namespace :type,namespace nil #comment; name=value is an element with a
/// number. The type n is a number, any other a string.
JsonEvents JsonScript(const std::wstring& script);

/// The root element with all below it.
JsonEvents JsonWalk(const TestObject& root, const ZrXmlLib16::CSerializationContext& context = {});

/// What another parser makes of the text. Fails the test when it refuses it.
rapidjson::Document ParseJson(const std::wstring& json);

/// Expects that unformatted text, the same content when it is formatted, and that another parser accepts both.
void ExpectJson(const std::wstring& expected, const JsonEvents& events, ZrXmlLib16::JsonRoundTrip mode);

} // namespace TestSupport

#endif
