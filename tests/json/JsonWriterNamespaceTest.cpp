// SPDX-License-Identifier: MIT
#include "support/TestText.h"
#include "json/JsonWriting.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const std::wstring instance = L"http://www.w3.org/2001/XMLSchema-instance";

} // namespace

TEST(JsonWriterNamespaces, RootDeclarations)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"+z,urn:1 +a,urn:2 !urn:d <r @k,,v >",
            L"{\"r\": {\"@xmlns\": \"urn:d\",\"@xmlns:z\": \"urn:1\",\"@xmlns:a\": \"urn:2\",\"@k\": \"v\"}}"},
        // a prefix is invented for the root only
        {L"<r,urn:r <c,urn:r =x > >", L"{\"AA:r\": {\"@xmlns:AA\": \"urn:r\",\"AA:c\": \"x\"}}"},
        {L"+AA,urn:1 <r,urn:r =x >",
            L"{\"AB:r\": {\"@xmlns:AA\": \"urn:1\",\"@xmlns:AB\": \"urn:r\",\"#text\": \"x\"}}"},
        // an empty prefix counts as none
        {L"+,urn:r +p,urn:p <r,urn:r =x >",
            L"{\"AA:r\": {\"@xmlns:p\": \"urn:p\",\"@xmlns:AA\": \"urn:r\",\"#text\": \"x\"}}"},
        {L"<r @lang,http://www.w3.org/XML/1998/namespace,de >", L"{\"r\": {\"@xml:lang\": \"de\"}}"},
        // an attribute has no default namespace
        {L"!urn:d +d,urn:d <r,urn:d @a,urn:d,v >",
            L"{\"r\": {\"@xmlns\": \"urn:d\",\"@xmlns:d\": \"urn:d\",\"@d:a\": \"v\"}}"},
        // changes on an open element serve its descendants
        {L"<r <c +p,urn:p !urn:e <d,urn:p =x > <e,urn:e =y > > <f =z > >",
            L"{\"r\": {\"c\": {\"p:d\": \"x\",\"e\": \"y\"},\"f\": \"z\"}}"},
    };
    for (const auto& [script, expected] : cases) {
        SCOPED_TRACE(Narrow(script));
        ExpectJson(expected, JsonScript(script), JsonRoundTrip_Full);
    }
}

TEST(JsonWriterNamespaces, keeps_TheNameInTheMessageOfAnUnknownNamespace)
{
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"<r <c,urn:u =x > >", L"Unknown Namespace: c."},
        {L"+,urn:u <r <c,urn:u =x > >", L"Unknown Namespace: c."},
        {L"+p,urn:p <r @k,urn:u,v >", L"Unknown Namespace: k."},
        {L"!urn:u <r,urn:u @k,urn:u,v >", L"Unknown Namespace: k."},
        {L"<r :T,urn:u >", L"Unknown Namespace: T."},
        {L"<r <c +p,urn:u > <d,urn:u > >", L"Unknown Namespace: d."},
    };
    for (const auto& [script, message] : cases) {
        const JsonEvents events = JsonScript(script);
        EXPECT_EQ(message, MessageOf<CZrException>([&] { WriteJson(events); })) << Narrow(script);
        WriteJson(events, {JsonRoundTrip_Plain});
        WriteJson(events, {JsonRoundTrip_Attributes});
    }
}

TEST(JsonWriterNamespaces, TypeAttributes)
{
    const std::wstring declared = L"\"@xmlns:xsi\": \"" + instance + L"\",";
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"<r :T =x >", L"{\"r\": {" + declared + L"\"@xsi:type\": \"T\",\"#text\": \"x\"}}"},
        {L"!urn:d <r,urn:d :T,urn:d >", L"{\"r\": {\"@xmlns\": \"urn:d\"," + declared + L"\"@xsi:type\": \"T\"}}"},
        {L"+t,urn:t <r :T,urn:t >", L"{\"r\": {\"@xmlns:t\": \"urn:t\"," + declared + L"\"@xsi:type\": \"t:T\"}}"},
        {L"+i," + instance + L" <r :T >", L"{\"r\": {\"@xmlns:i\": \"" + instance + L"\",\"@i:type\": \"T\"}}"},
        {L"+xsi,urn:x <r :T >",
            L"{\"r\": {\"@xmlns:xsi\": \"urn:x\",\"@xmlns:AA\": \"" + instance + L"\",\"@AA:type\": \"T\"}}"},
        // the declaration serves the element it stands on and its descendants
        {L"<r [ <i :T <d :U > > <i :V a=1 > ] >",
            L"{\"r\": {\"i\": [{" + declared + L"\"@xsi:type\": \"T\",\"d\": {\"@xsi:type\": \"U\"}},{" + declared
                + L"\"@xsi:type\": \"V\",\"a\": 1}]}}"},
    };
    for (const auto& [script, expected] : cases) {
        SCOPED_TRACE(Narrow(script));
        ExpectJson(expected, JsonScript(script), JsonRoundTrip_Full);
    }
    for (const JsonRoundTrip mode : {JsonRoundTrip_Plain, JsonRoundTrip_Attributes})
        ExpectJson(L"{\"r\": \"x\"}", JsonScript(L"<r :T,urn:unknown =x >"), mode);
}
