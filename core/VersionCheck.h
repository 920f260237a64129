// SPDX-License-Identifier: MIT
#ifndef CORE_VERSIONCHECK_H
#define CORE_VERSIONCHECK_H

namespace ZrXmlLib16 {

/// First statement of every entry point: throws CZrException, after a notice on standard output and standard error,
/// unless the registered generator version is the library's own.
void CheckVersion();

} // namespace ZrXmlLib16

#endif
