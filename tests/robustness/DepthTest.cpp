// SPDX-License-Identifier: MIT
// Nesting costs heap, not stack: documents of any depth are read, copied, written and destroyed in small threads.
#include "fastinfoset/Octets.h"
#include "robustness/Measure.h"
#include "support/Failure.h"

#include <algorithm>
#include <cstring>

#include <sys/mman.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

constexpr std::size_t SMALL_STACK = 512U << 10;
constexpr std::size_t USUAL_STACK = 8U << 20;
constexpr std::size_t DEPTHS[] = {100000, 1000000};

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool HAS_RELEASE_FRAMES = false;
#else
constexpr bool HAS_RELEASE_FRAMES = true;
#endif

TestClass NodeClass()
{
    static const TestClass node = [] {
        TestClass type = Class(L"n");
        return type.Cls(L"n", type).Opt().Prim(L"x", ItemType_i4).Opt().Attr(L"id");
    }();
    return node;
}

std::string NestedXml(std::size_t depth)
{
    return Repeated("<n>", depth) + Repeated("</n>", depth);
}

std::string NestedInfoset(std::size_t depth)
{
    return FastInfoset("3C 00'n'") + std::string(depth - 1, '\0') + std::string(depth / 2, '\xFF')
        + std::string(depth % 2 + 1, '\xF0');
}

std::string NestedJson(std::size_t depth)
{
    return Repeated("{\"n\": ", depth) + "1" + Repeated("}", depth);
}

const unsigned char* Bytes(const std::string& octets)
{
    return reinterpret_cast<const unsigned char*>(octets.data());
}

template <class Element> std::size_t DepthOf(const Element* element, const Element* (*first)(const Element*))
{
    std::size_t depth = 0;
    for (; element; element = first(element))
        ++depth;
    return depth;
}

const CXmlElement* FirstNode(const CXmlElement* element)
{
    return element->GetFirstElement();
}

const CElement* FirstElement(const CElement* element)
{
    const CSmartPtr<CElementCol> children = element->GetElements();
    return children->GetCount() > 0 ? children->Item(0) : nullptr;
}

void WriteNested(CXmlWriter& writer, std::size_t depth)
{
    for (std::size_t i = 0; i < depth; ++i)
        writer.WriteStartElement(L"n", L"");
    for (std::size_t i = 0; i < depth; ++i)
        writer.WriteEndElement();
}

/// Runs the action in a thread of its own and tells how much of its stack it wrote to.
std::size_t StackOf(const std::function<void()>& action)
{
    constexpr std::size_t SIZE = 64U << 20;
    constexpr unsigned char UNTOUCHED = 0xA5;
    void* const memory = mmap(nullptr, SIZE, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        throw std::bad_alloc();
    std::memset(memory, UNTOUCHED, SIZE);
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, memory, SIZE);
    RunInThread(attributes, action);
    const auto* const begin = static_cast<const unsigned char*>(memory);
    const auto* const used = std::find_if(begin, begin + SIZE, [](unsigned char octet) { return octet != UNTOUCHED; });
    const std::size_t size = static_cast<std::size_t>(begin + SIZE - used);
    munmap(memory, SIZE);
    return size;
}

} // namespace

TEST(Nesting, DocumentsOfAnyDepthFitASmallThread)
{
    for (const std::size_t depth : DEPTHS) {
        for (const std::string& octets : {NestedXml(depth), NestedInfoset(depth)}) {
            for (const std::size_t stack : {SMALL_STACK, USUAL_STACK})
                RunOnStack(stack, [&] {
                    CXmlDocument document;
                    document.LoadXmlStream(Bytes(octets), octets.size());
                    EXPECT_EQ(depth, DepthOf<CXmlElement>(document.GetDocumentElement(), FirstNode));
                });
            // Cut off, so that everything is destroyed while it is open.
            RunOnStack(SMALL_STACK, [&] {
                CXmlDocument document;
                EXPECT_THROW(document.LoadXmlStream(Bytes(octets), octets.size() / 2), CZrException);
            });
        }
    }
}

TEST(Nesting, ObjectsStopAtTheirLimitAndJsonAtItsOwn)
{
    CSerializationContext context;
    context.SetMaxDepth(HAS_RELEASE_FRAMES ? 100 : 20);
    for (const std::size_t depth : DEPTHS)
        for (const std::size_t stack : {SMALL_STACK, USUAL_STACK}) {
            RunOnStack(stack, [&] {
                TestObject object(NodeClass());
                const std::string xml = NestedXml(depth), infoset = NestedInfoset(depth), json = NestedJson(depth);
                for (const std::string& octets : {xml, infoset})
                    EXPECT_EQ(0U, FailureOf([&] {
                        object.FromXmlStream(Bytes(octets), octets.size(), context);
                    }).find("Zr: The element nesting is too deep."));
                EXPECT_NE(std::string::npos,
                    FailureOf([&] { object.FromJsonStream(Bytes(json), json.size(), context); }).find("Validation: "));
            });
        }
}

