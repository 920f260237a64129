// SPDX-License-Identifier: MIT
// Every allocation of every operation fails once, alone or with all that follow: what leaves is std::bad_alloc or an
// exception of the library, nothing leaks, and the same context and object work afterwards.
#include "faults/FaultInjection.h"
#include "support/Failure.h"

#include <filesystem>
#include <functional>
#include <string>

#include <unistd.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const wchar_t orderXml[] =
    L"<order xmlns='urn:o' id='7' xmlns:x='urn:x' x:extra='e'><name>caf\u00e9 &amp; more than a short text"
    L"</name><item><qty>1</qty></item><item><qty>2</qty></item><price>12.50</price>"
    L"<on>2024-02-29T23:59:58</on><data>AP9/QQ==</data><big>123456789012345678901234567890</big>"
    L"<z:any xmlns:z='urn:z' z:a='1'><z:b>some text of an untyped element</z:b></z:any></order>";

TestClass OrderClass()
{
    static const TestClass order = [] {
        const TestClass item = Class(L"item").In(L"urn:o").Prim(L"qty", ItemType_i4).Ns(L"urn:o");
        TestClass type = Class(L"order").In(L"urn:o").Prim(L"name").Ns(L"urn:o");
        type.Cls(L"item", item).Ns(L"urn:o").Col().Prim(L"price", ItemType_decimal).Ns(L"urn:o");
        type.Prim(L"on", ItemType_datetime).Ns(L"urn:o").Prim(L"data", ItemType_base64Binary).Ns(L"urn:o");
        type.Prim(L"big", ItemType_integer).Ns(L"urn:o");
        return type.Any(L"##other").Opt().Attr(L"id", ItemType_i4).AnyAttr(L"others", L"##other");
    }();
    return order;
}

class AllocationFaults : public testing::Test {
protected:
    AllocationFaults()
        : m_object(OrderClass())
        , m_other(OrderClass())
    {
        for (const wchar_t* prefix : {L"o", L"x", L"z"})
            m_context.GetNamespaceAliases().Add(prefix, (std::wstring(L"urn:") + prefix).c_str());
        m_context.GetFIContext();
        m_context.GetJsonContext();
        m_object.FromXml(orderXml, m_context);
        m_xml = m_object.ToXmlStream(true, false, Encoding_UTF8, EOL_LF, m_context);
        m_zipped = m_object.ToXmlStream(true, false, Encoding_UTF8, EOL_LF, m_context, Compression_GZip);
        m_json = m_object.ToJsonStream(false, Encoding_UTF8, EOL_LF, m_context);
        m_infoset = m_object.ToFastInfosetStream(FInfoDecl_None, m_context);
        m_expected = Narrow(DescribeObject(m_object));
    }

    /// Fails each allocation of the action in turn.
    /// @param check whether everything that the action uses still works.
    static void FailEach(const std::function<void()>& action, const std::function<bool()>& check)
    {
        action(); // what is made once and kept does not count
        ASSERT_TRUE(check());
        for (const FaultMode mode : {FaultMode::Once, FaultMode::Forever}) {
            std::size_t failing = 1;
            for (bool hasFailed = true; hasFailed; ++failing) {
                const long before = FaultInjection::GetLiveBlocks();
                const char* const surprise = RunWithFault(action, failing, mode, hasFailed);
                const long after = FaultInjection::GetLiveBlocks();
                ASSERT_STREQ(nullptr, surprise) << "allocation " << failing;
                ASSERT_EQ(before, after) << "allocation " << failing
                                         << (mode == FaultMode::Once ? " alone" : " and on");
                ASSERT_TRUE(check()) << "allocation " << failing;
            }
            EXPECT_LT(3U, failing);
        }
    }

    CSerializationContext m_context;
    TestObject m_object;
    TestObject m_other;
    CBinaryData m_xml, m_zipped, m_json, m_infoset;
    std::string m_expected;

private:
    static const char* RunWithFault(
        const std::function<void()>& action, std::size_t failing, FaultMode mode, bool& hasFailed)
    {
        const char* surprise = nullptr;
        const FaultInjection injection(failing, mode);
        try {
            action();
        } catch (const std::bad_alloc&) {
        } catch (const CZrException& failure) {
            // A shortage of memory is not to be taken for a mistake of the document.
            if (failure.GetFullMessage().find(L"not well-formed") != std::wstring::npos)
                surprise = "a failure of the document";
        } catch (...) {
            surprise = "an exception of another kind";
        }
        hasFailed = FaultInjection::HasFailed();
        return surprise;
    }
};

} // namespace

