// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_VERSION_H
#define ZRXMLLIB16_VERSION_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// Announces the version of the code generator whose classes this program uses. Called once by generated code before
/// any object is written or read; the classes run only against a library of the same version. The texts are not
/// evaluated.
ZRXML_API void Register(int major, int minor, const char* text1, const char* text2, const char* text3);
/// The registered generator version, 0 until Register was called.
ZRXML_API int GetRegisteredMajor();
/// The minor part of that version.
ZRXML_API int GetRegisteredMinor();

} // namespace ZrXmlLib16

#endif
