// SPDX-License-Identifier: MIT
// A web service that takes and gives purchase orders as JSON: bodies without a root element, comments, the modes of
// JSON, and answers that tell the caller where the mistake is. The classes are in shared/orders/.
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/Utf8.h"
#include "shared/orders/SampleOrder.h"

#include <cstdio>
#include <string>

using namespace Orders;
using ZrXmlLib16::CSerializationContext;
using ZrXmlLib16::CZrException;

namespace {

constexpr char BODY[] = R"({
  // the order of a shop
  "@number": 4712,
  "placed": "2026-03-09T15:00:00Z",
  "shipTo": { "@country": "CH", "name": "Chiara", "street": ["Via Nassa 5"], "city": "Lugano" },
  "item": [
    { "@line": 1, "product": { "@xsi:type": "Device", "@number": "DV-1007", "title": "Desk lamp" },
      "quantity": 3, "price": 119.50 }
  ],
  "payment": { "onAccount": true }
})";

/// Settings for bodies as clients write them.
CSerializationContext RequestContext()
{
    CSerializationContext context;
    ZrXmlLib16::CJsonContext& json = context.GetJsonContext();
    json.SetSupportRoundtrip(ZrXmlLib16::JsonRoundTrip_Attributes); // no namespaces
    json.SetRootElementName(L"order");                              // the body is the value of the root element
    json.GetAllowComments(true);                                    // the setter has this name too
    return context;
}

std::string Replace(std::string text, const std::string& part, const std::string& other)
{
    return text.replace(text.find(part), part.length(), other);
}

/// The innermost message says what is wrong, and where. The whole report is for the log of the service: when the JSON
/// itself is well-formed, it shows the XML that was made of it.
std::string Reason(const CZrException& exception)
{
    const CZrException* cause = &exception;
    while (cause->GetInnerException() != nullptr) {
        cause = cause->GetInnerException();
    }
    std::string path;
    for (const CZrException* link = &exception; link != nullptr; link = link->GetInnerException()) {
        path = link->GetPath().empty() ? path : "at " + ZrXmlLib16::ToUtf8(link->GetPath()) + ": ";
    }
    return path + ZrXmlLib16::ToUtf8(cause->GetMessage().substr(0, cause->GetMessage().find(L"\nPath: ")));
}

/// @return the body of the answer.
std::string Handle(const std::string& body, const CSerializationContext& context)
{
    try {
        COrder order;
        ReadJson(order, body, context);
        return "200 OK\norder " + std::to_string(*order.GetNumber()) + " with "
            + std::to_string(order.GetItem().GetCount()) + " item(s)";
    } catch (const CZrException& exception) {
        return "400 Bad Request\n" + Reason(exception);
    }
}

void Print(const char* title, const std::string& text)
{
    std::printf("--- %s\n%s\n\n", title, text.c_str());
}

void ShowRequests()
{
    const CSerializationContext context = RequestContext();
    Print("a good request", Handle(BODY, context));
    Print("a comma too many", Handle(Replace(BODY, "\"Lugano\" }", "\"Lugano\", }"), context));
    Print("a quantity that is no number", Handle(Replace(BODY, "\"quantity\": 3", "\"quantity\": \"three\""), context));
    Print("a member that nobody knows", Handle(Replace(BODY, "\"city\"", "\"town\""), context));
    CSerializationContext strict = RequestContext();
    strict.GetJsonContext().GetAllowComments(false);
    Print("a comment where none is allowed", Handle(BODY, strict));
}

/// The modes: what of XML that JSON has no place for is kept.
void ShowModes()
{
    COrder order;
    FillOrder(order);
    order.GetItem().Remove(0);
    const struct {
        const char* title;
        ZrXmlLib16::JsonRoundTrip mode;
    } modes[] = {
        {"JsonRoundTrip_Full, which can be read back", ZrXmlLib16::JsonRoundTrip_Full},
        {"JsonRoundTrip_Attributes, which loses namespaces and xsi:type", ZrXmlLib16::JsonRoundTrip_Attributes},
        {"JsonRoundTrip_Plain, for readers that know nothing of XML", ZrXmlLib16::JsonRoundTrip_Plain},
    };
    for (const auto& mode : modes) {
        CSerializationContext context = ReadablePrefixes();
        context.GetJsonContext().SetSupportRoundtrip(mode.mode);
        Print(mode.title, WriteJson(order, {}, context));
    }
}

/// FromJson and ToJson take and give wide text.
void ShowWideText()
{
    COrder order;
    order.FromJson(ZrXmlLib16::FromUtf8(BODY).c_str(), RequestContext());
    CSerializationContext answer;
    answer.GetJsonContext().SetSupportRoundtrip(ZrXmlLib16::JsonRoundTrip_Attributes);
    const std::wstring text = order.GetShipTo()->ToJson(false, ZrXmlLib16::EOL_LF, answer);
    Print("a part of an order, without line breaks", ZrXmlLib16::ToUtf8(text));
}

} // namespace

int main()
{
    try {
        ShowRequests();
        ShowModes();
        ShowWideText();
        return 0;
    } catch (const CZrException& exception) {
        std::fprintf(stderr, "%s\n", FormatReport(exception).c_str());
        return 1;
    }
}
