// SPDX-License-Identifier: MIT
#ifndef XML_CONVERTEDTEXTSCOPE_H
#define XML_CONVERTEDTEXTSCOPE_H

namespace ZrXmlLib16 {

/// While it lives, the XML text that this thread reads was made by the library, of JSON or of an untyped element: its
/// lines mean nothing to the caller, so that elements and failures get no position.
class ConvertedTextScope {
public:
    ConvertedTextScope() noexcept;
    ~ConvertedTextScope();
    ConvertedTextScope(const ConvertedTextScope&) = delete;
    ConvertedTextScope& operator=(const ConvertedTextScope&) = delete;

    /// Whether this thread is inside of one.
    static bool IsActive() noexcept;
};

} // namespace ZrXmlLib16

#endif
