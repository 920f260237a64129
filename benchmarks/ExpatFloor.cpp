// SPDX-License-Identifier: MIT
#include "benchmarks/ExpatFloor.h"

#include <memory>
#include <stdexcept>

#define XML_UNICODE
#include <expat.h>

static_assert(sizeof(XML_Char) == 2, "the parser's character type must be 16 bits wide");

namespace {

void XMLCALL StartElement(void*, const XML_Char*, const XML_Char**) { }
void XMLCALL EndElement(void*, const XML_Char*) { }
void XMLCALL CharacterData(void*, const XML_Char*, int) { }

} // namespace

void ParseOnly(const std::string& bytes)
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    XML_SetElementHandler(parser.get(), StartElement, EndElement);
    XML_SetCharacterDataHandler(parser.get(), CharacterData);
    if (XML_Parse(parser.get(), bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) != XML_STATUS_OK) {
        throw std::runtime_error("the document is not well-formed");
    }
}
