// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/SerializationContext.h"

#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

struct Switch {
    const char* name;
    bool (CSerializationContext::*get)() const;
    void (CSerializationContext::*set)(bool);
    bool initial;
};

using Context = CSerializationContext;
const Switch switches[] = {
    {"write type", &Context::GetWriteTypeAttribute, &Context::SetWriteTypeAttribute, true},
    {"counts", &Context::GetIgnoreInvalidCollectionCounts, &Context::SetIgnoreInvalidCollectionCounts, false},
    {"choice", &Context::GetIgnoreMissingChoice, &Context::SetIgnoreMissingChoice, false},
    {"unknown elements", &Context::GetIgnoreUnknownElements, &Context::SetIgnoreUnknownElements, false},
    {"unknown attributes", &Context::GetIgnoreUnknownAttributes, &Context::SetIgnoreUnknownAttributes, false},
    {"namespaces", &Context::GetIgnoreNamespaces, &Context::SetIgnoreNamespaces, false},
    {"attribute default", &Context::GetNoOptionalAttributeDefaultOutput, &Context::SetNoOptionalAttributeDefaultOutput,
        false},
    {"element default", &Context::GetWriteDefaultElementValues, &Context::SetWriteDefaultElementValues, false},
    {"CDATA", &Context::GetStripCDATA, &Context::SetStripCDATA, true},
};

} // namespace

TEST(SerializationContext, DefaultsAndCopies)
{
    Context changed;
    for (const Switch& row : switches) {
        EXPECT_EQ(row.initial, (changed.*row.get)()) << row.name;
        (changed.*row.set)(!row.initial);
    }
    EXPECT_FALSE(changed.GetIgnoreMissingMandatoryElements());
    EXPECT_EQ(SchemaType_XSD, changed.GetSchemaType());
    EXPECT_EQ(L"\t", changed.GetIndentChars());
    EXPECT_EQ(L"", changed.GetDefaultNamespaceURI());
    EXPECT_EQ(L"", changed.GetInLineSchema());
    EXPECT_EQ(1024, changed.GetMaxDepth());
    EXPECT_EQ(0, changed.GetNamespaceAliases().GetNamespaceCount());
    EXPECT_TRUE(changed.GetProcessingInstructions().empty());

    changed.SetSchemaType(SchemaType_DTD);
    changed.SetIndentChars(L" \t ");
    changed.SetDefaultNamespaceURI(L"urn:d");
    changed.SetInLineSchema(L"<schema/>");
    changed.SetMaxDepth(7);
    changed.GetNamespaceAliases().Add(L"p", L"urn:p");
    changed.GetProcessingInstructions().push_back(L"<?a?>");
    Context assigned;
    assigned = changed;
    assigned = *&assigned;
    const Context copied(changed);
    for (const Context* copy : {const_cast<const Context*>(&assigned), &copied}) {
        for (const Switch& row : switches)
            EXPECT_EQ(!row.initial, (copy->*row.get)()) << row.name;
        EXPECT_EQ(SchemaType_DTD, copy->GetSchemaType());
        EXPECT_EQ(L" \t ", copy->GetIndentChars());
        EXPECT_EQ(L"urn:d", copy->GetDefaultNamespaceURI());
        EXPECT_EQ(L"<schema/>", copy->GetInLineSchema());
        EXPECT_EQ(7, copy->GetMaxDepth());
        EXPECT_TRUE(copy->GetNamespaceAliases().DoesAliasExist(L"p"));
        EXPECT_EQ(1U, copy->GetProcessingInstructions().size());
    }
}

TEST(SerializationContext, AdditionalRootAttributesAreOneSharedCollection)
{
    CSmartPtr<CAttributeCol> kept;
    {
        const Context context;
        kept = context.GetAdditionalRootAttributes();
        EXPECT_EQ(kept.GetPtr(), context.GetAdditionalRootAttributes().GetPtr());
        const Context copy(context);
        EXPECT_EQ(kept.GetPtr(), copy.GetAdditionalRootAttributes().GetPtr());
        Context assigned;
        assigned.GetAdditionalRootAttributes()->Add(L"", L"1", L"dropped");
        assigned = context;
        EXPECT_EQ(kept.GetPtr(), assigned.GetAdditionalRootAttributes().GetPtr());
        EXPECT_EQ(L"", kept->GetElementName());
        EXPECT_EQ(L"", kept->GetTargetNamespace());
    }
    EXPECT_EQ(0, kept->GetCount());
    kept->Add(L"urn:any", L"v", L"n");
    EXPECT_EQ(1, kept->GetCount());
}

TEST(SerializationContext, IndentIsWhitespace)
{
    Context context;
    context.SetIndentChars(L"  ");
    for (const wchar_t* bad : {L"\n", L" \r", L"x", L"\t\u00a0", L"\u3000"})
        EXPECT_EQ("InvalidParam: IndentChars can only contain Whitespace characters, i.e. \\t or spaces",
            FailureOf([&] { context.SetIndentChars(bad); }));
    EXPECT_EQ(L"  ", context.GetIndentChars());
    context.SetIndentChars(nullptr);
    EXPECT_EQ(L"", context.GetIndentChars());
}

TEST(SerializationContext, TheTwoElementTolerancesExcludeEachOther)
{
    const std::string start = "InvalidState: The parser can only ignore additional elements, or ignore the fact that "
                              "some required ones are missing, you can not ignore both\n";
    Context context;
    context.SetIgnoreMissingMandatoryElements(true);
    context.SetIgnoreMissingMandatoryElements(true);
    EXPECT_EQ(start + "Set IgnoreMissingMandatoryElements to false before setting IgnoreUnknownElements to true",
        FailureOf([&] { context.SetIgnoreUnknownElements(true); }));
    EXPECT_FALSE(context.GetIgnoreUnknownElements());
    context.SetIgnoreUnknownElements(false);
    context.SetIgnoreMissingMandatoryElements(false);
    context.SetIgnoreUnknownElements(true);
    EXPECT_EQ(start + "Set IgnoreUnknownElements to false before setting IgnoreMissingMandatoryElements to true",
        FailureOf([&] { context.SetIgnoreMissingMandatoryElements(true); }));
    EXPECT_FALSE(context.GetIgnoreMissingMandatoryElements());
    EXPECT_TRUE(context.GetIgnoreUnknownElements());
}

TEST(SerializationContext, MaximumDepthIsPositive)
{
    Context context;
    for (int levels : {0, -1, -2147483647})
        EXPECT_EQ(
            "InvalidParam: The maximum depth must be at least 1.", FailureOf([&] { context.SetMaxDepth(levels); }));
    EXPECT_EQ(1024, context.GetMaxDepth());
    context.SetMaxDepth(1);
    EXPECT_EQ(1, context.GetMaxDepth());
}
