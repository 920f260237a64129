// SPDX-License-Identifier: MIT
#include "fuzz/FuzzSupport.h"
#include "fuzz/Targets.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

using namespace ZrXmlLib16;

namespace Fuzz {

namespace {

enum Setting : unsigned { Strip = 1, Dtd = 2, Lenient = 4, AsOctets = 8, AsWideText = 16, Incomplete = 32 };

} // namespace

int RunXmlInput(const std::uint8_t* data, std::size_t size)
{
    InputReader input(data, size);
    const unsigned settings = input.Octet();
    CSerializationContext context;
    LowerLimits(context);
    context.SetStripCDATA((settings & Strip) != 0);
    if (settings & Dtd)
        context.SetSchemaType(SchemaType_DTD);
    if (settings & (Lenient | Incomplete))
        IgnoreFaults(context, (settings & Lenient) != 0);
    const std::string narrow(reinterpret_cast<const char*>(input.Rest()), input.RestSize());
    const std::wstring wide = CEncoder::Utf8ToUnicode(narrow);
    ReadActions actions;
    actions.intoDocument = [&](CXmlDocument& document) {
        if (settings & AsOctets)
            document.LoadXml(narrow.c_str());
        else if (settings & AsWideText)
            document.LoadXml(wide.c_str());
        else
            document.LoadXmlStream(input.Rest(), input.RestSize());
    };
    actions.intoObject = [&](CXmlObjectBase& object) {
        if (settings & AsOctets)
            object.FromXml(narrow.c_str(), context);
        else if (settings & AsWideText)
            object.FromXml(wide.c_str(), context);
        else
            object.FromXmlStream(input.Rest(), input.RestSize(), context);
    };
    RunReadActions(actions, context);
    return 0;
}

} // namespace Fuzz
