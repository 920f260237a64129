// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <memory>
#include <stdexcept>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

CZrException At(const wchar_t* message, const wchar_t* path)
{
    return CZrException(message, std::wstring(path));
}

CZrException At(const wchar_t* message, const wchar_t* path, const CZrException& inner)
{
    return CZrException(message, std::wstring(path), inner);
}

TEST(ErrorReport, OneLinePerCauseAndThePathOnce)
{
    const struct {
        CZrException exception;
        const char* report;
    } cases[] = {
        {CZrException(), ""},
        {CZrException(L"m"), "m"},
        {At(L"m", L"/a"), "m\n  Path: /a"},
        {At(L"", L"/a"), "Path: /a"},
        {CZrException(L"caf\u00e9 \xd83d\xde00"), "caf\xC3\xA9 \xF0\x9F\x98\x80"},
        {CZrException(L"a", CZrException(L"b", CZrException(L"c"))), "a\n  b\n  c"},
        {At(L"f", L"/o", At(L"f", L"/o/i[2]", At(L"m", L"/o/i[2]/@x"))), "f\n  m\n  Path: /o/i[2]/@x"},
        {At(L"f", L"/o/i", CZrException(L"m")), "f\n  m\n  Path: /o/i"},
        {At(L"f", L"/o", At(L"m", L"/o")), "f\n  m\n  Path: /o"},
        {At(L"f", L"/order", At(L"m", L"/o")), "f\n  m\n  Path: /order\n  Path: /o"},
        {At(L"f", L"/o/i", At(L"m", L"/o")), "f\n  m\n  Path: /o/i"},
        {CZrException(L"no\n\nnumber\n", CZrException(L"no")), "no\n  number\n  no"},
        {CZrException(L"m\nPath: /x", CZrException(L"n")), "m\n  Path: /x\n  n"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.report, FormatReport(row.exception));
    }
}

TEST(ErrorReport, OfAFailedRead)
{
    const TestClass item = Class(L"item").Prim(L"price", ItemType_decimal);
    const CSmartPtr<TestObject> order = Class(L"order").Cls(L"item", item).Col().Create();
    try {
        order->FromXml(L"<order><item><price>1</price></item><item><price>caf\u00e9</price></item></order>");
        FAIL();
    } catch (const CZrException& exception) {
        EXPECT_EQ("Failed to process the element.\n  The value [caf\xC3\xA9] can not be converted to a decimal\n"
                  "  Path: /order/item[2]\n  At line 1, column 43",
            FormatReport(exception));
    }
}

TEST(ErrorReport, LongChainsStaySmall)
{
    auto chain = std::make_unique<CZrException>(L"0");
    for (int i = 1; i < 1500; ++i)
        chain = std::make_unique<CZrException>(std::to_wstring(i), L"/p" + std::to_wstring(i), *chain);
    EXPECT_LT(FormatReport(*chain).length(), 50000u);
}

TEST(ErrorReport, StandardExceptionsCarryTheReportAndTheCause)
{
    try {
        WithStandardExceptions([] { throw CZrValidationException(L"m", L"/a", CZrInvalidStateException(L"i")); });
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ("m\n  i\n  Path: /a", error.what());
        EXPECT_THROW(std::rethrow_if_nested(error), CZrValidationException);
    }
    EXPECT_THROW(WithStandardExceptions([] { throw std::bad_alloc(); }), std::bad_alloc);
    EXPECT_THROW(WithStandardExceptions([] { throw 1; }), int);
}

TEST(ErrorReport, ResultsOfTheActionPassThrough)
{
    int value = 1;
    int& same = WithStandardExceptions([&]() -> int& { return value; });
    EXPECT_EQ(&value, &same);
    const std::unique_ptr<int> moved = WithStandardExceptions([] { return std::make_unique<int>(2); });
    EXPECT_EQ(2, *moved);
}

} // namespace