TEST(Nesting, UntypedTreesOfAnyDepthAreCopiedAndDestroyed)
{
    for (const std::size_t depth : DEPTHS) {
        if (!HAS_RELEASE_FRAMES && depth > DEPTHS[0])
            break; // the sanitizers would take several gibibytes
        RunOnStack(SMALL_STACK, [depth] {
            const std::string xml = NestedXml(depth);
            const CSmartPtr<CElement> element = new CElement;
            {
                CXmlDocument document;
                document.LoadXmlStream(Bytes(xml), xml.size());
                element->CopyXmlElement(document.GetDocumentElement());
            }
            EXPECT_EQ(depth, DepthOf<CElement>(element, FirstElement));
            if (depth == DEPTHS[0]) { // a gigabyte is enough
                const CSmartPtr<CElement> clone = element->Clone();
                EXPECT_EQ(depth, DepthOf<CElement>(clone, FirstElement));
            }
            EXPECT_EQ("Zr: The element nesting is too deep.", FailureOf([&] {
                CSerializationContext context;
                context.SetMaxDepth(20);
                element->ToXml(false, false, EOL_LF, context);
            }));
        });
    }
}

TEST(Nesting, WritersTakeAnyDepth)
{
    for (const std::size_t depth : DEPTHS)
        RunOnStack(SMALL_STACK, [depth] {
            CTextStream xmlText;
            CXmlTextWriter xml(xmlText);
            xml.SetFormat(false); // indentation grows with the square of the depth
            xml.Open();
            WriteNested(xml, depth);
            xml.Close();
            EXPECT_EQ(7 * depth - 3, xmlText.GetLength());

            CTextStream jsonText;
            CJsonTextWriter json(jsonText);
            json.SetFormat(false);
            json.Open();
            json.WriteStartDocument();
            WriteNested(json, depth);
            json.WriteEndDocument();
            json.Close();
            EXPECT_LT(6 * depth, jsonText.GetLength());

            const CFastInfosetContext settings;
            CBinaryData octets;
            CBinaryStream stream(octets);
            CFastInfosetWriter infoset(settings, stream);
            infoset.WriteStartDocument(FInfoDecl_None);
            WriteNested(infoset, depth);
            infoset.WriteEndDocument();
            CXmlDocument document;
            document.LoadXmlStream(octets.GetData(), octets.GetLength());
            EXPECT_EQ(depth, DepthOf<CXmlElement>(document.GetDocumentElement(), FirstNode));
        });
}

TEST(Nesting, ALevelOfAWalkTakesAtMostFourKibibytesOfStack)
{
    const auto untyped = [](const std::string& xml) {
        const CSmartPtr<CElement> element = new CElement;
        element->FromXmlStream(Bytes(xml), xml.size());
        element->ToXml();
        element->ToJson();
    };
    const auto read = [](const std::string& xml) {
        TestObject object(NodeClass());
        object.FromXmlStream(Bytes(xml), xml.size());
    };
    const auto write = [](const std::string& xml) {
        TestObject object(NodeClass());
        object.FromXmlStream(Bytes(xml), xml.size());
        object.ToXml();
        object.ToJson();
        object.ToFastInfosetStream();
    };
    // A cycle ends with one exception for each level.
    const auto fail = [](const std::string& xml) {
        CSerializationContext context;
        context.SetMaxDepth(static_cast<int>(xml.size() / 7));
        const CSmartPtr<TestObject> object = NodeClass().Create();
        (*object)[L"n"].SetXmlObject(object);
        EXPECT_NE("", Write(*object, context));
        (*object)[L"n"].Clear();
    };
    const struct {
        const char* name;
        std::function<void(const std::string&)> run;
    } rows[] = {{"untyped", untyped}, {"read", read}, {"write", write}, {"fail", fail}};
    for (const auto& row : rows) {
        const std::string few = NestedXml(100), many = NestedXml(1000);
        const std::size_t perLevel = (StackOf([&] { row.run(many); }) - StackOf([&] { row.run(few); })) / (1000 - 100);
        RecordProperty(row.name, std::to_string(perLevel));
        if (HAS_RELEASE_FRAMES)
            EXPECT_GE(4096U, perLevel) << row.name;
        else
            EXPECT_GE(65536U, perLevel) << row.name;
    }
}
