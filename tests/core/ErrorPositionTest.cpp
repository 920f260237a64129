// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <vector>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

/// "line:column" of the failure, "" without one.
template <class Action> std::string PositionOf(Action action)
{
    try {
        action();
        return std::string();
    } catch (const CZrException& exception) {
        return std::to_string(exception.GetLine()) + ":" + std::to_string(exception.GetColumn());
    }
}

/// A class and a document that it refuses. The mark "^", which is not part of the document, stands before the element
/// at fault.
struct Mistake {
    TestClass type;
    std::string document;
};

std::vector<Mistake> Mistakes()
{
    const std::string xsi = " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";
    const TestClass item = Class(L"item").Prim(L"price", ItemType_decimal).Attr(L"n", ItemType_i4);
    const TestClass order = Class(L"order").Cls(L"item", item).Col(1, 3);
    const TestClass prims = Class(L"order").Prim(L"note").Prim(L"qty", ItemType_ui4).Enum(L"colour").Opt();
    return {
        {prims, "<order>\n\t<note/>\n  ^<qty>many</qty>\n</order>"},
        {prims, "<order>\n<note/> ^<qty\n x='1'>2</qty>\n</order>"},
        {prims, "<order>\n<note/><qty>1</qty>\n\n ^<colour>pink</colour></order>"},
        {prims, "<order>\n<note/><qty>1</qty>\n<!--\n--> ^<other><qty/></other></order>"},
        {prims, "\n\n^<order>\n<qty>1</qty></order>"},
        {order, "<order>\n<item><price>1</price></item>\n ^<item\n n='x'><price>2</price></item></order>"},
        {order, "<order>\n<item><price>1</price></item>\n\n^<item>\n</item>\n</order>"},
        {order, "<order>\n<item><price>1</price></item><item>\n^<price>1e3</price></item>\n</order>"},
        {order, "\n^<order>\n</order>"},
        {Class(L"order").Attr(L"id").Required(), "<!-- -->\n  ^<order x='1'>\n</order>"},
        {Class(L"order").Choice().Cls(L"item", item).Col(1), "\n ^<order>\n</order>"},
        {Class(L"order").All().Prim(L"a").Prim(L"b"), "<order>\n<b/>\n ^<c/><a/></order>"},
        {Class(L"order").AbsCls(L"shape"), "<order>\n ^<shape" + xsi + "\nxsi:type='unheardOf'/></order>"},
        {Class(L"order").AbsCls(L"shape").Col(), "<order>\n\n\n^<shape" + xsi + " xsi:type='unheardOf'/></order>"},
        {Class(L"order").Prim(L"n", ItemType_i4).Col(), "<order>\n<n>1</n>\n ^<n>two</n><n>3</n></order>"},
        {Class(L"order").Any(L"##any"), "\n^<order>\n</order>"},
        {Class(L"order").Prim(L"a"), "<order>\n<a/>\n^<a" + xsi + " xsi:nil='true'/></order>"},
        {Class(L"order").Value(ItemType_i4), "\n^<order>\nten</order>"},
    };
}

std::string Replaced(const std::string& text, const std::string& lineEnd)
{
    std::string replaced;
    for (const char c : text)
        replaced += c == '\n' ? lineEnd : std::string(1, c);
    return replaced;
}

std::string Utf16(const std::string& ascii, bool isBigEndian)
{
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii)
        bytes += isBigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    return bytes;
}

} // namespace