TEST_F(AllocationFaults, OfReading)
{
    const std::function<void(TestObject&)> reads[] = {[&](TestObject& to) { to.FromXmlStream(m_xml, m_context); },
        [&](TestObject& to) { to.FromXml(orderXml, m_context); },
        [&](TestObject& to) { to.FromXmlStream(m_zipped, m_context); },
        [&](TestObject& to) { to.FromXmlStream(m_infoset, m_context); },
        [&](TestObject& to) { to.FromJsonStream(m_json, m_context); }};
    for (const auto& read : reads) {
        SCOPED_TRACE(&read - reads);
        // Into a new object each time, so that what is left in memory is a leak; and into one that is kept.
        FailEach([&] { read(*OrderClass().Create()); },
            [&] {
                read(m_other);
                return Narrow(DescribeObject(m_other)) == m_expected;
            });
    }
}

TEST_F(AllocationFaults, OfReadingIntoAnObjectThatIsKept)
{
    for (std::size_t failing = 1;; ++failing) {
        bool hasFailed = false;
        {
            const FaultInjection injection(failing, FaultMode::Once);
            try {
                m_other.FromXmlStream(m_xml, m_context);
            } catch (const std::bad_alloc&) {
            } catch (const CZrException&) {
            }
            hasFailed = FaultInjection::HasFailed();
        }
        m_other.FromXmlStream(m_xml, m_context);
        ASSERT_EQ(m_expected, Narrow(DescribeObject(m_other)));
        if (!hasFailed)
            break;
    }
}

TEST_F(AllocationFaults, OfReportingAFailure)
{
    const wchar_t* const documents[] = {L"<order xmlns='urn:o'><name>x</name><unknown/></order>", L"<order></other>",
        L"<order xmlns='urn:o' id='x'/>", L"<order xmlns='urn:o'><name>x</name><item><qty>x</qty></item></order>"};
    for (const wchar_t* document : documents)
        FailEach(
            [&] {
                try {
                    OrderClass().Create()->FromXml(document, m_context);
                } catch (const CZrException& failure) {
                    CZrException copy(failure);
                    copy.GetFullMessage();
                }
            },
            [&] { return true; });
}

TEST_F(AllocationFaults, OfWriting)
{
    const auto write = [&](XmlEncoding encoding, CompressionType compression) {
        return m_object.ToXmlStream(true, false, encoding, EOL_CRLF, m_context, compression);
    };
    const auto isReadable = [&](const CBinaryData& octets) {
        m_other.FromXmlStream(octets, m_context);
        return Narrow(DescribeObject(m_other)) == m_expected;
    };
    FailEach([&] { m_object.ToXml(true, true, EOL_LF, m_context); },
        [&] { return m_object.ToXml(true, true, EOL_LF, m_context).size() > 300; });
    for (const CompressionType compression : {Compression_None, Compression_GZip, Compression_ZLib})
        FailEach(
            [&] { write(Encoding_UTF8, compression); }, [&] { return isReadable(write(Encoding_UTF8, compression)); });
    FailEach([&] { write(Encoding_UTF16, Compression_None); }, [&] { return true; });
    FailEach([&] { m_object.ToFastInfosetStream(FInfoDecl_None, m_context); },
        [&] { return m_object.ToFastInfosetStream(FInfoDecl_None, m_context) == m_infoset; });
    FailEach([&] { m_object.ToJsonStream(false, Encoding_UTF8, EOL_LF, m_context); },
        [&] { return m_object.ToJsonStream(false, Encoding_UTF8, EOL_LF, m_context) == m_json; });
}

TEST_F(AllocationFaults, OfCompression)
{
    // Long enough that the decompressor keeps what it gave out, which takes memory of its own.
    std::string octets(200000, 'x');
    CBinaryData plain;
    plain.SetBuffer(reinterpret_cast<unsigned char*>(&octets[0]), octets.size());
    for (const CompressionType type : {Compression_GZip, Compression_ZLib}) {
        CBinaryData zipped(plain);
        CZrZip::CompressData(zipped, type);
        FailEach(
            [&] {
                CBinaryData copy(plain);
                CZrZip::CompressData(copy, type);
            },
            [&] { return zipped.GetLength() < plain.GetLength(); });
        const auto unzipped = [&] {
            CBinaryData result;
            CZrZip::DecompressData(zipped.GetData(), zipped.GetLength(), octets.size(), result);
            return result;
        };
        FailEach(unzipped, [&] { return unzipped() == plain; });
    }
}

TEST_F(AllocationFaults, OfFiles)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("zrxml_faults_" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const std::wstring name = folder.wstring() + L"/order.xml";
    for (const bool isDirect : {false, true}) {
        AsyncToXmlFile(isDirect);
        FailEach([&] { m_object.ToXmlFile(name.c_str(), true, false, Encoding_UTF8, EOL_LF, m_context); },
            [&] {
                m_object.ToXmlFile(name.c_str(), true, false, Encoding_UTF8, EOL_LF, m_context);
                return std::filesystem::file_size(name) == m_xml.GetLength();
            });
    }
    AsyncToXmlFile(false);
    FailEach([&] { OrderClass().Create()->FromXmlFile(name.c_str(), m_context); }, [&] { return true; });
    std::filesystem::remove_all(folder);
}

