// SPDX-License-Identifier: MIT
// Wildcards and untyped elements as members of generated classes.
#include "support/Failure.h"
#include "support/RecordingWriter.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <string>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

/// One letter, one element: o and p are in namespaces of their own, t is in urn:t, the others are in none.
std::string Elements(const std::string& letters)
{
    std::string xml;
    for (char letter : letters) {
        const std::string name(1, letter);
        const bool isLocal = name.find_first_of("opt") == std::string::npos;
        xml += "<" + name
            + (isLocal ? "/>" : " xmlns='urn:" + name + "'><" + name + " x='1'>text</" + name + "></" + name + ">");
    }
    return "<r>" + xml + "</r>";
}

/// The children that the object writes after it has read them, or the failure.
std::string ReadBack(const TestClass& type, const std::string& letters,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    const CSmartPtr<TestObject> object = type.Create(L"r");
    std::string text;
    const std::string failure = FailureOf([&] {
        object->FromXml(Elements(letters).c_str(), context);
        CXmlDocument document;
        document.LoadXml(object->ToXml(false, false).c_str());
        const CXmlElement* child = document.GetDocumentElement()->GetFirstElement();
        for (; child; child = child->GetNextSiblingElement())
            text += Narrow(child->GetLocalName());
    });
    return failure.empty() ? text : failure;
}

std::string Sorted(std::string text)
{
    std::sort(text.begin(), text.end());
    return text;
}

std::vector<std::string> AllTexts(const std::string& letters, std::size_t length)
{
    std::vector<std::string> texts = {""};
    for (std::size_t begin = 0, end = 1; length--; begin = end, end = texts.size())
        for (std::size_t i = begin; i < end; ++i)
            for (char letter : letters)
                texts.push_back(texts[i] + letter);
    return texts;
}

struct Model {
    const char* language;
    TestClass type;
};

template <std::size_t N> void ExpectLanguages(const Model (&models)[N], const CSerializationContext& context)
{
    for (const Model& model : models) {
        const std::regex language(model.language);
        for (const std::string& text : AllTexts("abot", 4)) {
            const std::string result = ReadBack(model.type, text, context);
            ASSERT_EQ(std::regex_match(text, language), Sorted(result) == Sorted(text))
                << model.language << ": " << text << " " << result;
        }
    }
}

TestClass InTarget()
{
    return Class(L"r").In(L"urn:t");
}

const wchar_t other[] = L"##other";

} // namespace

TEST(UntypedRecord, WildcardsOfEveryGroupAcceptTheirNamespaces)
{
    const struct {
        const wchar_t* wildcard;
        const char* inTarget; // accepted in a schema with target namespace urn:t
        const char* inNone;
    } rules[] = {
        {L"##any", "aopt", "aopt"},
        {L"##other", "op", "opt"},
        {L"##local", "a", "a"},
        {L"##targetNamespace", "t", "a"},
        {L"urn:o urn:p", "op", "op"},
        {L"##local\turn:o", "ao", "ao"},
        {L" ##targetNamespace\n##local ", "at", "a"},
        {L"urn:O ##Local other", "", ""},
        {L"", "aopt", "aopt"},
    };
    for (const auto& rule : rules) {
        for (const bool hasTarget : {true, false}) {
            const auto type = [&] { return hasTarget ? InTarget() : Class(L"r"); };
            const TestClass members[] = {
                type().Any(rule.wildcard),
                type().Any(rule.wildcard).Opt(),
                type().Any(rule.wildcard).Col(1, 1),
                type().Choice().Any(rule.wildcard).Opt(),
                type().Choice().Any(rule.wildcard).Col(1, 1),
                type().All().Any(rule.wildcard),
                type().All().Any(rule.wildcard).Opt(),
                type().All().Any(rule.wildcard).Col(1, 1),
            };
            const std::string accepted = hasTarget ? rule.inTarget : rule.inNone;
            for (const TestClass& member : members)
                for (const char* element : {"a", "o", "p", "t"})
                    EXPECT_EQ(accepted.find(element) != std::string::npos, ReadBack(member, element) == element)
                        << Narrow(rule.wildcard) << hasTarget << element << (&member - members);
        }
    }
}

