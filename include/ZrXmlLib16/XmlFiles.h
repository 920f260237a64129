// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLFILES_H
#define ZRXMLLIB16_XMLFILES_H

#include "ZrXmlLib16/Utf8.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace ZrXmlLib16 {

/// A file as the functions below take it: a `std::filesystem::path`, or text in UTF-8. An argument only: it borrows
/// what it is made of. (It is no path itself because `<filesystem>` would cost every includer more than this library.)
class FileArgument {
public:
    /// Of text: `const char*`, `std::string`, `std::string_view`.
    template <class Text, std::enable_if_t<std::is_convertible<const Text&, std::string_view>::value, int> = 0>
    FileArgument(const Text& text)
        : m_native(text)
    {
    }
    /// Of a path: of whatever has its `native()`.
    template <class Path,
        std::enable_if_t<std::is_convertible<decltype(std::declval<const Path&>().native()), std::string_view>::value
                && std::is_lvalue_reference<decltype(std::declval<const Path&>().native())>::value,
            int> = 0>
    FileArgument(const Path& path)
        : m_native(path.native())
    {
    }

    /// The octets of the name.
    std::string_view GetNative() const { return m_native; }

private:
    std::string_view m_native;
};

/// The file name as the entry points take it.
/// @throws CZrInvalidParamException for a name that is not UTF-8.
inline std::wstring FileNameOf(const FileArgument& file)
{
    std::wstring name = FromUtf8(file.GetNative());
    if (ToUtf8(name.c_str()) != file.GetNative()) {
        throw CZrInvalidParamException(L"The file name [" + name + L"] is not UTF-8.");
    }
    return name;
}

/// Fills the object from a file.
/// @throws CZrException as CXmlObjectBase::FromXmlFile and FileNameOf do.
inline void ReadXmlFile(CXmlObjectBase& object, const FileArgument& file,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.FromXmlFile(FileNameOf(file).c_str(), context);
}

/// Loads a file into a tree.
/// @throws CZrException as CXmlDocument::Load and FileNameOf do.
inline void ReadXmlFile(CXmlDocument& tree, const FileArgument& file)
{
    tree.Load(FileNameOf(file).c_str());
}

/// Writes the object into a file.
/// @throws CZrException as CXmlObjectBase::ToXmlFile and FileNameOf do.
inline void WriteXmlFile(const CXmlObjectBase& object, const FileArgument& file,
    const XmlOutputOptions& options = XmlOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.ToXmlFile(FileNameOf(file).c_str(), options.includeHeader, options.formatted, options.encoding, options.eol,
        context, options.compression);
}

/// Fills the object from a file of JSON.
/// @throws CZrException as CXmlObjectBase::FromJsonFile and FileNameOf do.
inline void ReadJsonFile(CXmlObjectBase& object, const FileArgument& file,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.FromJsonFile(FileNameOf(file).c_str(), context);
}

/// Writes the object into a file as JSON.
/// @throws CZrException as CXmlObjectBase::ToJsonFile and FileNameOf do.
inline void WriteJsonFile(const CXmlObjectBase& object, const FileArgument& file,
    const JsonOutputOptions& options = JsonOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.ToJsonFile(
        FileNameOf(file).c_str(), options.formatted, options.encoding, options.eol, context, options.compression);
}

/// Writes the object into a file as Fast Infoset, which ReadXmlFile reads.
/// @throws CZrException as CXmlObjectBase::ToFastInfosetFile and FileNameOf do.
inline void WriteFastInfosetFile(const CXmlObjectBase& object, const FileArgument& file,
    const FastInfosetOutputOptions& options = FastInfosetOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.ToFastInfosetFile(FileNameOf(file).c_str(), options.declaration, context, options.compression);
}

} // namespace ZrXmlLib16

#endif