TEST_F(AllocationFaults, OfUntypedElements)
{
    const CSmartPtr<CElement> element = new CElement;
    element->FromXml(orderXml);
    const std::wstring text = element->ToXml(false, false);
    FailEach([&] { element->Clone(); }, [&] { return element->Clone()->ToXml(false, false) == text; });
    FailEach(
        [&] {
            const CSmartPtr<CElement> read = new CElement;
            read->FromXml(orderXml);
            read->GetElements()->Add(L"more", L"urn:more");
            read->GetAttributes()->Add(L"urn:a", L"value", L"name");
        },
        [&] { return element->ToXml(false, false) == text; });
    FailEach([&] { const CSmartPtr<CElement> copy = new CElement(&m_object, L""); }, [] { return true; });
}

TEST_F(AllocationFaults, OfCollections)
{
    const auto fill = [] {
        CstringCol texts(
            L"t", L"", 0, -1, L"[a-z ]+", -1, -1, L"", L"", L"", L"", -1, -1, -1, CWhitespaceUtils::Rule_None, L"");
        for (int i = 0; i < 20; ++i)
            texts.AddAt(i / 2, L"a text that does not fit into the object");
        texts.Remove(3);
        CAttributeCol attributes(L"", L"##any", L"urn:t");
        for (int i = 0; i < 20; ++i)
            attributes.Add(L"urn:a", L"some value that is long", (L"name" + std::to_wstring(i)).c_str());
        attributes.Remove(2);
        CElementCol elements(L"", L"##any", L"urn:t", 0, -1);
        for (int i = 0; i < 5; ++i)
            elements.Add(L"e", L"urn:t");
        elements.GetNodeAtIndex(3);
    };
    FailEach(fill, [] { return true; });

    CAttributeCol kept(L"", L"##any", L"urn:t");
    for (int i = 0; i < 16; ++i)
        kept.Add(L"urn:a", L"v", (L"name" + std::to_wstring(i)).c_str());
    // Whether it fails or not, an item is found by its name and by its index, or not at all.
    for (std::size_t failing = 1; failing < 8; ++failing) {
        const FaultInjection injection(failing, FaultMode::Once);
        try {
            kept.Add(L"urn:a", L"v", (L"more" + std::to_wstring(failing)).c_str());
        } catch (const std::bad_alloc&) {
        }
    }
    for (int i = 0; i < kept.GetCount(); ++i)
        EXPECT_EQ(kept.Item(i), kept.Find(kept.Item(i)->GetName().c_str(), L"urn:a"));
    for (int failing = 1; failing < 8; ++failing) {
        const CAttribute* const found = kept.Find((L"more" + std::to_wstring(failing)).c_str(), L"urn:a");
        bool isListed = !found;
        for (int i = 0; i < kept.GetCount(); ++i)
            isListed = isListed || kept.Item(i) == found;
        EXPECT_TRUE(isListed);
    }
}

TEST_F(AllocationFaults, OfContexts)
{
    FailEach(
        [&] {
            CSerializationContext copy(m_context);
            CSerializationContext assigned;
            assigned = copy;
            assigned.GetProcessingInstructions().push_back(L"<?pi a processing instruction?>");
            assigned.GetNamespaceAliases().Add(L"prefix", L"urn:something-long-enough");
            assigned.GetAdditionalRootAttributes();
            CSerializationContext fresh;
            fresh.GetFIContext().SetSuggestedValues();
            fresh.GetFIContext().SetExternalVocabularyURI(L"urn:a-vocabulary-of-some-length");
            fresh.GetJsonContext().SetRootElementName(L"a name that is long enough");
            const CFastInfosetContext infoset(fresh.GetFIContext());
        },
        [&] { return m_object.ToFastInfosetStream(FInfoDecl_None, m_context) == m_infoset; });
}

TEST_F(AllocationFaults, OfValues)
{
    FailEach(
        [] {
            CBinaryData data(L"some data that is shared");
            CBinaryData copy(data);
            *copy[1] = 7;
            copy.Append(data);
            copy.SetAsBase64(copy.GetAsBase64().c_str());
            data.SetAsHexString(copy.GetAsHexString().c_str());
            delete[] data.ReleaseData();
            ZrVariant value;
            for (const ItemType type : {ItemType_decimal, ItemType_integer, ItemType_string}) {
                value.FromString(L"12345678901234567890123456789012345", type, CWhitespaceUtils::Rule_None);
                ZrVariant other(value);
                other = value;
                other.ToString(L"");
            }
            CPrimitiveRestrictions facets;
            facets.m_pattern = L"(a|b)*[c-z]{2,}";
            CXmlObjectHelper::CheckRestrictionForstring(L"item", L"ababababcd", facets);
            CXmlObjectHelper::CheckRestrictionForstring(L"item", std::wstring(3000, L'a') + L"cd", facets);
        },
        [] { return true; });
}
