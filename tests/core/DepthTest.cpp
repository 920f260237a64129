// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <functional>
#include <pthread.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

// Instrumented and unoptimised frames are several times larger than those of a release build.
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
const std::size_t stackSize = 16U << 20;
#else
const std::size_t stackSize = 4U << 20;
#endif

TestClass NodeClass()
{
    static const TestClass node = [] {
        TestClass type = Class(L"n");
        return type.Cls(L"n", type).Opt();
    }();
    return node;
}

std::wstring Nested(int levels)
{
    std::wstring text;
    for (int i = 0; i < 2 * levels; ++i)
        text += i < levels ? L"<n>" : L"</n>";
    return text;
}

std::string WriteNested(int levels, const CSerializationContext& context = CSerializationContext())
{
    TestObject object(NodeClass());
    object.FromXml(Nested(levels).c_str());
    return Write(object, context);
}

/// Writes an object that holds itself.
std::string WriteCycle(const CSerializationContext& context = CSerializationContext())
{
    const CSmartPtr<TestObject> object = NodeClass().Create();
    (*object)[L"n"].SetXmlObject(object);
    const std::string failure = Write(*object, context);
    (*object)[L"n"].Clear();
    return failure;
}

std::size_t CountOf(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.length()))
        ++count;
    return count;
}

void RunOnSmallStack(std::function<void()> action)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, stackSize);
    pthread_t thread;
    const auto start = [](void* argument) -> void* {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(0, pthread_create(&thread, &attributes, start, &action));
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

const std::string tooDeep = "Zr: The element nesting is too deep.";

} // namespace

TEST(Depth, DefaultLimitFitsASmallThread)
{
    RunOnSmallStack([] {
        EXPECT_EQ(1024U, CountOf(WriteNested(1024), "<n"));
        const std::string reading = Read(NodeClass(), Nested(1025));
        EXPECT_EQ(0U, reading.find(tooDeep + "\nPath: /n/n"));
        EXPECT_EQ(1025U, CountOf(reading, "/n"));
        const std::string writing = WriteCycle();
        EXPECT_EQ(1025U, CountOf(writing, "Validation: Failed to convert the element [n] to XML <- "));
        EXPECT_EQ(tooDeep, writing.substr(writing.rfind("Zr: ")));
    });
}

TEST(Depth, UntypedElementsHaveTheSameLimit)
{
    RunOnSmallStack([] {
        const CSmartPtr<CElement> element = new CElement;
        element->FromXml(Nested(1024).c_str());
        EXPECT_EQ(1024U, CountOf(Narrow(element->ToXml(false, false)), "<n"));
        const std::string reading = FailureOf([&] { element->FromXml(Nested(1025).c_str()); });
        EXPECT_EQ("Zr: The element nesting is too deep.\nPath: /n/n", reading.substr(0, 47));
        EXPECT_EQ(1025U, CountOf(reading, "/n"));
        CXmlDocument document;
        document.LoadXml(Nested(1025).c_str());
        element->CopyXmlElement(document.GetDocumentElement());
        EXPECT_EQ("Zr: The element nesting is too deep.", FailureOf([&] { element->ToXml(); }));
        // Untyped elements and objects are counted together.
        CSerializationContext context;
        context.SetMaxDepth(3);
        const TestClass type = Class(L"a").Any(L"##any");
        EXPECT_EQ("a{AnyElement=<n><n/></n>}", Read(type, L"<a><n><n/></n></a>", context));
        EXPECT_EQ(
            "Zr: The element nesting is too deep.\nPath: /a/n/n/n", Read(type, L"<a><n><n><n/></n></n></a>", context));
    });
}

TEST(Depth, LimitIsTheContexts)
{
    CSerializationContext context;
    context.SetMaxDepth(3);
    EXPECT_EQ("<n><n><n/></n></n>", WriteNested(3, context));
    EXPECT_EQ(4U, CountOf(WriteCycle(context), "Validation: "));
    EXPECT_EQ(tooDeep + "\nPath: /n/n/n/n", Read(NodeClass(), Nested(4), context));
    // The count is given back also after a failure.
    EXPECT_EQ("n{n=n{n=n{}}}", Read(NodeClass(), Nested(3), context));
    context.SetMaxDepth(1);
    EXPECT_EQ("n{}", Read(NodeClass(), L"<n/>", context));
    // Inline groups count nothing.
    const TestClass inner = Class(L"g2").Group().Cls(L"g3", Class(L"g3").Group().Prim(L"x"));
    EXPECT_EQ("a{g2=g2{g3=g3{x=1}}}", Read(Class(L"a").Cls(L"g2", inner), L"<a><x>1</x></a>", context));
}

TEST(Depth, EntryPointsInsideAWalkAddUp)
{
    const TestClass type = Class(L"a").Prim(L"x").Opt();
    TestObject outer(type), inner(type);
    CSerializationContext context;
    outer.m_onAccess = [&](const std::wstring&, bool) { inner.ToXml(false, false, EOL_LF, context); };
    context.SetMaxDepth(1);
    EXPECT_NE(std::string::npos, Write(outer, context).find(tooDeep));
    context.SetMaxDepth(2);
    EXPECT_EQ("<a/>", Write(outer, context));
}

TEST(Depth, UnknownContentMayBeNestedWithoutLimit)
{
    const std::wstring deep = Nested(100000);
    const TestClass type = Class(L"a").Prim(L"x").Opt();
    EXPECT_EQ(LeftOver("/a", "a", "n"), Read(type, L"<a>" + deep + L"</a>"));
    CSerializationContext ignoring;
    ignoring.SetIgnoreUnknownElements(true);
    EXPECT_EQ("a{x=1}", Read(type, L"<a>" + deep + L"<x>1</x></a>", ignoring));
    EXPECT_EQ(0U, Read(NodeClass(), deep).find(tooDeep + "\nPath: /n/n/n"));
}