TEST(UntypedRecord, GroupsAcceptExactlyTheirLanguage)
{
    const TestClass pair = Class(L"pair").Group().Prim(L"a").Any(other);
    const TestClass either = Class(L"either").Group().Choice().Any(other).Prim(L"a");
    const TestClass some = Class(L"some").Group().Any(other).Col(1, 2).Prim(L"a").Opt();
    const Model models[] = {
        {"a[ot]b", Class(L"r").Prim(L"a").Any(other).Prim(L"b")},
        {"a[ot]?b?", Class(L"r").Prim(L"a").Any(other).Opt().Prim(L"b").Opt()},
        {"a?[ot]*b", Class(L"r").Prim(L"a").Opt().Any(other).Col().Prim(L"b")},
        {"o{1,2}b", InTarget().Any(other).Col(1, 2).Prim(L"b")},
        {"o?t+", InTarget().Any(other).Opt().Any(L"##targetNamespace", L"t").Col(1)},
        {"ab*o?", Class(L"r").Any(L"##any", L"a").Any(L"##local", L"b").Col().Any(L"##any", L"o").Opt()},
        {"[abot]?", Class(L"r").Choice().Prim(L"a").Any(L"##any", L"b").Any(other)},
        {"o+|a|b{2}", InTarget().Choice().Any(other).Col(1).Prim(L"a").Col(1, 1).Any(L"", L"b").Col(2, 2)},
        {"a|b|o*", InTarget().Choice().Any(other).Col().Prim(L"a").Prim(L"b")},
        {"(a[ot])?b", Class(L"r").Cls(L"pair", pair).Opt().Prim(L"b")},
        {"(a[ot])*b", Class(L"r").Cls(L"pair", pair).Col().Prim(L"b")},
        {"[aot]?b", Class(L"r").Cls(L"either", either).Prim(L"b")},
        {"([ot]{1,2}a?)?b", Class(L"r").Cls(L"some", some).Opt().Prim(L"b")},
    };
    ExpectLanguages(models, CSerializationContext());
}

TEST(UntypedRecord, AllGroupsAcceptAnyOrder)
{
    const Model models[] = {
        {"a[ot]|[ot]a", Class(L"r").All().Prim(L"a").Any(other)},
        {"a?[ot]?|[ot]a", Class(L"r").All().Any(other).Opt().Prim(L"a").Opt()},
        {"(?=o*ao*$)(?=.*o)[ao]*", InTarget().All().Any(other).Col(1).Prim(L"a")},
        {"(?=[^a]*a[^a]*$)(?=[^o]*o?[^o]*$)[abo]*",
            Class(L"r").All().Any(L"", L"b").Col().Any(L"", L"a").Any(L"", L"o").Opt()},
    };
    ExpectLanguages(models, CSerializationContext());
}

TEST(UntypedRecord, UnknownElementsBetween)
{
    CSerializationContext tolerant;
    tolerant.SetIgnoreUnknownElements(true);
    const TestClass pair = Class(L"pair").Group().Prim(L"a").Any(other);
    const std::string missing = "Zr: Failed to find the required element from namespace [##other].\nPath: /r";
    const struct {
        const char* text;
        std::string expected;
        TestClass type;
    } cases[] = {
        {"axo", "ao", Class(L"r").Prim(L"a").Any(other).Opt()},
        {"axoxoxb", "aoo", Class(L"r").Prim(L"a").Any(other).Col()},
        {"xaxb", "ab", Class(L"r").Any(L"", L"a").Any(L"", L"b")},
        {"aox", "ao", Class(L"r").Prim(L"a").Any(other)},
        {"aoxx", "ao", Class(L"r").Prim(L"a").Any(other)},
        {"oxp", "p", Class(L"r").Any(other).Opt()}, // the last record takes what is left over
        {"oxa", "oa", Class(L"r").Any(other).Col().Prim(L"a")},
        // A wildcard has its turn before anything is known to be unknown.
        {"xoa", "a", Class(L"r").Any(other).Col().Prim(L"a")},
        {"xo", "o", Class(L"r").Choice().Any(other).Prim(L"a")},
        {"xoxo", "oo", Class(L"r").All().Any(other).Col(1)},
        {"xoxax", "oa", Class(L"r").All().Any(other).Prim(L"a")},
        {"xaxox", "ao", Class(L"r").Cls(L"pair", pair)},
        {"xo", missing, Class(L"r").Any(other)},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.expected, ReadBack(row.type, row.text, tolerant)) << row.text;
    CSerializationContext incomplete;
    incomplete.SetIgnoreMissingMandatoryElements(true);
    EXPECT_EQ("ab", ReadBack(Class(L"r").Any(L"", L"a").Any(other).Opt().Prim(L"b"), "ab", incomplete));
    EXPECT_EQ("Validation: Failed to convert the element [r] to XML <- InvalidParam: The Property [AnyElement] is "
              "mandatory, it may not be NULL",
        ReadBack(Class(L"r").Any(other).Prim(L"b").Opt(), "b", incomplete));
}

