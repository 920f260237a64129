// SPDX-License-Identifier: MIT
// Converts documents between formats without knowing their schema.
#include "Bytes.h"
#include "Options.h"
#include "ZrXmlLib16/ErrorReport.h"
#include "ZrXmlLib16/Version.h"

#include <cstdio>
#include <exception>

namespace {

using Convert::Options;
using ZrXmlLib16::CZrException;

enum ExitStatus : int { Exit_Done = 0, Exit_Failed = 1, Exit_WrongUsage = 2 };

std::string DisplayName(const std::string& fileName, const char* standardName)
{
    return fileName == Convert::STANDARD_STREAM ? standardName : fileName;
}

/// Runs a step. When it fails, standard error gets the report of the cause.
/// @return whether it succeeded.
template <class Step> bool Try(const std::string& description, const Step& step)
{
    std::string cause;
    try {
        step();
        return true;
    } catch (const CZrException& exception) {
        cause = FormatReport(exception);
    } catch (const std::exception& exception) {
        cause = exception.what();
    }
    std::fprintf(stderr, "zrconvert: cannot %s\n%s\n", description.c_str(), cause.c_str());
    return false;
}

int PrintText(const std::string& text)
{
    const bool done =
        Try("write standard output", [&] { Convert::WriteBytes(Convert::STANDARD_STREAM, text.data(), text.size()); });
    return done ? Exit_Done : Exit_Failed;
}

int RunConversion(const Options& options)
{
    Convert::Document document;
    ZrXmlLib16::CBinaryData converted;
    const bool done = Try("read " + DisplayName(options.input, "standard input"), [&] {
        const Convert::Bytes bytes = Convert::ReadBytes(options.input);
        const Convert::Format& from = options.from ? *options.from : Convert::RecogniseFormat(bytes);
        document = from.read(bytes, options.settings);
    }) && Try("write " + DisplayName(options.output, "standard output"), [&] {
        converted = options.to->write(document, options.settings);
        Convert::WriteBytes(options.output, converted.GetData(), converted.GetLength());
    });
    return done ? Exit_Done : Exit_Failed;
}

} // namespace

int main(int argc, char** argv)
{
    ZrXmlLib16::Register(16, 1, "", "", "");
    try {
        const Options options = Convert::ParseOptions(argc, argv);
        switch (options.action) {
        case Options::Action_Help:
            return PrintText(Convert::MakeHelp());
        case Options::Action_Version:
            return PrintText("zrconvert " ZRCONVERT_VERSION "\n");
        case Options::Action_Convert:
            return RunConversion(options);
        }
    } catch (const Convert::UsageError& error) {
        std::fprintf(stderr, "zrconvert: %s\nTry 'zrconvert --help'.\n", error.what());
    }
    return Exit_WrongUsage;
}
