// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/JsonReaderDefaultHandler.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::Narrow;

namespace {

/// Notes the path at every event.
class PathRecorder : public IJsonReaderHandler {
public:
    void ReadStartDocument() override { Note(); }
    void ReadEndDocument() override { Note(); }
    void ReadName(const std::wstring&) override { Note(); }
    void ReadString(const std::wstring&) override { Note(); }
    void ReadNumber(const std::wstring&) override { Note(); }
    void ReadStartObject() override { Note(); }
    void ReadEndObject() override { Note(); }
    void ReadStartArray() override { Note(); }
    void ReadEndArray() override { Note(); }
    void ReadBool(bool) override { Note(); }
    void ReadNull() override { Note(); }

    const IErrorPathProvider* provider = nullptr;
    std::wstring paths;

private:
    void Note() { paths += provider->GetPath() + L" "; }
};

std::wstring PathsOf(const std::wstring& text)
{
    PathRecorder recorder;
    CJsonTextReader reader(text);
    recorder.provider = reader.GetErrorPathProvider();
    reader.SetJsonReaderHandler(&recorder);
    reader.Read();
    return recorder.paths;
}

} // namespace

TEST(JsonPath, NamesThePlaceOfEveryEvent)
{
    EXPECT_EQ(Narrow(PathsOf(L"{\"a\":[\"x\",{\"b\":true,\"c\":null},[1]],\"d\":{}}")),
        "$ $ $.a $.a[0] $.a[0] " // document, object, name, array, string
        "$.a[1] $.a[1].b $.a[1].b $.a[1].c $.a[1].c $.a[1] "
        "$.a[2][0] $.a[2][0] $.a[2] $.a "
        "$.d $.d $.d $ $ ");
}

TEST(JsonPath, QuotesNamesThatAreNotPlain)
{
    const struct {
        const wchar_t* name;
        const wchar_t* path;
    } cases[] = {
        {L"order", L"$.order"},
        {L"_A-9", L"$._A-9"},
        {L"@code", L"$.@code"},
        {L"#text", L"$.#text"},
        {L"unit price", L"$['unit price']"},
        {L"", L"$['']"},
        {L"@", L"$['@']"},
        {L"@@a", L"$['@@a']"},
        {L"9", L"$['9']"},
        {L"-a", L"$['-a']"},
        {L"p:n", L"$['p:n']"},
        {L"a.b", L"$['a.b']"},
        {L"\xE4", L"$['\xE4']"},
        {L"a'b\\c", L"$['a\\'b\\\\c']"},
    };
    for (const auto& test : cases) {
        CJsonReaderDefaultHandler handler;
        handler.ReadStartDocument();
        handler.ReadStartObject();
        handler.ReadName(test.name);
        EXPECT_EQ(Narrow(handler.GetPath()), Narrow(test.path));
    }
}

TEST(JsonPath, ToleratesUnbalancedEvents)
{
    CJsonReaderDefaultHandler handler;
    handler.ReadEndObject();
    handler.ReadEndArray();
    handler.ReadName(L"a");
    EXPECT_EQ(handler.GetPath(), L"$");
    handler.ReadStartArray();
    handler.ReadStartDocument();
    EXPECT_EQ(handler.GetPath(), L"$");
}
