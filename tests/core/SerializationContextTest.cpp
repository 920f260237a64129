// SPDX-License-Identifier: MIT
#include "support/Failure.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

TEST(SerializationContext, AdditionalRootAttributesAreOneSharedCollection)
{
    CSerializationContext assigned;
    assigned.GetAdditionalRootAttributes()->Add(L"", L"1", L"dropped");
    const CSmartPtr<CAttributeCol> kept = [&] {
        const CSerializationContext context;
        context.GetAdditionalRootAttributes();
        assigned = context;
        return CSerializationContext(context).GetAdditionalRootAttributes();
    }();
    EXPECT_EQ(kept.GetPtr(), assigned.GetAdditionalRootAttributes().GetPtr());
    EXPECT_EQ(0, kept->GetCount());
}

TEST(SerializationContext, RefusedSettingsChangeNothing)
{
    CSerializationContext context;
    context.SetIndentChars(L"  ");
    for (const wchar_t* bad : {L"\n", L" \r", L"x", L"\t\u00a0", L"\u3000"})
        EXPECT_EQ("InvalidParam: IndentChars can only contain Whitespace characters, i.e. \\t or spaces",
            FailureOf([&] { context.SetIndentChars(bad); }));
    EXPECT_EQ(L"  ", context.GetIndentChars());
    context.SetIndentChars(nullptr);
    EXPECT_EQ(L"", context.GetIndentChars());
    for (int levels : {0, -1, -2147483647})
        EXPECT_EQ(
            "InvalidParam: The maximum depth must be at least 1.", FailureOf([&] { context.SetMaxDepth(levels); }));
    EXPECT_EQ(1024, context.GetMaxDepth());
}

TEST(SerializationContext, TheTwoElementTolerancesExcludeEachOther)
{
    const std::string start = "InvalidState: The parser can only ignore additional elements, or ignore the fact that "
                              "some required ones are missing, you can not ignore both\nSet ";
    CSerializationContext context;
    context.SetIgnoreMissingMandatoryElements(true);
    context.SetIgnoreMissingMandatoryElements(true);
    EXPECT_EQ(start + "IgnoreMissingMandatoryElements to false before setting IgnoreUnknownElements to true",
        FailureOf([&] { context.SetIgnoreUnknownElements(true); }));
    EXPECT_FALSE(context.GetIgnoreUnknownElements());
    context.SetIgnoreUnknownElements(false);
    context.SetIgnoreMissingMandatoryElements(false);
    context.SetIgnoreUnknownElements(true);
    EXPECT_EQ(start + "IgnoreUnknownElements to false before setting IgnoreMissingMandatoryElements to true",
        FailureOf([&] { context.SetIgnoreMissingMandatoryElements(true); }));
    EXPECT_FALSE(context.GetIgnoreMissingMandatoryElements());
}
