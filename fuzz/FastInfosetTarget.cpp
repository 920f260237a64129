// SPDX-License-Identifier: MIT
#include "fuzz/FuzzSupport.h"
#include "fuzz/Targets.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

using namespace ZrXmlLib16;

namespace Fuzz {

namespace {

enum Setting : unsigned { Vocabulary = 1, Utf16 = 2, Lenient = 4, Suggested = 8, Incomplete = 16 };

void FillVocabulary(CFastInfosetContext& settings)
{
    CFIVocabulary& vocabulary = *settings.GetVocabulary();
    settings.SetUseGeneratedVocabulary(true);
    vocabulary.AddElement(L"", L"", L"sample");
    vocabulary.AddElement(L"p", L"urn:p", L"values");
    vocabulary.AddAttribute(L"", L"", L"id");
    vocabulary.AddAttribute(L"p", L"urn:p", L"code");
    vocabulary.AddAttributeValue(L"5");
    vocabulary.AddElementValue(L"text");
}

} // namespace

int RunFastInfosetInput(const std::uint8_t* data, std::size_t size)
{
    InputReader input(data, size);
    const unsigned settings = input.Octet();
    CSerializationContext context;
    LowerLimits(context);
    CFastInfosetContext& fastInfoset = context.GetFIContext();
    if (settings & Vocabulary)
        FillVocabulary(fastInfoset);
    if (settings & Utf16)
        fastInfoset.SetDefaultStringEncoding(CFastInfosetContext::Utf16BE);
    if (settings & Suggested)
        fastInfoset.SetSuggestedValues();
    if (settings & (Lenient | Incomplete))
        IgnoreFaults(context, (settings & Lenient) != 0);
    ReadActions actions;
    actions.intoDocument = [&](CXmlDocument& document) { document.LoadXmlStream(input.Rest(), input.RestSize()); };
    actions.intoObject = [&](CXmlObjectBase& object) { object.FromXmlStream(input.Rest(), input.RestSize(), context); };
    RunReadActions(actions, context);
    return 0;
}

} // namespace Fuzz
