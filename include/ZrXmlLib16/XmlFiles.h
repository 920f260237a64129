// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLFILES_H
#define ZRXMLLIB16_XMLFILES_H

#include "ZrXmlLib16/Utf8.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"

#include <filesystem>
#include <string>

namespace ZrXmlLib16 {

/// The path as the file name that the entry points take.
/// @throws CZrInvalidParamException for a path that is not UTF-8.
inline std::wstring FileNameOf(const std::filesystem::path& file)
{
    std::wstring name = FromUtf8(file.native());
    if (ToUtf8(name.c_str()) != file.native()) {
        throw CZrInvalidParamException(L"The file name [" + name + L"] is not UTF-8.");
    }
    return name;
}

/// Fills the object from a file.
/// @throws CZrException as CXmlObjectBase::FromXmlFile and FileNameOf do.
inline void ReadXmlFile(CXmlObjectBase& object, const std::filesystem::path& file,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.FromXmlFile(FileNameOf(file).c_str(), context);
}

/// Loads a file into a tree.
/// @throws CZrException as CXmlDocument::Load and FileNameOf do.
inline void ReadXmlFile(CXmlDocument& tree, const std::filesystem::path& file)
{
    tree.Load(FileNameOf(file).c_str());
}

/// Writes the object into a file.
/// @throws CZrException as CXmlObjectBase::ToXmlFile and FileNameOf do.
inline void WriteXmlFile(const CXmlObjectBase& object, const std::filesystem::path& file,
    const XmlOutputOptions& options = XmlOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.ToXmlFile(FileNameOf(file).c_str(), options.includeHeader, options.formatted, options.encoding, options.eol,
        context, options.compression);
}

/// Fills the object from a file of JSON.
/// @throws CZrException as CXmlObjectBase::FromJsonFile and FileNameOf do.
inline void ReadJsonFile(CXmlObjectBase& object, const std::filesystem::path& file,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.FromJsonFile(FileNameOf(file).c_str(), context);
}

/// Writes the object into a file as JSON.
/// @throws CZrException as CXmlObjectBase::ToJsonFile and FileNameOf do.
inline void WriteJsonFile(const CXmlObjectBase& object, const std::filesystem::path& file,
    const JsonOutputOptions& options = JsonOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.ToJsonFile(
        FileNameOf(file).c_str(), options.formatted, options.encoding, options.eol, context, options.compression);
}

/// Writes the object into a file as Fast Infoset, which ReadXmlFile reads.
/// @throws CZrException as CXmlObjectBase::ToFastInfosetFile and FileNameOf do.
inline void WriteFastInfosetFile(const CXmlObjectBase& object, const std::filesystem::path& file,
    const FastInfosetOutputOptions& options = FastInfosetOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.ToFastInfosetFile(FileNameOf(file).c_str(), options.declaration, context, options.compression);
}

} // namespace ZrXmlLib16

#endif
