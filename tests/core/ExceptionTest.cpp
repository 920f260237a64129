// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <memory>

using namespace ZrXmlLib16;
using namespace TestSupport;

TEST(Exception, MessageAndPath)
{
    const struct {
        CZrException exception;
        const wchar_t *message, *path;
    } cases[] = {
        {CZrException(), L"", L""},
        {CZrException(L"m", std::wstring()), L"m", L""},
        {CZrException(L"m", std::wstring(L"/a[2]/b")), L"m\nPath: /a[2]/b", L"/a[2]/b"},
        {CZrException(L"", std::wstring(L"/a")), L"\nPath: /a", L"/a"},
        {CZrException(L"m", std::wstring(L"/a"), CZrException(L"i")), L"m\nPath: /a", L"/a"},
        {CZrException(L"100%ls", CZrException(L"i")), L"100%ls", L""},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.message, row.exception.GetMessage());
        EXPECT_EQ(row.path, row.exception.GetPath());
    }
    const CZrException innermost(L"three", std::wstring(L"/a"));
    const CZrValidationException chain(L"one", std::wstring(), CZrInvalidStateException(L"two", innermost));
    EXPECT_EQ(L"one\ntwo\nthree\nPath: /a", chain.GetFullMessage());
    EXPECT_EQ(nullptr, innermost.GetInnerException());
}

TEST(Exception, CopiesAndConversionsKeepTheChain)
{
    const std::wstring path = L"/q";
    const CZrInvalidParamException inner(L"i", CZrException(L"ii", std::wstring(L"/p")));
    const CZrException base(L"m", path, inner);
    CZrException* const copies[] = {base.Clone(), CZrValidationException(base).Clone(),
        CZrValidationException(L"m", path, inner).Clone(), CZrInvalidValueException(base).Clone(),
        CZrInvalidNamespaceException(L"m", path, inner).Clone(), CZrOverFlowException(base).Clone(),
        CZrInvalidValueException(L"m", inner).Clone(), CZrInvalidParamException(L"m", inner).Clone(),
        CZrInvalidStateException(L"m", inner).Clone(), CZrOverFlowException(L"m", inner).Clone()};
    const char* const texts[] = {"Zr: m\nPath: /q", "Validation: m\nPath: /q", "Validation: m\nPath: /q",
        "InvalidValue: m\nPath: /q", "InvalidNamespace: m\nPath: /q", "OverFlow: m\nPath: /q", "InvalidValue: m",
        "InvalidParam: m", "InvalidState: m", "OverFlow: m"};
    for (std::size_t i = 0; i < std::size(copies); ++i) {
        const std::unique_ptr<CZrException> copy(copies[i]);
        EXPECT_EQ(texts[i] + std::string(" <- InvalidParam: i <- Zr: ii\nPath: /p"), ChainOf(*copy));
        EXPECT_NE(&inner, copy->GetInnerException());
        EXPECT_EQ(i > 0 && i < 7 && i != 5, dynamic_cast<CZrValidationException*>(copy.get()) != nullptr) << i;
    }
}

TEST(Exception, AssignmentClonesTheChainOnce)
{
    CZrException target(L"old", CZrException(L"gone"));
    {
        const CZrException source(L"new", std::wstring(L"/x"), CZrOverFlowException(L"inner"));
        target = source;
    }
    target = *&target;
    EXPECT_EQ("Zr: new\nPath: /x <- OverFlow: inner", ChainOf(target));
    // A part of the own chain is a valid source.
    target = *target.GetInnerException();
    EXPECT_EQ(L"inner", target.GetFullMessage());
}

TEST(Exception, LongChainsNeedNoMachineStack)
{
    auto chain = std::make_unique<CZrException>(L"0");
    for (int i = 1; i < 1500; ++i)
        chain = std::make_unique<CZrException>(std::to_wstring(i), *chain);
    EXPECT_EQ(0U, chain->GetFullMessage().find(L"1499\n1498\n"));
}
