// SPDX-License-Identifier: MIT
// Values for the pretty-printers, which gdb looks at when Stop is called. The two private headers describe what the
// library may have no debug information of.
#include "ZrXmlLib16/ZrXmlLib16.h"
#include "values/BinaryDataHolder.h"
#include "xml/NameTable.h"

using namespace ZrXmlLib16;

extern "C" __attribute__((noinline)) void Stop()
{
    asm volatile("");
}

int main()
{
    const CDecimal zeroDecimal, decimal(L"-0012.50"), smallDecimal(L"0.05"), wholeDecimal(L"700");
    const CBigInteger zeroInteger, integer(L"-123456789012345678901234567890");
    CDateTime dateTime, date(CDateTime::dt_date), time, gYear, gMonthDay, gMonth, gDay, gYearMonth;
    dateTime.ParseXSDDateTime(L"-0044-03-15T12:30:05.25-05:30");
    date.ParseXSDDate(L"2024-02-29Z", CDateTime::dt_date);
    time.ParseXSDTime(L"23:59:59.000000001+14:00");
    gYear.ParseXSDDate(L"12024", CDateTime::dt_gYear);
    gMonthDay.ParseXSDDate(L"--12-31", CDateTime::dt_gMonthDay);
    gMonth.ParseXSDDate(L"--12", CDateTime::dt_gMonth);
    gDay.ParseXSDDate(L"---31", CDateTime::dt_gDay);
    gYearMonth.ParseXSDDate(L"2024-02", CDateTime::dt_gYearMonth);
    CDateTimeSpan span, noSpan;
    span.ParseXSDDuration(L"-P1Y2M3DT4H5M6.7S");

    unsigned char octets[40] = {0x01, 0xAB, 0xFF};
    const CBinaryData noBinary, binary(octets, 3, false), longBinary(octets, 40, false);

    ZrVariant invalid, nil, i4, r8, string, boolean, decimalVariant, dateVariant, binaryVariant, object, noObject;
    nil.FromString(L"1", ItemType_i4, CWhitespaceUtils::Rule_None);
    nil.SetNil();
    i4.SetI4(-5000000000);
    r8.SetR8(1.5);
    string.SetString(L"caf\u00e9 \"\xd83d\xde00\"\n");
    boolean.SetBoolean(true);
    decimalVariant.SetDecimal(decimal);
    dateVariant.SetDate(date);
    binaryVariant.SetHexBinary(binary);

    const CSmartPtr<CElement> nobody, element(new CElement(L"item", L"urn:u", L"##any", L"urn:u"));
    element->SetText(L"text");
    element->GetAttributes()->Add(L"urn:a", L"1", L"id");
    element->GetElements()->Add(L"child", L"");
    element->GetElements()->Add(L"other", L"");
    const CSmartPtr<CXmlObjectBase> base(element);
    object.SetXmlObject(element);
    noObject.SetXmlObject(nullptr);
    [[maybe_unused]] const CElement& elementValue = *element;
    [[maybe_unused]] const CAttributeCol& attributes = *element->GetAttributes();
    [[maybe_unused]] const CElementCol& elements = *element->GetElements();

    const auto none = CWhitespaceUtils::Rule_None;
    Ci4Col numbers(L"n", L"", 0, -1, L"", -1, -1, L"", L"", L"", L"", -1, -1, -1, none, L"");
    numbers.Add(3);
    numbers.Add(-1);
    CdateCol dates(L"d", L"", 0, -1, L"", -1, -1, L"", L"", L"", L"", -1, -1, -1, none, L"");
    dates.Add(date);

    CXmlDocument document;
    document.LoadXml("<p:order xmlns:p='urn:p' id='7' p:x='&lt;'>a\n<b/>c<b/></p:order>");
    const CXmlElement& root = *document.GetDocumentElement();
    [[maybe_unused]] const CXmlAttribute& firstAttribute = *root.GetAttributes()[0];
    [[maybe_unused]] const CXmlAttribute& secondAttribute = *root.GetAttributes()[1];

    [[maybe_unused]] const XmlName* const name = nullptr;
    [[maybe_unused]] const CBinaryData::CDataHolder* const holder = nullptr;
    Stop();
}
