// SPDX-License-Identifier: MIT
#include "json/JsonWriting.h"

#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/TextStream.h"
#include "support/TestText.h"

#include <algorithm>
#include <rapidjson/error/en.h>
#include <sstream>

using namespace ZrXmlLib16;

namespace TestSupport {

namespace {

std::vector<std::wstring> SplitWord(const std::wstring& word)
{
    std::vector<std::wstring> parts;
    std::wistringstream list(word);
    for (std::wstring part; std::getline(list, part, L',');)
        parts.push_back(part);
    parts.resize(4);
    return parts;
}

ItemType TypeOf(const std::wstring& text)
{
    return text == L"n" ? ItemType_i4 : ItemType_string;
}

void WriteNumber(CJsonTextWriter& writer, const std::wstring& word)
{
    const std::size_t sign = word.find(L'=');
    writer.WriteStartElement(word.substr(0, sign), L"");
    writer.WriteString(word.substr(sign + 1), ItemType_i4, false);
    writer.WriteEndElement();
}

void WriteWord(CJsonTextWriter& writer, const std::wstring& word)
{
    const std::vector<std::wstring> parts = SplitWord(word.substr(1));
    switch (word[0]) {
    case L'<':
        return writer.WriteStartElement(parts[0], parts[1]);
    case L'>':
        return writer.WriteEndElement();
    case L'@':
        return writer.WriteAttributeString(parts[0], parts[1], parts[2], TypeOf(parts[3]));
    case L'=':
        return writer.WriteString(parts[0], TypeOf(parts[1]), false);
    case L'[':
        return writer.SetContextState(CXmlWriter::ContextState_CollectionStart);
    case L']':
        return writer.SetContextState(CXmlWriter::ContextState_CollectionEnd);
    case L'!':
        return writer.SetDefaultNamespace(parts[0]);
    case L'+':
        return writer.AddNamespace(parts[0], parts[1]);
    case L':':
        return writer.WriteAttributeType(parts[0], parts[1], ItemType_string);
    case L'#':
        return writer.WriteComment(parts[0]);
    default:
        return word == L"nil" ? writer.WriteAttributeNil() : WriteNumber(writer, word);
    }
}

std::wstring WithoutLayout(std::wstring text)
{
    const auto isLayout = [](wchar_t c) { return c == L'\t' || c == L'\r' || c == L'\n'; };
    text.erase(std::remove_if(text.begin(), text.end(), isLayout), text.end());
    return text;
}

} // namespace

std::wstring WriteJson(const JsonEvents& events, const JsonForm& form)
{
    CTextStream stream;
    CJsonTextWriter writer(stream);
    writer.SetSupportRoundtrip(form.mode);
    writer.SetFormat(form.isFormatted);
    writer.SetEOLType(form.endOfLine);
    writer.SetIndentChars(form.indent);
    writer.Open();
    writer.WriteStartDocument();
    events(writer);
    writer.WriteEndDocument();
    writer.Close();
    return stream.GetText();
}

JsonEvents JsonScript(const std::wstring& script)
{
    return [script](CJsonTextWriter& writer) {
        std::wistringstream words(script);
        for (std::wstring word; words >> word;)
            WriteWord(writer, word);
    };
}

JsonEvents JsonWalk(const TestObject& root, const CSerializationContext& context)
{
    return [&root, context](
               CJsonTextWriter& writer) { root.ToXml_Int(&writer, true, root.GetNamespace().c_str(), context, false); };
}

rapidjson::Document ParseJson(const std::wstring& json)
{
    rapidjson::Document document;
    document.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag>(Narrow(json).c_str());
    EXPECT_FALSE(document.HasParseError()) << rapidjson::GetParseError_En(document.GetParseError()) << " at "
                                           << document.GetErrorOffset() << " of " << Narrow(json);
    return document;
}

void ExpectJson(const std::wstring& expected, const JsonEvents& events, JsonRoundTrip mode)
{
    EXPECT_EQ(Narrow(expected), Narrow(WriteJson(events, {mode})));
    const std::wstring formatted = WriteJson(events, {mode, true, EOL_CRLF});
    EXPECT_EQ(Narrow(expected), Narrow(WithoutLayout(formatted)));
    ParseJson(expected);
    ParseJson(formatted);
}

} // namespace TestSupport
