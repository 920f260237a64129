// SPDX-License-Identifier: MIT
// Documents of well-known shapes through untyped elements: the information in them stays the same.
#include "support/Failure.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

struct Document {
    const char* name;
    const char* xml;
};

const Document documents[] = {
    {"news feed", R"xml(<?xml version="1.0"?>
<rss version="2.0" xmlns:atom="http://www.w3.org/2005/Atom" xmlns:dc="http://purl.org/dc/elements/1.1/">
  <channel>
    <title>Tide tables &amp; news</title>
    <link>http://harbour.example/</link>
    <atom:link href="http://harbour.example/feed.xml" rel="self" type="application/rss+xml"/>
    <item>
      <title>Spring tide &lt;Sunday&gt;</title>
      <dc:creator>Ана Ivić</dc:creator>
      <description><![CDATA[<p>High water at <b>11:40</b> & later</p>]]></description>
      <guid isPermaLink="false">tide-17</guid>
    </item>
    <item><title/></item>
  </channel>
</rss>)xml"},
    {"syndication", R"xml(<feed xmlns="http://www.w3.org/2005/Atom" xml:lang="en" xml:base="http://walks.example/">
  <title type="text">Walks</title>
  <entry>
    <id>urn:uuid:6f1d0c1e</id>
    <updated>2024-03-01T08:00:00+01:00</updated>
    <content type="xhtml"><div xmlns="http://www.w3.org/1999/xhtml">Up the <em>old</em> road, then <a href="?a=1&amp;b=2">left</a>.</div></content>
    <geo:point xmlns:geo="http://www.georss.org/georss" geo:srs="x">45.2 13.6</geo:point>
  </entry>
</feed>)xml"},
    {"drawing",
        R"xml(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" viewBox="0 0 20 10">
  <defs><linearGradient id="g"><stop offset="0" stop-color="#fff"/><stop offset="1"/></linearGradient></defs>
  <g fill="url(#g)" transform="translate(1 2)"><path d="M0 0L10 10z"/><use xlink:href="#g" x="3"/></g>
  <text x="1" y="2" xml:space="preserve">two  <tspan dy="1">lines</tspan> of text</text>
</svg>)xml"},
    {"envelope",
        R"xml(<soap:Envelope xmlns:soap="http://www.w3.org/2003/05/soap-envelope" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
  <soap:Header><t:trace xmlns:t="urn:trace" soap:mustUnderstand="true">17</t:trace></soap:Header>
  <soap:Body><q:GetRate xmlns:q="urn:rates"><from>EUR</from><to>NOK</to><on xsi:nil="true"/></q:GetRate></soap:Body>
</soap:Envelope>)xml"},
    {"build",
        R"xml(<project xmlns="http://maven.apache.org/POM/4.0.0" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"
    xsi:schemaLocation="http://maven.apache.org/POM/4.0.0 http://maven.apache.org/xsd/maven-4.0.0.xsd">
  <modelVersion>4.0.0</modelVersion>
  <artifactId>ferry</artifactId>
  <dependencies><dependency><groupId>org.example</groupId><version>[1.0,2.0)</version></dependency></dependencies>
  <properties><quote.char>"</quote.char><empty></empty></properties>
</project>)xml"},
    {"map", R"xml(<kml xmlns="http://www.opengis.net/kml/2.2" xmlns:gx="http://www.google.com/kml/ext/2.2"><Document>
  <Placemark id="p1"><name>Vrh</name><Point><coordinates>13.61,45.23,0</coordinates></Point>
    <gx:Track><when>2024-05-01</when><gx:coord>1 2 3</gx:coord></gx:Track></Placemark>
</Document></kml>)xml"},
    {"invoice", R"xml(<inv:Invoice xmlns:inv="urn:example:invoice" xmlns:c="urn:example:common" c:id="7" currency="EUR">
  <c:Party role="seller"><c:Name>Kovač &amp; Söhne 𝄞</c:Name></c:Party>
  <inv:Line number="1"><inv:Amount currencyID="EUR">12.50</inv:Amount><inv:Note>a	b
c</inv:Note></inv:Line>
  <inv:Line number="2"><inv:Amount currencyID="EUR">-3.00</inv:Amount></inv:Line>
  <Extension xmlns=""><any xmlns="urn:other"><c:thing c:a="1" a="2"/></any></Extension>
</inv:Invoice>)xml"},
};

std::string Infoset(const std::string& xml)
{
    CXmlDocument document;
    document.LoadXml(xml.c_str());
    return Narrow(TreeText(document.GetDocumentElement()));
}

} // namespace

TEST(UntypedDocument, ReadAndWritten)
{
    for (const Document& document : documents) {
        SCOPED_TRACE(document.name);
        CElement element(L"any");
        element.FromXml(document.xml);
        const std::wstring text = element.ToXml(false, false);
        EXPECT_EQ(Infoset(document.xml), Infoset(Narrow(text)));
        EXPECT_EQ(text, element.Clone()->ToXml(false, false));
        CXmlDocument source;
        source.LoadXml(document.xml);
        CElement copy(L"any");
        copy.CopyXmlElement(source.GetDocumentElement());
        EXPECT_EQ(text, copy.ToXml(false, false));
        // Through another untyped element, and through compressed bytes.
        CElement again(L"any");
        again.FromXmlElement(static_cast<const CElement*>(&element));
        EXPECT_EQ(text, again.ToXml(false, false));
        again.FromXmlStream(
            element.ToXmlStream(true, false, Encoding_UTF8, EOL_LF, CSerializationContext(), Compression_GZip));
        EXPECT_EQ(text, again.ToXml(false, false));
    }
}

TEST(UntypedDocument, InsideAClass)
{
    const TestClass type =
        Class(L"archive").In(L"urn:archive").Prim(L"title").Any(L"##any").Col().Attr(L"count", ItemType_i4);
    std::string xml = "<archive xmlns='urn:archive' count='7'><title xmlns=''>All</title>";
    for (const Document& document : documents)
        xml += std::string(document.xml).substr(document.xml[1] == '?' ? 22 : 0);
    xml += "</archive>";
    TestObject archive(type);
    archive.FromXml(xml.c_str());
    EXPECT_EQ(7, archive.Elements(L"AnyElement")->GetCount());
    EXPECT_EQ(Infoset(xml), Infoset(Narrow(archive.ToXml(false, false))));
}
