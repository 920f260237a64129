// SPDX-License-Identifier: MIT
// The program uses the 8-bit expat itself, while the library uses the 16-bit one: same names, other character type.
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"

#include <expat.h>

#include <cstdio>
#include <string>

namespace {

const std::string document = "<greeting><text>Gr\xC3\xBC\xC3\x9F Gott</text></greeting>";

bool LibraryReads()
{
    ZrXmlLib16::CXmlDocument parsed;
    parsed.LoadXml(document.c_str());
    const ZrXmlLib16::CXmlElement* root = parsed.GetDocumentElement();
    return root->GetLocalName() == L"greeting" && root->GetFirstElement()->GetText() == L"Gr\u00FC\u00DF Gott";
}

struct Content {
    std::string names;
    std::string text;
    bool libraryReads = true;
};

void OnStart(void* content, const XML_Char* name, const XML_Char**)
{
    auto& result = *static_cast<Content*>(content);
    result.names.append(name).append(";");
    result.libraryReads = result.libraryReads && LibraryReads();
}

void OnText(void* content, const XML_Char* text, int length)
{
    static_cast<Content*>(content)->text.append(text, static_cast<std::size_t>(length));
}

bool ProgramReads()
{
    static_assert(sizeof(XML_Char) == 1, "the program is to use the 8-bit parser");
    Content content;
    XML_Parser parser = XML_ParserCreate(nullptr);
    XML_SetUserData(parser, &content);
    XML_SetElementHandler(parser, OnStart, nullptr);
    XML_SetCharacterDataHandler(parser, OnText);
    const XML_Status status = XML_Parse(parser, document.data(), static_cast<int>(document.size()), XML_TRUE);
    XML_ParserFree(parser);
    return status == XML_STATUS_OK && content.libraryReads && content.names == "greeting;text;"
        && content.text == "Gr\xC3\xBC\xC3\x9F Gott";
}

} // namespace

int main()
{
    const bool good = LibraryReads() && ProgramReads() && LibraryReads();
    if (!good) {
        std::fputs("failed: one of the two parsers misread the document\n", stderr);
    }
    return good ? 0 : 1;
}
