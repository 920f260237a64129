// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

template <class E> CZrException* CloneOf(const E& exception)
{
    return exception.Clone();
}

} // namespace

TEST(Exception, MessageAndPath)
{
    struct {
        CZrException exception;
        const wchar_t* message;
        const wchar_t* path;
    } const cases[] = {
        {CZrException(), L"", L""},
        {CZrException(L"m"), L"m", L""},
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
}

TEST(Exception, FullMessageReadsOutermostFirst)
{
    const CZrException innermost(L"three", std::wstring(L"/a"));
    const CZrValidationException chain(L"one", std::wstring(), CZrInvalidStateException(L"two", innermost));
    EXPECT_EQ(L"one\ntwo\nthree\nPath: /a", chain.GetFullMessage());
    EXPECT_EQ(L"one", chain.GetMessage());
    EXPECT_EQ(nullptr, innermost.GetInnerException());
}

TEST(Exception, CopiesOfEveryTypeKeepTypeAndChain)
{
    const CZrException inner(L"i", std::wstring(L"/p"), CZrInvalidParamException(L"ii"));
    const std::wstring path = L"/q";
    const std::unique_ptr<CZrException> copies[] = {
        std::unique_ptr<CZrException>(CloneOf(CZrException(L"m", path, inner))),
        std::unique_ptr<CZrException>(CloneOf(CZrValidationException(L"m", path, inner))),
        std::unique_ptr<CZrException>(CloneOf(CZrInvalidNamespaceException(L"m", path, inner))),
        std::unique_ptr<CZrException>(CloneOf(CZrInvalidValueException(L"m", inner))),
        std::unique_ptr<CZrException>(CloneOf(CZrInvalidParamException(L"m", inner))),
        std::unique_ptr<CZrException>(CloneOf(CZrInvalidStateException(L"m", inner))),
        std::unique_ptr<CZrException>(CloneOf(CZrOverFlowException(L"m", inner))),
    };
    std::string types;
    for (const auto& copy : copies) {
        ASSERT_NE(nullptr, copy->GetInnerException());
        EXPECT_NE(&inner, copy->GetInnerException());
        EXPECT_NE(
            nullptr, dynamic_cast<const CZrInvalidParamException*>(copy->GetInnerException()->GetInnerException()));
        types += (dynamic_cast<CZrValidationException*>(copy.get()) ? 'v' : '-');
    }
    EXPECT_EQ("-vvv---", types);
    EXPECT_EQ(L"m\nPath: /q", copies[2]->GetMessage());
    EXPECT_EQ(L"/q", copies[2]->GetPath());
}

TEST(Exception, AssignmentClonesTheChainOnce)
{
    CZrException target(L"old", CZrException(L"gone"));
    {
        const CZrException source(L"new", std::wstring(L"/x"), CZrOverFlowException(L"inner"));
        target = source;
    }
    target = *&target;
    EXPECT_EQ(L"new\nPath: /x\ninner", target.GetFullMessage());
    EXPECT_NE(nullptr, dynamic_cast<const CZrOverFlowException*>(target.GetInnerException()));
    // A part of the own chain is a valid source.
    target = *target.GetInnerException();
    EXPECT_EQ(L"inner", target.GetFullMessage());
}

TEST(Exception, ConversionFromTheBaseKeepsTextPathAndChain)
{
    const CZrException base(L"m", std::wstring(L"/p"), CZrInvalidParamException(L"i"));
    EXPECT_EQ("Validation: m\nPath: /p <- InvalidParam: i", FailureOf([&] { throw CZrValidationException(base); }));
    EXPECT_EQ("InvalidValue: m\nPath: /p <- InvalidParam: i", FailureOf([&] { throw CZrInvalidValueException(base); }));
    EXPECT_EQ("OverFlow: m\nPath: /p <- InvalidParam: i", FailureOf([&] { throw CZrOverFlowException(base); }));
}

TEST(Exception, LongChainsNeedNoMachineStack)
{
    auto chain = std::make_unique<CZrException>(L"0");
    for (int i = 1; i < 1500; ++i)
        chain = std::make_unique<CZrException>(std::to_wstring(i), *chain);
    EXPECT_EQ(0U, chain->GetFullMessage().find(L"1499\n1498\n"));
}
