#include <windows.h>

#include "cli/zlcPlatform.h"
#include "cli/zlcStdinLine.h"
#include "core/dm_convert.h"

namespace Zelto {

namespace {

// The console's input mode while echo is off, so that Ctrl+C can put it back.
HANDLE consoleInput = nullptr;
DWORD savedMode = 0;

BOOL WINAPI restoreOnBreak(DWORD) {
    SetConsoleMode(consoleInput, savedMode);
    return FALSE;  // the default handling ends the program
}

void writeToConsole(const wchar_t* text, DWORD length) {
    DWORD written = 0;
    HANDLE err = GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    if (GetConsoleMode(err, &mode))
        WriteConsoleW(err, text, length, &written, nullptr);
}

// In line mode a read returns the line with its "\r\n": read on until the "\n", so that
// nothing of the line waits for the next read. False when the input ended first.
bool readConsoleLine(dunmar::dm_wstring& typed) {
    bool ended = false;
    while (!ended) {
        wchar_t buffer[256];
        DWORD read = 0;
        if (!ReadConsoleW(consoleInput, buffer, 256, &read, nullptr) || read == 0)
            break;
        typed.append(buffer, read);
        SecureZeroMemory(buffer, sizeof buffer);
        ended = typed.find(L'\n') != dunmar::dm_wstring::npos;
    }
    const size_t end = typed.find_first_of(L"\r\n");
    if (end != dunmar::dm_wstring::npos)
        typed.resize(end);
    return ended || !typed.empty();
}

}  // namespace

bool zlcReadSecret(const char* prompt, std::string& line) {
    line.clear();
    consoleInput = GetStdHandle(STD_INPUT_HANDLE);
    if (!GetConsoleMode(consoleInput, &savedMode))
        return zlcReadStdinLine(line);

    const dunmar::dm_wstring wide = dunmar::utf8_to_utf16(prompt);
    writeToConsole(wide.c_str(), static_cast<DWORD>(wide.size()));
    SetConsoleCtrlHandler(restoreOnBreak, TRUE);
    SetConsoleMode(consoleInput, (savedMode & ~static_cast<DWORD>(ENABLE_ECHO_INPUT)) |
                                     ENABLE_LINE_INPUT | ENABLE_PROCESSED_INPUT);
    dunmar::dm_wstring typed;
    const bool read = readConsoleLine(typed);
    SetConsoleMode(consoleInput, savedMode);
    SetConsoleCtrlHandler(restoreOnBreak, FALSE);
    writeToConsole(L"\r\n", 2);
    line = dunmar::utf16_to_utf8(typed.data(), typed.size());
    return read;
}

}  // namespace Zelto
