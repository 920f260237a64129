// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/RecordingWriter.h"

#include <utility>

using namespace ZrXmlLib16;
using namespace ZrXmlLib16Data;
using namespace TestSupport;

namespace {

/// A record that never takes anything.
class RefusingRecord : public CElementInfo {
public:
    RefusingRecord()
        : CElementInfo(L"refused", L"", 0)
    {
    }
    bool ElementToXml(const CSerializationContext&, const CXmlGeneratedClass*, CXmlWriter*) const override
    {
        return false;
    }
    bool ElementFromXml(const CSerializationContext&, CXmlGeneratedClass*, CXmlElement*, CXmlElement**, const wchar_t*,
        XmlElementType) override
    {
        return false;
    }
};

class RefusingObject : public TestObject {
public:
    using TestObject::TestObject;

protected:
    CElementInfo** GetClassElementInfo() const override
    {
        static RefusingRecord record;
        static CElementInfo* records[] = {&record, nullptr};
        return records;
    }
};

} // namespace

TEST(Record, keeps_SilentStopAtARecordThatRefuses)
{
    RefusingObject object(Class(L"order").Prim(L"a"));
    EXPECT_EQ("", FailureOf([&] { object.FromXml("<order><a>1</a><b/></order>"); }));
    EXPECT_EQ(L"order{}", DescribeObject(object));
    EXPECT_EQ("<order/>", Write(object));
}

TEST(Record, OperationsThatOnlySomeKindsHave)
{
    const CSerializationContext context;
    const CElementInfoSeqCol plain(L"item", L"urn:i", 4);
    EXPECT_EQ("Zr: Not implemented, should never be called",
        FailureOf([&] { plain.Validate(context, nullptr, false, true); }));
    ZrVariant value;
    value.SetI4(5);
    EXPECT_EQ("Zr: Cannot CheckRestriction for type: " + Narrow(value.GetType()),
        FailureOf([&] { plain.CheckRestriction(value); }));
    const CElementInfoAllEnumMnd mandatory(L"e", L"", 0, false, ColourToString, StringToColour, nullptr);
    EXPECT_EQ("Validation: Failed to find the mandatory element [e].",
        FailureOf([&] { mandatory.Validate(context, nullptr, false, true); }));
    EXPECT_TRUE(mandatory.Validate(context, nullptr, true, true));
    EXPECT_FALSE(mandatory.Validate(context, nullptr, false, false));
}

TEST(Record, keeps_DefaultNamespaceOfWildcards)
{
    const wchar_t* const cases[][3] = {{L"##any", L"urn:d", L"urn:d"}, {L"##any", L"", L""},
        {L"##other", L"", L"DefaultNamespace"}, {L"##other", L"urn:d", L""}, {L"##local", L"urn:d", L""},
        {L"##targetNamespace", L"urn:d", L"urn:t"}, {L"##targetNamespace ##local", L"urn:d", L"urn:t"},
        {L"##other urn:x", L"", L"DefaultNamespace"}, {L"urn:x ##targetNamespace", L"urn:d", L""}, {L"", L"urn:d", L""},
        {L"##", L"urn:d", L""}};
    for (const auto& row : cases)
        EXPECT_EQ(row[2], CElementInfo::GetAnyDefaultNamespace(row[0], row[1], L"urn:t")) << Narrow(row[0]);
}

TEST(Record, NamespaceWildcards)
{
    // Specification, target and what is accepted: no namespace, the target, another one.
    const wchar_t* const cases[][3] = {{L"##any", L"urn:t", L"yyy"}, {L"", L"urn:t", L"yyy"},
        {L"##other", L"urn:t", L"nny"}, {L"##other", L"", L"nyy"}, {L"##local", L"urn:t", L"ynn"},
        {L"##targetNamespace", L"urn:t", L"nyn"}, {L"##targetNamespace", L"", L"ynn"}, {L"urn:o", L"urn:t", L"nny"},
        {L"urn:O", L"urn:t", L"nnn"}, {L"##local urn:o", L"urn:t", L"yny"},
        {L"##targetNamespace\t##local", L"urn:t", L"yyn"}, {L"  urn:x \n urn:o ", L"urn:t", L"nny"},
        {L"urn:t urn:o", L"", L"nyy"}};
    for (const auto& row : cases) {
        std::wstring accepted;
        for (const wchar_t* uri : {L"", L"urn:t", L"urn:o"}) {
            const bool valid = CXmlObjectHelper::IsNamespaceValid(uri, row[0], row[1]);
            EXPECT_EQ(valid, CAttributeInfo::IsNamespaceValid(uri, row[0], row[1]));
            accepted += valid ? L'y' : L'n';
        }
        EXPECT_EQ(row[2], accepted) << Narrow(row[0]);
    }
}

TEST(Record, FactoriesThatGiveNothing)
{
    const auto byNumber = [](int, const wchar_t*) { return CSmartPtr<CXmlObjectBase>(); };
    const auto byElement = [](CXmlElement*) { return CSmartPtr<CXmlObjectBase>(); };
    const std::string noObject =
        Unprocessed("/order", "InvalidState: The class factory gave no object for the element [c]");
    const std::string noType = "Zr: Failed to find a suitable substitution element for [c].\nPath: /order";
    const struct {
        CElementInfo* record; // owned by its class
        std::string expected;
    } rows[] = {{new CElementInfoSeqClsMnd(L"c", L"", 0, XmlElementType_Element, byNumber, 0, false), noObject},
        {new CElementInfoSeqClsOpt(L"c", L"", 0, XmlElementType_Group, byNumber, 0, true), noObject},
        {new CElementInfoSeqAbsClsMnd(L"c", L"", 0, XmlElementType_Element, byElement), noType + "/c"},
        {new CElementInfoSeqAbsClsMnd(L"c", L"", 0, XmlElementType_Group, byElement), noType}};
    for (const auto& row : rows) {
        const TestClass type = Class(L"order").AbsCls(L"c");
        type.Data().BuildTables();
        delete std::exchange(type.Data().elements[0], row.record);
        EXPECT_EQ(row.expected, Read(type, L"<order><c/></order>")) << &row - rows;
    }
}

TEST(Record, SampleOfEverythingSurvivesTheRoundTrip)
{
    TestObject sample(SampleClass()), read(SampleClass());
    FillSample(sample);
    const std::wstring text = sample.ToXml();
    ASSERT_EQ("", FailureOf([&] { read.FromXml(text.c_str()); }));
    CheckSample(read);
    EXPECT_EQ(text, read.ToXml());
}
