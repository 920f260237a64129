// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_OPTIONS_H
#define ZRCONVERT_OPTIONS_H

#include "Formats.h"

#include <stdexcept>
#include <string>

namespace Convert {

/// The command line makes no sense; the text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Options {
    enum Action { Action_Convert, Action_Help, Action_Version };

    Action action = Action_Convert;
    const Format* from = nullptr; // null: recognised from the input
    const Format* to = FindFormat("xml");
    Settings settings;
    std::string input;
    std::string output;
};

/// @throws UsageError
Options ParseOptions(int argc, char** argv);

/// The text of --help.
std::string MakeHelp();

} // namespace Convert

#endif
