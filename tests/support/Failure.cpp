// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <typeinfo>

using namespace ZrXmlLib16;

namespace TestSupport {

namespace {

/// Cut out of the mangled name.
std::string TypeName(const CZrException& exception)
{
    const std::string mangled = typeid(exception).name();
    const std::size_t begin = mangled.find("CZr") + 3;
    const std::string name = mangled.substr(begin, mangled.find("Exception") - begin);
    return name.empty() ? "Zr" : name;
}

} // namespace

std::string ChainOf(const CZrException& exception)
{
    std::string chain;
    for (const CZrException* part = &exception; part; part = part->GetInnerException())
        chain += (chain.empty() ? "" : " <- ") + TypeName(*part) + ": " + Narrow(part->GetMessage());
    return chain;
}

std::string FailureOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const CZrException& exception) {
        return ChainOf(exception);
    }
    return "";
}

std::string Unprocessed(const std::string& path, const std::string& inner)
{
    return "Validation: Failed to process the element.\nPath: " + path + " <- " + inner;
}

std::string LeftOver(const std::string& path, const std::string& parent, const std::string& child)
{
    return "Zr: Failed read all the elements held within the element [" + parent + "]. The unexpected element [" + child
        + "] remains un processed\nPath: " + path;
}

std::string Read(const TestClass& type, const std::wstring& xml, const CSerializationContext& context)
{
    const CSmartPtr<TestObject> object = type.Create();
    const std::string failure = FailureOf([&] { object->FromXml(xml.c_str(), context); });
    return failure.empty() ? Narrow(DescribeObject(*object)) : failure;
}

std::string Write(const TestObject& object, const CSerializationContext& context)
{
    std::wstring text;
    const std::string failure = FailureOf([&] { text = object.ToXml(false, false, EOL_LF, context); });
    return failure.empty() ? Narrow(text) : failure;
}

} // namespace TestSupport