TEST(UntypedRecord, Failures)
{
    const struct {
        const char* text;
        std::string failure;
        TestClass type;
    } cases[] = {
        {"", "Zr: Failed to find the required element from namespace [urn:o ##local].\nPath: /r",
            Class(L"r").Any(L"urn:o ##local")},
        {"a", "Zr: Failed to find the required element from namespace [##other].\nPath: /r", Class(L"r").Any(other)},
        {"a", "Zr: Failed to find the required child element [b].\nPath: /r", Class(L"r").Any(L"", L"b")},
        {"o", "Zr: Failed to find the required child element [o].\nPath: /r", Class(L"r").Any(L"##local", L"o")},
        {"a", LeftOver("/r", "r", "a"), Class(L"r").Any(other).Opt()},
        {"oo", LeftOver("/r", "r", "o"), Class(L"r").Any(other).Opt()},
        {"a",
            Unprocessed(
                "/r", "Validation: The Minimum number of [AnyElement] elements allowed in this collection is 1"),
            Class(L"r").Any(other).Col(1)},
        {"ooo",
            Unprocessed(
                "/r", "Validation: The Maximum number of [AnyElement] elements allowed in this collection is 2"),
            Class(L"r").Any(other).Col(0, 2)},
        {"", Unprocessed("/r", "Validation: Failed to find the mandatory element [AnyElement]."),
            Class(L"r").All().Any(other)},
        {"",
            Unprocessed(
                "/r", "Validation: The Minimum number of [AnyElement] elements allowed in this collection is 1"),
            Class(L"r").All().Any(other).Col(1)},
        {"a",
            "Zr: No child elements within the element [r] were populated. The element represents a choice, so one and "
            "only one element should be populated. The element contained no sutable child elements\nPath: /r",
            Class(L"r").Choice().Any(other).Col(1)},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.failure, ReadBack(row.type, row.text)) << row.text;
    const CSmartPtr<TestObject> wrong = Class(L"r").Any(L"", L"a").Col().Create();
    const auto install = [&](const std::wstring&, bool read) {
        if (read)
            (*wrong)[L"a"].SetXmlCollection(new CAttributeCol(L"a", L"##any", L""));
    };
    wrong->m_onAccess = install;
    EXPECT_EQ(Unprocessed("/r", "Zr: Serialization Data Error : The collection should be a CElementCol, it was not!"),
        FailureOf([&] { wrong->FromXml("<r><a/></r>"); }));
}

TEST(UntypedRecord, CaptureIsWrittenUnderItsOwnName)
{
    const TestClass type = InTarget().Prim(L"id").Any(other);
    TestObject object(type);
    object.Set(L"id", L"7");
    const CSmartPtr<CElement> content = new CElement(L"content", L"urn:c", L"##other", L"urn:t");
    content->SetText(L"x");
    object[L"AnyElement"].SetXmlObject(content);
    EXPECT_EQ("<AA:r xmlns:AA=\"urn:t\"><id>7</id><AB:content xmlns:AB=\"urn:c\">x</AB:content></AA:r>", Write(object));
    RecordingWriter writer;
    object.ToXml_Int(&writer, false, L"", CSerializationContext::m_defaultContext, false);
    EXPECT_EQ("<r <id '7':23 > <content{urn:c} 'x':23 > >", writer.m_events);
    // The captured element keeps the constraint of the wildcard.
    object.FromXml("<r><id/><o xmlns='urn:o'/></r>");
    CElement* captured = static_cast<CElement*>(object[L"AnyElement"].GetXmlObject().GetPtr());
    EXPECT_EQ(L"urn:t", captured->GetTargetNamespace());
    EXPECT_EQ("InvalidNamespace: The namespace urn:t in the class CElement is invalid against restriction ##other",
        FailureOf([&] { captured->SetNamespace(L"urn:t"); }));
}
