// SPDX-License-Identifier: MIT
// Very large documents are read and written as they are, or refused; never cut. Takes up to 8 GiB of memory.
#include "fastinfoset/Octets.h"
#include "support/Failure.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

constexpr std::size_t MEBI = std::size_t(1) << 20;

const unsigned char* Bytes(const std::string& octets)
{
    return reinterpret_cast<const unsigned char*>(octets.data());
}

CSmartPtr<CElement> ElementWithText(std::size_t length)
{
    std::wstring text(length, L'x');
    for (std::size_t at = 0; at < length; at += 4093)
        text[at] = static_cast<wchar_t>(L'a' + at % 26);
    const CSmartPtr<CElement> element = new CElement(L"a");
    element->SetText(text.c_str());
    return element;
}

bool IsReadBack(const CElement& element, const CBinaryData& octets, bool isJson = false)
{
    const CSmartPtr<CElement> copy = new CElement;
    if (isJson)
        copy->FromJsonStream(octets);
    else
        copy->FromXmlStream(octets);
    return copy->GetText() == element.GetText();
}

} // namespace

TEST(Large, TextOf256Mebibytes)
{
    const CSmartPtr<CElement> element = ElementWithText(256 * MEBI);
    EXPECT_TRUE(IsReadBack(*element, element->ToXmlStream(false, false)));
    EXPECT_TRUE(IsReadBack(*element, element->ToFastInfosetStream()));
    EXPECT_TRUE(IsReadBack(*element, element->ToJsonStream(false), true));
}

TEST(Large, NamesOf50000Characters)
{
    const std::wstring name(50000, L'n');
    const CSmartPtr<CElement> element = new CElement(name.c_str());
    element->SetNamespace((L"urn:" + name).c_str());
    element->GetAttributes()->Add(L"", L"1", name.c_str());
    for (const CBinaryData& octets : {element->ToXmlStream(), element->ToFastInfosetStream()}) {
        const CSmartPtr<CElement> copy = new CElement;
        copy->FromXmlStream(octets);
        EXPECT_EQ(name, copy->GetElementName());
        EXPECT_EQ(L"urn:" + name, copy->GetNamespace());
        EXPECT_EQ(name, copy->GetAttributes()->Item(0)->GetName());
    }
    const CSmartPtr<CElement> plain = new CElement(name.c_str());
    EXPECT_NE("", FailureOf([&] { CElement().FromJsonStream(plain->ToJsonStream()); }));
}

TEST(Large, InputLongerThanAnInt)
{
    constexpr std::size_t LENGTH = (std::size_t(1) << 31) + 100 * MEBI;
    const std::string comment = "<!--" + std::string(MEBI, 'c') + "-->";
    std::string xml;
    xml.reserve(LENGTH + 2 * MEBI);
    xml += "<a><b>first</b>";
    while (xml.size() < LENGTH)
        xml += comment;
    xml += "<b>last</b></a>";
    CXmlDocument document;
    document.LoadXmlStream(Bytes(xml), xml.size());
    const CXmlElement* const first = document.GetDocumentElement()->GetFirstElement();
    EXPECT_EQ(L"first", first->GetText());
    EXPECT_EQ(L"last", first->GetNextSiblingElement()->GetText());
    xml.resize(xml.size() - 1);
    EXPECT_NE(L"", FailureOf(xml));
}

TEST(Large, InfosetLongerThanAnInt)
{
    // A comment may be almost four gibibytes long.
    constexpr std::size_t LENGTH = (std::size_t(1) << 31) + 100 * MEBI;
    std::string infoset = FastInfoset("3C 00'a' E2 0C") + BigEndian(LENGTH - 265, 4);
    infoset.reserve(infoset.size() + LENGTH + 16);
    infoset.append(LENGTH, 'c').append(Octets("3C 00'b' FF"));
    CXmlDocument document;
    document.LoadXmlStream(Bytes(infoset), infoset.size());
    EXPECT_EQ(L"b", document.GetDocumentElement()->GetFirstElement()->GetLocalName());
}
