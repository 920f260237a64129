// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrXmlLib16.h"

#include <cstdio>
#include <memory>
#include <string>

using namespace ZrXmlLib16;

namespace {

std::wstring ReadName()
{
    CXmlDocument document;
    document.LoadXml("<order><customer>J\xC3\xBCrgen &amp; S\xC3\xB6hne</customer></order>");
    return document.GetDocumentElement()->GetFirstElement()->GetText();
}

std::wstring WriteName(const std::wstring& name)
{
    CTextStream stream;
    const std::unique_ptr<CXmlWriter> writer = std::make_unique<CXmlTextWriter>(stream);
    writer->Open();
    dynamic_cast<CXmlTextWriter&>(*writer).SetFormat(false);
    writer->WriteStartElement(L"customer", L"");
    writer->WriteString(name, ItemType_string, false);
    writer->WriteEndElement();
    writer->Close();
    return stream.GetText();
}

/// An exception thrown inside the library is caught under its base class and known under its own.
bool CatchesAcrossTheBoundary()
{
    try {
        CConversions::i4FromString(L"twelve", CWhitespaceUtils::Rule_Collapse);
    } catch (const CZrValidationException& exception) {
        return dynamic_cast<const CZrInvalidValueException*>(&exception) != nullptr && !exception.GetMessage().empty();
    }
    return false;
}

/// An exception class of the program takes part in the hierarchy of the library.
class COrderException : public CZrInvalidStateException {
public:
    using CZrInvalidStateException::CZrInvalidStateException;
};

bool DerivesAcrossTheBoundary()
{
    try {
        throw COrderException(L"closed");
    } catch (const CZrException& exception) {
        return dynamic_cast<const COrderException*>(&exception) != nullptr && exception.GetMessage() == L"closed";
    }
}

bool Expect(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "failed: %s\n", what);
    }
    return condition;
}

} // namespace

int main()
{
    const std::wstring name = ReadName();
    bool good = Expect(name == L"J\u00FCrgen & S\u00F6hne", "reading");
    good &= Expect(WriteName(name) == L"<customer>J\u00FCrgen &amp; S\u00F6hne</customer>", "writing");
    good &= Expect(CatchesAcrossTheBoundary(), "catching an exception of the library");
    good &= Expect(DerivesAcrossTheBoundary(), "deriving from an exception of the library");
    return good ? 0 : 1;
}
