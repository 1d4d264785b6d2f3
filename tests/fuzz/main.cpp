// Runs a target on the files of folders, without a fuzzer: what once reached new code goes on being
// tried by every build.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "target.h"

namespace {

namespace fs = std::filesystem;

int tryFilesOf(const fs::path& folder) {
    int files = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
        std::ostringstream bytes;
        bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        // Told ahead, so that the last name is that of the file that ends the program.
        std::printf("%s\n", entry.path().c_str());
        std::fflush(stdout);
        orvanta::fuzz::tryInput(bytes.str());
        ++files;
    }
    return files;
}

}  // namespace

int main(int argc, char** argv) {
    int files = 0;
    for (int i = 1; i < argc; ++i) files += tryFilesOf(argv[i]);
    if (files == 0) {
        std::fprintf(stderr, "usage: %s FOLDER...    folders with at least one file\n", argv[0]);
        return 2;
    }
    return 0;
}
