// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>

/// Main program of every test program. With ZRXML_TEST_LOCALE set, the process takes the locale of its environment, as
/// an application may; otherwise it stays in the "C" locale in which every process starts.
int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    if (std::getenv("ZRXML_TEST_LOCALE") != nullptr && std::setlocale(LC_ALL, "") == nullptr) {
        std::fputs("The locale of the environment is not installed.\n", stderr);
        return EXIT_FAILURE;
    }
    return RUN_ALL_TESTS();
}
