// SPDX-License-Identifier: MIT
#include "Options.h"

#include "Bytes.h"

#include <getopt.h>

namespace Convert {

namespace {

enum OptionCode : int {
    Option_From = 1,
    Option_To,
    Option_Format,
    Option_NoFormat,
    Option_Eol,
    Option_Compress,
    Option_KeepCData,
    Option_JsonMode,
    Option_Help,
    Option_Version
};

constexpr option LONG_OPTIONS[] = {
    {"from", required_argument, nullptr, Option_From},
    {"to", required_argument, nullptr, Option_To},
    {"format", no_argument, nullptr, Option_Format},
    {"no-format", no_argument, nullptr, Option_NoFormat},
    {"eol", required_argument, nullptr, Option_Eol},
    {"compress", required_argument, nullptr, Option_Compress},
    {"keep-cdata", no_argument, nullptr, Option_KeepCData},
    {"json-mode", required_argument, nullptr, Option_JsonMode},
    {"help", no_argument, nullptr, Option_Help},
    {"version", no_argument, nullptr, Option_Version},
    {nullptr, 0, nullptr, 0},
};

template <class T> struct Choice {
    const char* name;
    T value;
};

constexpr Choice<ZrXmlLib16::EOLType> LINE_ENDS[] = {{"lf", ZrXmlLib16::EOL_LF}, {"crlf", ZrXmlLib16::EOL_CRLF}};
constexpr Choice<ZrXmlLib16::CompressionType> COMPRESSIONS[] = {
    {"gzip", ZrXmlLib16::Compression_GZip}, {"zlib", ZrXmlLib16::Compression_ZLib}};

constexpr Choice<ZrXmlLib16::JsonRoundTrip> JSON_MODES[] = {{"0", ZrXmlLib16::JsonRoundTrip_Plain},
    {"1", ZrXmlLib16::JsonRoundTrip_Attributes}, {"2", ZrXmlLib16::JsonRoundTrip_Full}};

[[noreturn]] void RefuseValue(const char* optionName, const std::string& value)
{
    throw UsageError("--" + std::string(optionName) + " does not know '" + value + "'");
}

template <class T, std::size_t N>
T ParseChoice(const Choice<T> (&choices)[N], const char* optionName, const std::string& value)
{
    for (const Choice<T>& choice : choices) {
        if (choice.name == value) {
            return choice.value;
        }
    }
    RefuseValue(optionName, value);
}

const Format* ParseFormat(const char* optionName, const std::string& value)
{
    const Format* const format = FindFormat(value);
    if (!format) {
        RefuseValue(optionName, value);
    }
    return format;
}

void Apply(int code, Options& options)
{
    switch (code) {
    case Option_From:
        options.from = std::string(optarg) == "auto" ? nullptr : ParseFormat("from", optarg);
        break;
    case Option_To:
        options.to = ParseFormat("to", optarg);
        break;
    case Option_Format:
    case Option_NoFormat:
        options.settings.format = code == Option_Format;
        break;
    case Option_Eol:
        options.settings.endOfLine = ParseChoice(LINE_ENDS, "eol", optarg);
        break;
    case Option_Compress:
        options.settings.compression = ParseChoice(COMPRESSIONS, "compress", optarg);
        break;
    case Option_KeepCData:
        options.settings.keepSections = true;
        break;
    case Option_JsonMode:
        options.settings.jsonMode = ParseChoice(JSON_MODES, "json-mode", optarg);
        break;
    case Option_Help:
        options.action = Options::Action_Help;
        break;
    case Option_Version:
        options.action = Options::Action_Version;
        break;
    }
}

[[noreturn]] void ThrowOptionFault(int code, const char* argument)
{
    if (code == ':') {
        throw UsageError(std::string("this option needs a value: ") + argument);
    }
    // A letter among several does not end its argument.
    const bool isLetter = optopt > Option_Version;
    throw UsageError("unknown option: " + (isLetter ? std::string{'-', static_cast<char>(optopt)} : argument));
}

} // namespace

Options ParseOptions(int argc, char** argv)
{
    Options options;
    int code = 0;
    // The colon keeps getopt_long from printing reports of its own.
    while (options.action == Options::Action_Convert
        && (code = getopt_long(argc, argv, ":", LONG_OPTIONS, nullptr)) != -1) {
        if (code == '?' || code == ':') {
            ThrowOptionFault(code, argv[optind - 1]);
        }
        Apply(code, options);
    }
    if (options.action != Options::Action_Convert) {
        return options;
    }
    Settings& settings = options.settings;
    settings.keepSections = settings.keepSections && options.to->isXml;
    settings.texts = {settings.format || !options.to->hasIndentation, settings.keepSections, options.to->isXml};
    const int operands = argc - optind;
    if (operands < 1 || operands > 2) {
        throw UsageError(operands < 1 ? "no input is named" : "more than two files are named");
    }
    options.input = argv[optind];
    options.output = operands == 2 ? argv[optind + 1] : STANDARD_STREAM;
    return options;
}

std::string MakeHelp()
{
    const std::string formats = ListFormats();
    return "Usage: zrconvert [OPTION]... IN [OUT]\n"
           "Reads a document without its schema and writes it again. '-' stands for standard input or standard\n"
           "output; without OUT, standard output is written. The encoding and the compression (gzip, zlib) of the\n"
           "input are recognised. XML and JSON are written in UTF-8; finf is Fast Infoset (ITU-T X.891).\n"
           "\n"
           "  --from auto|"
        + formats
        + " format of the input; auto, which is the default, recognises it\n"
          "  --to "
        + formats + R"(        format of the output (default: xml)
  --json-mode 0|1|2         what JSON carries: plain names, attributes as "@name", or namespaces too (default: 2)
  --no-format               adds no white space (default); white space of the input stays
  --format                  a line for each element, indented; elements that have children lose the white
                            space around their text
  --eol lf|crlf             line ends (default: lf)
  --compress gzip|zlib      compresses the output; refused when it does not become shorter
  --keep-cdata              writes CDATA sections of XML as such, not as escaped text
  --help                    prints this text
  --version                 prints the version

What is not carried over: comments, processing instructions, the document type, and where the text of an
element stood between its children: all of it comes behind the last child, with the white space that
indented them unless --format is given or JSON is written. Namespaces are declared on the root element. Prefixes inside values
stay as they are, also when a prefix changes because the document binds it more than once.

Exit status: 0 done, 1 input refused or output failed, 2 wrong usage.
)";
}

} // namespace Convert