TEST(ErrorPosition, OfEveryMistakeInEveryKindOfText)
{
    for (const Mistake& mistake : Mistakes()) {
        const std::size_t mark = mistake.document.find('^');
        const std::string before = mistake.document.substr(0, mark);
        const std::string document = before + mistake.document.substr(mark + 1);
        std::size_t line = 1;
        std::size_t column = 1;
        for (const char c : before) {
            column = c == '\n' ? 1 : column + 1;
            line += c == '\n' ? 1 : 0;
        }
        const std::string expected = std::to_string(line) + ":" + std::to_string(column);
        const std::string texts[] = {document, Replaced(document, "\r\n"), Replaced(document, "\r"),
            "\xEF\xBB\xBF" + document, Utf16(document, false), Utf16(Replaced(document, "\r\n"), true)};
        const auto read = [&](const std::string& text) { ReadXml(*mistake.type.Create(), text); };
        for (const std::string& text : texts)
            EXPECT_EQ(expected, PositionOf([&] { read(text); })) << mistake.document;
        // Lines in front move it down, whatever they are made of.
        const std::string moved = std::to_string(line + 2) + ":" + std::to_string(column);
        EXPECT_EQ(moved, PositionOf([&] {
            read("<?xml version='1.0' encoding='ISO-8859-1'?><!--\xE9\n-->\n" + document);
        })) << mistake.document;
    }
}

TEST(ErrorPosition, OfARefusedPropertyAndOfTooDeepAnElement)
{
    const TestClass type = Class(L"order").Prim(L"a").Prim(L"b");
    const CSmartPtr<TestObject> object = type.Create();
    object->m_onAccess = [](const std::wstring& property, bool read) {
        if (property == L"b" && !read)
            throw CZrException(L"refused");
    };
    EXPECT_EQ("3:2", PositionOf([&] { ReadXml(*object, "<order>\n<a/>\n <b/></order>"); }));

    CSerializationContext shallow;
    shallow.SetMaxDepth(2);
    CElement untyped;
    EXPECT_EQ("2:4", PositionOf([&] { ReadXml(untyped, "<a>\n<b><c/></b></a>", shallow); }));
}

TEST(ErrorPosition, WhileElementsAreFreedEarly)
{
    static const TestClass item = Class(L"item").Prim(L"n", ItemType_i4);
    CXmlDocument document([](CXmlElement* element) {
        if (element->GetLocalName() == L"item")
            item.Create()->FromXmlElement(element);
        return element->GetLocalName() == L"item";
    });
    EXPECT_EQ("3:8", PositionOf([&] {
        ReadXml(document, "<r>\n<item><n>1</n></item>\n <item><n>x</n></item>\n<item><n>y</n></item></r>");
    }));
}

TEST(ErrorPosition, UnknownWithoutXmlText)
{
    const TestClass type = Class(L"order").Prim(L"qty", ItemType_i4);
    const CSmartPtr<TestObject> object = type.Create();
    EXPECT_EQ("0:0", PositionOf([&] { ReadJson(*object, "{\n \"order\": {\"qty\": \"x\"}}"); }));
    EXPECT_EQ("0:0", PositionOf([&] { ReadJson(*object, "{\n \"order\": "); }));
    CElement untyped;
    untyped.FromXml("<order>\n<qty>x</qty></order>");
    EXPECT_EQ("0:0", PositionOf([&] { object->FromXmlElement(&untyped); }));
    EXPECT_EQ("0:0", PositionOf([&] { ReadXml(*object, WriteFastInfoset(untyped)); }));
    EXPECT_EQ("1:8", PositionOf([&] { ReadXml(*object, "<order><qty>x</qty></order>"); }));
}

TEST(ErrorPosition, GoesWithCopiesAndOutwards)
{
    const TestClass type = Class(L"order").Prim(L"qty", ItemType_i4);
    try {
        ReadXml(*type.Create(), "<order>\n <qty>x</qty></order>");
        FAIL();
    } catch (const CZrException& exception) {
        CZrException assigned(L"other");
        assigned = exception;
        const std::unique_ptr<CZrException> clone(exception.Clone());
        const CZrException copies[] = {assigned, *clone, CZrException(L"m", exception),
            CZrException(L"m", std::wstring(L"/p"), exception), CZrInvalidParamException(exception),
            *exception.GetInnerException()};
        for (const CZrException& copy : copies)
            EXPECT_EQ("2:2", PositionOf([&] { throw copy; }));
        assigned = CZrException(L"m");
        EXPECT_EQ("0:0", PositionOf([&] { throw assigned; }));
    }
}
