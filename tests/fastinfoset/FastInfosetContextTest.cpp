// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/ItemType.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;

namespace {

struct Encoding {
    CFastInfosetContext::EncodingKind kind;
    unsigned long number;
};

void ExpectEncoding(const CFastInfosetContext& context, unsigned long type, Encoding expected)
{
    EXPECT_EQ(context.GetEncoding(type).kind, expected.kind) << type;
    EXPECT_EQ(context.GetEncoding(type).number, expected.number) << type;
}

} // namespace

TEST(FastInfosetContext, HasDefaultsAndKeepsSettings)
{
    CFastInfosetContext context;
    EXPECT_EQ(context.GetAttributeMaxAddLength(), 6U);
    EXPECT_EQ(context.GetElementMaxAddLength(), 6U);
    EXPECT_FALSE(context.GetUseGeneratedVocabulary());
    EXPECT_EQ(context.GetExternalVocabularyURI(), L"");
    EXPECT_EQ(context.GetDefaultStringEncoding(), CFastInfosetContext::Utf8);
    for (unsigned long type = 0; type < 29; ++type) {
        ExpectEncoding(context, type, {CFastInfosetContext::Literal, 0});
    }
    context.SetAttributeMaxAddLength(1);
    context.SetElementMaxAddLength(2);
    context.SetUseGeneratedVocabulary(true);
    context.SetExternalVocabularyURI(L"urn:v");
    context.SetDefaultStringEncoding(CFastInfosetContext::Utf16BE);
    context.GetVocabulary()->AddLocalName(L"a");
    CFastInfosetContext copy(context);
    copy.GetVocabulary()->AddLocalName(L"b");
    EXPECT_EQ(copy.GetAttributeMaxAddLength(), 1U);
    EXPECT_EQ(copy.GetElementMaxAddLength(), 2U);
    EXPECT_TRUE(copy.GetUseGeneratedVocabulary());
    EXPECT_EQ(copy.GetExternalVocabularyURI(), L"urn:v");
    EXPECT_EQ(copy.GetDefaultStringEncoding(), CFastInfosetContext::Utf16BE);
    EXPECT_EQ(copy.GetVocabulary()->GetLocalNamesTable().size(), 2U);
    EXPECT_EQ(context.GetVocabulary()->GetLocalNamesTable().size(), 1U) << "a copy has its own vocabulary";
}

TEST(FastInfosetContext, SuggestsCompactEncodings)
{
    constexpr auto alphabet = CFastInfosetContext::RestrictedAlphabet;
    constexpr auto algorithm = CFastInfosetContext::EncodingAlgorithm;
    constexpr Encoding untouched{alphabet, 77};
    const Encoding expected[29] = {untouched, {algorithm, 1}, {algorithm, 2}, {algorithm, 3}, {algorithm, 3},
        {algorithm, 4}, {algorithm, 5}, {algorithm, 3}, {algorithm, 4}, {algorithm, 5}, {algorithm, 5}, {algorithm, 7},
        {algorithm, 8}, {CFastInfosetContext::Literal, 0}, {alphabet, 2}, {alphabet, 2}, {alphabet, 2}, {alphabet, 2},
        {alphabet, 2}, {alphabet, 2}, {alphabet, 2}, {alphabet, 2}, untouched, untouched, {algorithm, 6}, {alphabet, 1},
        {alphabet, 1}, untouched, untouched};
    CFastInfosetContext context;
    for (unsigned long type = 0; type < 29; ++type) {
        context.SetEncoding(type, {untouched.kind, untouched.number});
    }
    context.SetSuggestedValues();
    for (unsigned long type = 0; type < 29; ++type) {
        ExpectEncoding(context, type, expected[type]);
    }
}

TEST(FastInfosetContext, TreatsUnknownTypesAsLiteral)
{
    CFastInfosetContext context;
    for (const unsigned long type : {29UL, 30UL, ~0UL}) {
        context.SetEncoding(type, {CFastInfosetContext::EncodingAlgorithm, 4});
        ExpectEncoding(context, type, {CFastInfosetContext::Literal, 0});
    }
}
