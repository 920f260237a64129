// SPDX-License-Identifier: MIT
#include "fuzz/FuzzSupport.h"
#include "fuzz/Targets.h"

#include "ZrXmlLib16/ZrXmlLib16.h"

using namespace ZrXmlLib16;

namespace Fuzz {

namespace {

enum Setting : unsigned {
    ModeBits = 3,
    Comments = 4,
    RootName = 8,
    Lenient = 16,
    AsOctets = 32,
    AsWideText = 64,
    Incomplete = 128
};

/// Asks for the path at every name, as error reports do.
class PathHandler : public CJsonReaderDefaultHandler {
public:
    void ReadName(const std::wstring& name) override
    {
        CJsonReaderDefaultHandler::ReadName(name);
        if (m_count++ < 64)
            GetPath();
    }

private:
    int m_count = 0;
};

} // namespace

int RunJsonInput(const std::uint8_t* data, std::size_t size)
{
    InputReader input(data, size);
    const unsigned settings = input.Octet();
    CSerializationContext context;
    LowerLimits(context);
    CJsonContext& json = context.GetJsonContext();
    json.SetSupportRoundtrip(static_cast<JsonRoundTrip>((settings & ModeBits) % 3));
    json.GetAllowComments((settings & Comments) != 0);
    json.SetRootElementName(settings & RootName ? L"sample" : L"");
    if (settings & (Lenient | Incomplete))
        IgnoreFaults(context, (settings & Lenient) != 0);
    const std::string narrow(reinterpret_cast<const char*>(input.Rest()), input.RestSize());
    const std::wstring wide = CEncoder::Utf8ToUnicode(narrow);
    ReadActions actions;
    actions.intoDocument = [&](CXmlDocument& document) {
        if (settings & AsOctets)
            document.LoadJson(narrow.c_str());
        else if (settings & AsWideText)
            document.LoadJson(wide.c_str());
        else
            document.LoadJsonStream(input.Rest(), input.RestSize());
    };
    actions.intoObject = [&](CXmlObjectBase& object) {
        if (settings & AsOctets)
            object.FromJson(narrow.c_str(), context);
        else if (settings & AsWideText)
            object.FromJson(wide.c_str(), context);
        else
            object.FromJsonStream(input.Rest(), input.RestSize(), context);
    };
    RunReadActions(actions, context);
    Tolerate([&] {
        PathHandler handler;
        CJsonTextReader reader(wide);
        reader.SetAllowComments((settings & Comments) != 0);
        reader.SetJsonReaderHandler(&handler);
        reader.Read();
    });
    return 0;
}

} // namespace Fuzz
