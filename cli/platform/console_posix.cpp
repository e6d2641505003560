#include <unistd.h>

#include <cstdio>

#include "cli/zlcPlatform.h"

namespace Zelto {

namespace {

void write(std::FILE* stream, const std::string& text) {
    if (!text.empty())
        std::fwrite(text.data(), 1, text.size(), stream);
    std::fflush(stream);
}

}  // namespace

std::vector<std::string> zlcArguments(int argc, char** argv) {
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i)
        args.emplace_back(argv[i]);
    return args;
}

void zlcPrepareProcess() {}

void zlcWriteOut(const std::string& text) {
    write(stdout, text);
}

void zlcWriteErr(const std::string& text) {
    write(stderr, text);
}

bool zlcStdoutIsTerminal() {
    return isatty(STDOUT_FILENO) == 1;
}

}  // namespace Zelto
