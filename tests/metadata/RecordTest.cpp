// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/RecordingWriter.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace ZrXmlLib16;
using namespace ZrXmlLib16Data;
using namespace TestSupport;

namespace {

template <class Base, class... Records> constexpr bool DeriveFrom()
{
    return (std::is_base_of<Base, Records>::value && ...);
}

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
    RefusingObject()
        : TestObject(Class(L"order").Prim(L"a").Opt())
    {
    }

protected:
    CElementInfo** GetClassElementInfo() const override { return m_records; }

private:
    mutable RefusingRecord m_record;
    mutable CElementInfo* m_records[2] = {&m_record, nullptr};
};

} // namespace

TEST(Record, keeps_SilentStopAtARecordThatRefuses)
{
    RefusingObject object;
    EXPECT_EQ("", FailureOf([&] { object.FromXml("<order><a>1</a><b/></order>"); }));
    EXPECT_EQ(L"order{}", DescribeObject(object));
    EXPECT_EQ("<order/>", Write(object));
}

TEST(Record, ClassTree)
{
    EXPECT_TRUE((DeriveFrom<CElementInfoSeqCol, CElementInfoSeqPrimCol, CElementInfoSeqEnumCol, CElementInfoSeqClsCol,
        CElementInfoSeqAbsClsCol, CElementInfoSeqUntpdCol>()));
    EXPECT_TRUE((DeriveFrom<CElementInfoChoiceCol, CElementInfoChoicePrimCol, CElementInfoChoiceEnumCol,
        CElementInfoChoiceClsCol, CElementInfoChoiceAbsClsCol, CElementInfoChoiceUntpdCol>()));
    EXPECT_TRUE((DeriveFrom<CElementInfoAllCol, CElementInfoAllPrimCol, CElementInfoAllEnumCol, CElementInfoAllClsCol,
        CElementInfoAllAbsClsCol, CElementInfoAllUntpdCol>()));
    EXPECT_TRUE(std::is_abstract<CElementInfoAllEnumCol>::value);
    EXPECT_FALSE(std::is_abstract<CElementInfoAllCol>::value);
}

TEST(Record, OperationsThatOnlySomeKindsHave)
{
    const CSerializationContext context;
    const CElementInfoSeqCol plain(L"item", L"urn:i", 4);
    const CElementInfoSeqPrimMnd prim(L"qty", L"", 0, false, ItemType_string, nullptr, CWhitespaceUtils::Rule_None,
        CPrimitiveRestrictions(), nullptr);
    EXPECT_EQ("Zr: Not implemented, should never be called",
        FailureOf([&] { plain.Validate(context, nullptr, false, true); }));
    EXPECT_EQ("Zr: Not implemented, should never be called",
        FailureOf([&] { prim.Validate(context, nullptr, true, false); }));
    ZrVariant value;
    value.SetI4(5);
    EXPECT_EQ("Zr: Cannot CheckRestriction for type: " + Narrow(value.GetType()),
        FailureOf([&] { plain.CheckRestriction(value); }));
    EXPECT_EQ(4, plain.GetPropertyId());
    EXPECT_EQ(L"item", plain.GetElementName());
    EXPECT_EQ(L"urn:i", plain.GetNamespace());
    RecordingWriter writer;
    prim.PseudoChildAttributeToXml(context, nullptr, &writer);
    EXPECT_EQ("", writer.m_events);
    const CElementInfoAllEnumMnd mandatory(L"e", L"", 0, false, ColourToString, StringToColour, nullptr);
    const CElementInfoAllEnumOpt optional(L"e", L"", 0, false, ColourToString, StringToColour, nullptr);
    EXPECT_EQ("Validation: Failed to find the mandatory element [e].",
        FailureOf([&] { mandatory.Validate(context, nullptr, false, true); }));
    EXPECT_TRUE(mandatory.Validate(context, nullptr, true, true));
    EXPECT_TRUE(mandatory.Validate(context, nullptr, true, false));
    EXPECT_FALSE(mandatory.Validate(context, nullptr, false, false));
    EXPECT_TRUE(optional.Validate(context, nullptr, false, true));
}

