// SPDX-License-Identifier: MIT
// What the library promises to threads: objects of their own need no lock, and a context that is set up, reference
// counts and the octets of binary data may be shared. The thread sanitizer watches.
#include "support/Failure.h"
#include "threads/Threads.h"

#include <clocale>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const wchar_t orderXml[] = L"<order id='7'><price>1234.50</price><weight>0.125</weight><on>2024-02-29T23:59:58.5</on>"
                           L"<code>IX-ii</code><item id='1'><qty>1</qty></item><item id='2'><qty>2</qty></item>"
                           L"<colour>blue</colour><data>AP9/QQ==</data></order>";

TestClass OrderClass()
{
    static const TestClass order = [] {
        const TestClass item = Class(L"item").Prim(L"qty", ItemType_i4).Attr(L"id", ItemType_i4);
        TestClass type = Class(L"order").Prim(L"price", ItemType_decimal).Prim(L"weight", ItemType_r8);
        type.Prim(L"on", ItemType_datetime).Prim(L"code").MaxLength(5).Cls(L"item", item).Col().Enum(L"colour");
        type.Prim(L"data", ItemType_base64Binary).Attr(L"id", ItemType_i4);
        // The tables exist before the threads do, as those of generated code.
        item.Create();
        type.Create();
        return type;
    }();
    return order;
}

/// Through all three formats and back.
bool RoundTrip(TestObject& object, const CSerializationContext& context)
{
    TestObject copy(OrderClass());
    copy.FromXmlStream(object.ToXmlStream(true, true, Encoding_UTF8, EOL_LF, context, Compression_GZip), context);
    TestObject second(OrderClass());
    second.FromJsonStream(copy.ToJsonStream(true, Encoding_UTF8, EOL_LF, context), context);
    TestObject third(OrderClass());
    third.FromXmlStream(second.ToFastInfosetStream(FInfoDecl_None, context), context);
    return DescribeObject(third) == DescribeObject(object);
}

int RoundTripsWith(const CSerializationContext& context)
{
    OrderClass();
    return FailuresInThreads([&](int) {
        TestObject object(OrderClass());
        object.FromXml(orderXml, context);
        return RoundTrip(object, context);
    });
}

} // namespace

TEST(Threads, ShareAContextThatIsSetUp)
{
    CSerializationContext context;
    context.GetFIContext().SetElementMaxAddLength(20);
    context.GetJsonContext();
    context.GetAdditionalRootAttributes();
    context.GetNamespaceAliases().Add(L"p", L"urn:p");
    context.SetIndentChars(L"  ");
    EXPECT_EQ(0, RoundTripsWith(context));
}

TEST(Threads, ShareAContextWithoutAnySettings)
{
    const CSerializationContext untouched;
    EXPECT_EQ(0, RoundTripsWith(untouched));
    EXPECT_EQ(0, RoundTripsWith(CSerializationContext::m_defaultContext));
}

TEST(Threads, ShareAContextThatTheyCopy)
{
    CSerializationContext context;
    context.GetFIContext();
    context.GetJsonContext();
    EXPECT_EQ(0, FailuresInThreads([&](int number) {
        CSerializationContext own(context);
        own.SetMaxDepth(100 + number);
        own.GetNamespaceAliases().Add(L"q", L"urn:q");
        TestObject object(OrderClass());
        object.FromXml(orderXml, own);
        return RoundTrip(object, own);
    }));
}

TEST(Threads, ShareObjectsByReference)
{
    std::atomic<int> destroyed{0};
    struct Counted : TestObject {
        explicit Counted(std::atomic<int>& counter)
            : TestObject(OrderClass())
            , m_counter(counter)
        {
        }
        ~Counted() override { ++m_counter; }
        std::atomic<int>& m_counter;
    };
    {
        const CSmartPtr<TestObject> shared = new Counted(destroyed);
        shared->FromXml(orderXml);
        EXPECT_EQ(0, FailuresInThreads([&](int) {
            const CSmartPtr<TestObject> mine = shared;
            CSmartPtr<TestObject> moved;
            moved = mine;
            // Writing changes nothing.
            return moved->ToXml(false, false).size() > 100;
        }));
        EXPECT_EQ(0, destroyed);
    }
    EXPECT_EQ(1, destroyed);
}

TEST(Threads, TheLastOneDestroysASharedObject)
{
    // Each round passes an object on to all threads, which let it go at the same time.
    for (int round = 0; round < Rounds() / 10 + 1; ++round) {
        std::vector<CSmartPtr<TestObject>> references(THREADS, CSmartPtr<TestObject>(new TestObject(OrderClass())));
        std::vector<std::thread> threads;
        for (CSmartPtr<TestObject>& reference : references)
            threads.emplace_back([&reference] { reference = nullptr; });
        for (std::thread& thread : threads)
            thread.join();
    }
}

TEST(Threads, CopyAndChangeSharedOctets)
{
    const CBinaryData shared(L"octets that all threads share");
    const CBinaryData expected(shared.GetData(), shared.GetLength(), false);
    EXPECT_EQ(0, FailuresInThreads([&](int number) {
        CBinaryData mine(shared);
        CBinaryData other(mine);
        *mine[0] = static_cast<unsigned char>(number + 1);
        other.Append(static_cast<unsigned char>(number));
        return *mine[0] == number + 1 && other.GetLength() == shared.GetLength() + 1 && shared == expected;
    }));
}

TEST(Threads, KeepTheirValuesWhileAnotherThreadChangesTheLocale)
{
    const char* const before = std::setlocale(LC_ALL, nullptr);
    const std::string restored = before ? before : "C";
    std::atomic<bool> isDone{false};
    std::thread changing([&] {
        for (int i = 0; !isDone; ++i)
            std::setlocale(LC_ALL, i % 3 == 0 ? "de_DE.UTF-8" : i % 3 == 1 ? "tr_TR.UTF-8" : "C");
    });
    EXPECT_EQ(0, RoundTripsWith(CSerializationContext::m_defaultContext));
    TestObject object(OrderClass());
    object.FromXml(orderXml);
    const std::wstring text = object.ToXml(false, false);
    isDone = true;
    changing.join();
    std::setlocale(LC_ALL, restored.c_str());
    EXPECT_EQ(Narrow(object.ToXml(false, false)), Narrow(text));
    EXPECT_NE(std::wstring::npos, text.find(L"<price>1234.5</price><weight>0.125</weight>"));
}
