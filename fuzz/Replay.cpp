// SPDX-License-Identifier: MIT
// Runs files through the targets, for the ordinary tests: fuzz_replay FOLDER, which has a folder for each target, or
// fuzz_replay TARGET FILE...
#include "fuzz/Targets.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Target {
    const char* name;
    int (*run)(const std::uint8_t* data, std::size_t size);
};

const Target targets[] = {{"xml", Fuzz::RunXmlInput}, {"json", Fuzz::RunJsonInput},
    {"fastinfoset", Fuzz::RunFastInfosetInput}, {"compression", Fuzz::RunCompressionInput},
    {"lexical", Fuzz::RunLexicalInput}, {"roundtrip", Fuzz::RunRoundTripInput}};

// In an array of exactly its size, so that a sanitizer sees reads behind it. The name goes out first: a target that
// fails ends the process.
void Run(const Target& target, const std::filesystem::path& file)
{
    std::printf("%s %s\n", target.name, file.filename().c_str());
    std::fflush(stdout);
    std::ifstream stream(file, std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    const std::unique_ptr<std::uint8_t[]> data(new std::uint8_t[content.size()]);
    std::copy(content.begin(), content.end(), data.get());
    target.run(data.get(), content.size());
}

int RunFolder(const std::filesystem::path& corpus)
{
    for (const Target& target : targets) {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(corpus / target.name))
            files.push_back(entry.path());
        std::sort(files.begin(), files.end());
        if (files.empty()) {
            std::fprintf(stderr, "There are no inputs for %s.\n", target.name);
            return EXIT_FAILURE;
        }
        for (const std::filesystem::path& file : files)
            Run(target, file);
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2)
        return RunFolder(argv[1]);
    for (const Target& target : targets) {
        if (argc > 2 && std::string(argv[1]) == target.name) {
            std::for_each(argv + 2, argv + argc, [&](const char* file) { Run(target, file); });
            return EXIT_SUCCESS;
        }
    }
    std::fputs("usage: fuzz_replay FOLDER | TARGET FILE...\n", stderr);
    return EXIT_FAILURE;
}
