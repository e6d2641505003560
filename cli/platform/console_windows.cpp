#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>

#include "app/zlInstance.h"
#include "cli/zlcPlatform.h"
#include "core/dm_convert.h"

namespace Zelto {

namespace {

bool isConsole(DWORD which) {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(which), &mode) != 0;
}

// A console shows characters, not bytes: it gets the text as UTF-16.
void write(DWORD which, std::FILE* stream, const std::string& text) {
    if (text.empty())
        return;
    if (isConsole(which)) {
        const dunmar::dm_wstring wide = dunmar::utf8_to_utf16(text.data(), text.size());
        DWORD written = 0;
        WriteConsoleW(GetStdHandle(which), wide.data(), static_cast<DWORD>(wide.size()), &written,
                      nullptr);
        return;
    }
    std::fwrite(text.data(), 1, text.size(), stream);
    std::fflush(stream);
}

}  // namespace

std::vector<std::string> zlcArguments(int, char**) {
    // The narrow arguments are in the ANSI code page: take the wide ones.
    std::vector<std::string> args;
    int count = 0;
    LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &count);
    if (!wide)
        return args;
    for (int i = 1; i < count; ++i)
        args.push_back(dunmar::utf16_to_utf8(wide[i]));
    LocalFree(wide);
    return args;
}

void zlcPrepareProcess() {
    zlSetInstance(GetModuleHandleW(nullptr));
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

void zlcWriteOut(const std::string& text) {
    write(STD_OUTPUT_HANDLE, stdout, text);
}

void zlcWriteErr(const std::string& text) {
    write(STD_ERROR_HANDLE, stderr, text);
}

bool zlcStdoutIsTerminal() {
    return isConsole(STD_OUTPUT_HANDLE);
}

}  // namespace Zelto
