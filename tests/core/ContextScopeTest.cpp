// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrXmlLib16.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;

namespace {

TEST(ContextScope, RestoresAllSettings)
{
    CSerializationContext context;
    context.SetIndentChars(L"  ");
    context.GetNamespaceAliases().Add(L"p", L"urn:p");
    context.GetJsonContext().SetRootElementName(L"root");
    const CSerializationContext sharing = context;
    const CAttributeCol* const attributes = context.GetAdditionalRootAttributes();
    {
        const CContextScope scope(context);
        EXPECT_EQ(L"  ", context.GetIndentChars());
        context.SetIndentChars(L"");
        context.SetIgnoreUnknownElements(true);
        context.SetMaxDepth(3);
        context.GetNamespaceAliases().Add(L"q", L"urn:q");
        context.GetProcessingInstructions().push_back(L"<?p?>");
        context.GetJsonContext().SetRootElementName(L"other");
        context.GetFIContext().SetElementMaxAddLength(77);
        {
            const CContextScope inner(context);
            context = CSerializationContext();
            context.GetJsonContext().SetRootElementName(L"third");
        }
        EXPECT_EQ(3, context.GetMaxDepth());
        EXPECT_EQ(L"other", context.GetJsonContext().GetRootElementName());
    }
    EXPECT_EQ(L"  ", context.GetIndentChars());
    EXPECT_FALSE(context.GetIgnoreUnknownElements());
    EXPECT_EQ(1024, context.GetMaxDepth());
    EXPECT_EQ(1, context.GetNamespaceAliases().GetNamespaceCount());
    EXPECT_TRUE(context.GetProcessingInstructions().empty());
    EXPECT_EQ(L"root", context.GetJsonContext().GetRootElementName());
    EXPECT_EQ(L"root", sharing.GetJsonContext().GetRootElementName());
    EXPECT_EQ(6U, context.GetFIContext().GetElementMaxAddLength());
    EXPECT_EQ(attributes, context.GetAdditionalRootAttributes().GetPtr());
}

TEST(ContextScope, RestoresWhenAnExceptionPasses)
{
    CSerializationContext context;
    try {
        const CContextScope scope(context);
        context.SetStripCDATA(false);
        throw 1;
    } catch (int) {
    }
    EXPECT_TRUE(context.GetStripCDATA());
}

} // namespace