TEST(Record, keeps_DefaultNamespaceOfWildcards)
{
    const wchar_t* const cases[][4] = {
        {L"##any", L"urn:d", L"urn:t", L"urn:d"},
        {L"##any", L"", L"urn:t", L""},
        {L"##other", L"", L"urn:t", L"DefaultNamespace"},
        {L"##other", L"urn:d", L"urn:t", L""},
        {L"##local", L"urn:d", L"urn:t", L""},
        {L"##targetNamespace", L"urn:d", L"urn:t", L"urn:t"},
        {L"##targetNamespace ##local", L"urn:d", L"urn:t", L"urn:t"},
        {L"##local urn:x", L"urn:d", L"urn:t", L""},
        {L"##other urn:x", L"", L"urn:t", L"DefaultNamespace"},
        {L"urn:x", L"urn:d", L"urn:t", L""},
        {L"urn:x ##targetNamespace", L"urn:d", L"urn:t", L""},
        {L"", L"urn:d", L"urn:t", L""},
        {L"##", L"urn:d", L"urn:t", L""},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row[3], CElementInfo::GetAnyDefaultNamespace(row[0], row[1], row[2])) << Narrow(row[0]);
}

TEST(Record, NamespaceWildcards)
{
    const wchar_t* const namespaces[] = {L"", L"urn:t", L"urn:o"};
    const struct {
        const wchar_t* specification;
        const wchar_t* target;
        const char* accepted; // no namespace, the target, another one
    } cases[] = {
        {L"##any", L"urn:t", "yyy"},
        {L"", L"urn:t", "yyy"},
        {L"##other", L"urn:t", "nny"},
        {L"##other", L"", "nyy"},
        {L"##local", L"urn:t", "ynn"},
        {L"##targetNamespace", L"urn:t", "nyn"},
        {L"##targetNamespace", L"", "ynn"},
        {L"urn:o", L"urn:t", "nny"},
        {L"urn:O", L"urn:t", "nnn"},
        {L"##local urn:o", L"urn:t", "yny"},
        {L"##targetNamespace\t##local", L"urn:t", "yyn"},
        {L"  urn:x \n urn:o ", L"urn:t", "nny"},
        {L"urn:t urn:o", L"", "nyy"},
    };
    for (const auto& row : cases) {
        std::string accepted;
        for (const wchar_t* uri : namespaces) {
            const bool valid = CXmlObjectHelper::IsNamespaceValid(uri, row.specification, row.target);
            EXPECT_EQ(valid, CXmlObjectHelper::TestNamespace(uri, row.specification, row.target))
                << Narrow(row.specification);
            EXPECT_EQ(valid, CAttributeInfo::IsNamespaceValid(uri, row.specification, row.target));
            EXPECT_EQ(valid, CAttributeInfo::TestNamespace(uri, row.specification, row.target));
            accepted += valid ? 'y' : 'n';
        }
        EXPECT_EQ(row.accepted, accepted) << Narrow(row.specification);
    }
}

TEST(Record, ElementRecordsOfAClassAreCounted)
{
    EXPECT_EQ(0, TestObject(Class(L"order").Attr(L"a")).GetClassElementInfoCount());
    EXPECT_EQ(2,
        TestObject(Class(L"order").Prim(L"a").Attr(L"x").Prim(L"b").Value(ItemType_string)).GetClassElementInfoCount());
}

TEST(Record, SampleOfEverythingSurvivesTheRoundTrip)
{
    TestObject sample(SampleClass()), read(SampleClass());
    FillSample(sample);
    const std::wstring text = sample.ToXml();
    ASSERT_EQ("", FailureOf([&] { read.FromXml(text.c_str()); }));
    CheckSample(read);
    EXPECT_EQ(text, read.ToXml());
    const CBinaryData bytes =
        sample.ToXmlStream(true, false, Encoding_UTF8, EOL_LF, CSerializationContext(), Compression_GZip);
    read.FromXmlStream(bytes);
    CheckSample(read);
}
