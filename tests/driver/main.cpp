#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "driver.h"
#include "view/file_disk.h"
#ifdef _WIN32
#include <windows.h>

#include "view/windows_names.h"
#endif

namespace {

using namespace orvanta;

struct Options {
    driver::Folders folders;
    bool window = false;
    bool complete = false;
};

/// Behind the program's own name, in UTF-8.
std::vector<std::string> argumentsOf(int argc, char** argv) {
#ifdef _WIN32
    std::vector<std::string> arguments;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &argc);
    for (int i = 1; i < argc; ++i) arguments.push_back(native::utf8From(words[i]));
    LocalFree(words);
    (void)argv;
    return arguments;
#else
    return {argv + 1, argv + argc};
#endif
}

Options optionsFrom(const std::vector<std::string>& arguments) {
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        const std::string& option = *argument;
        if (option == "--window") {
            options.window = true;
            continue;
        }
        if (argument + 1 == arguments.end()) return {};
        const std::string value = windows1252From(*++argument);
        if (option == "--app")
            options.folders.app = value;
        else if (option == "--documents")
            options.folders.documents = value;
        else if (option == "--settings")
            options.folders.settings = value;
        else
            return {};
    }
    options.complete = !options.folders.app.empty() && !options.folders.documents.empty() &&
                       !options.folders.settings.empty();
    return options;
}

int play(driver::Stage& stage, const driver::Folders& folders) {
    FileDisk disk;
    driver::Driver driver(stage, disk, folders);
    std::string line;
    while (!driver.hasEnded() && std::getline(std::cin, line))
        std::cout << driver.answer(line).dump() << std::endl;
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = optionsFrom(argumentsOf(argc, argv));
    if (!options.complete) {
        std::fputs("usage: orvanta_driver --app DIR --documents DIR --settings FILE [--window]\n",
                   stderr);
        return 2;
    }
    if (!options.window) return play(*driver::makeModelStage(), options.folders);
#ifdef ORVANTA_DESKTOP
    return play(*driver::makeWindowStage(argc, argv), options.folders);
#else
    std::fputs("this driver was built without the window\n", stderr);
    return 2;
#endif
}
