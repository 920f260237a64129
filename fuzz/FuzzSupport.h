// SPDX-License-Identifier: MIT
#ifndef FUZZ_FUZZSUPPORT_H
#define FUZZ_FUZZSUPPORT_H

#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/ZrException.h"
#include "support/TestClass.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <new>
#include <stdexcept>
#include <string>

namespace ZrXmlLib16 {
class CXmlDocument;
class CXmlObjectBase;
}

namespace Fuzz {

/// Hands out the octets of an input as choices, zeros once they are used up. Refers to the input.
class InputReader {
public:
    InputReader(const std::uint8_t* data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }
    unsigned Octet() { return m_next == m_end ? 0U : *m_next++; }
    bool Flag() { return (Octet() & 1U) != 0; }
    /// A number below the limit, which is at most 65,536 and above 0.
    unsigned Below(unsigned limit)
    {
        const unsigned value = limit > 256 ? Octet() * 256U + Octet() : Octet();
        return value % limit;
    }
    std::uint64_t Bits64();
    bool AtEnd() const { return m_next == m_end; }
    const std::uint8_t* Rest() const { return m_next; }
    std::size_t RestSize() const { return static_cast<std::size_t>(m_end - m_next); }

private:
    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};

/// Runs the action. @return whether it succeeded; exceptions that no input may cause pass through.
template <class Action> bool Tolerate(Action action)
{
    try {
        action();
        return true;
    } catch (const ZrXmlLib16::CZrException&) {
    } catch (const std::bad_alloc&) {
    } catch (const std::length_error&) {
    }
    return false;
}

/// Ends the process, with the two texts, when they differ.
void RequireEqual(const std::string& what, const std::wstring& expected, const std::wstring& actual);
void Require(bool condition, const char* what);
/// Runs the action; an exception of the library ends the process, with the message.
void RequireSuccess(const std::string& what, const std::function<void()>& action);

/// Limits that keep every input fast.
void LowerLimits(ZrXmlLib16::CSerializationContext& context);
/// Tolerates wrong counts, unknown attributes, other namespaces, and either unknown elements or missing ones.
void IgnoreFaults(ZrXmlLib16::CSerializationContext& context, bool unknownElements);

/// Asks a document for everything, without recursion.
void VisitDocument(const ZrXmlLib16::CXmlDocument& document);

/// A class that takes any document with any content: every attribute and every child is kept.
TestSupport::TestClass AnyClass();

/// Reads an input into a document tree, then into objects, and writes what was read.
struct ReadActions {
    std::function<void(ZrXmlLib16::CXmlDocument& document)> intoDocument;
    std::function<void(ZrXmlLib16::CXmlObjectBase& object)> intoObject;
};
void RunReadActions(const ReadActions& actions, const ZrXmlLib16::CSerializationContext& context);

} // namespace Fuzz

#endif
