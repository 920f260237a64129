// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/IErrorPathProvider.h"
#include "ZrXmlLib16/JsonReaderDefaultHandler.h"
#include "ZrXmlLib16/JsonReaderToXmlHandler.h"
#include "ZrXmlLib16/JsonTextReader.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "support/Failure.h"

using namespace ZrXmlLib16;
using TestSupport::FailureOf;
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

// The conversion knows the place from the values that it has collected, a reader from its handler.
TEST(JsonPath, OfTheConversionIsThatOfAReader)
{
    const std::wstring json = L"{\"r\" : {\"@a\":1, \"b c\":[ 1.5e+3, [true,{\"d\\n\":null}],\n{}, \"t\\\"u\\u00e4\"],"
                              L"\"#text\":\"x\ny\",\"@e\":[], \"f\":{\"g\":[[],[[2]]]}}}";
    std::size_t failures = 0;
    for (std::size_t i = 0; i < json.size(); ++i) {
        std::wstring changed = json;
        changed[i] = L'!';
        for (const std::wstring& text : {json.substr(0, i), changed, changed.insert(i, L"\"[")}) {
            const auto read = [&] {
                CTextStream stream;
                CXmlTextWriter writer(stream);
                CJsonTextReader reader(text);
                CJsonReaderToXmlHandler handler(writer, JsonRoundTrip_Full, *reader.GetErrorPathProvider());
                reader.SetJsonReaderHandler(&handler);
                reader.Read();
            };
            const auto convert = [&] { CJsonTextReader::ConvertJsonToXml(text, CSerializationContext()); };
            const std::string expected = FailureOf(read);
            EXPECT_EQ(FailureOf(convert), expected) << Narrow(text);
            failures += expected.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(failures, 2 * json.size());
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
