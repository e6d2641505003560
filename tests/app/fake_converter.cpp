// Stands in for the converter in tests of running it: writes what it was given (each
// argument and its working folder, one a line, UTF-8) to fake_converter.txt in its working
// folder, takes a while, and ends with the number its first argument starts with.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>

namespace {

std::string utf8(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string out(size > 0 ? size - 1 : 0, '\0');
    if (size > 1)
        WideCharToMultiByte(CP_UTF8, 0, text, -1, &out[0], size, nullptr, nullptr);
    return out;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    std::string record;
    for (int i = 1; i < argc; ++i)
        record += utf8(argv[i]) + "\n";
    wchar_t folder[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, folder);
    record += utf8(folder) + "\n";
    if (std::FILE* out = _wfopen(L"fake_converter.txt", L"wb")) {
        std::fwrite(record.data(), 1, record.size(), out);
        std::fclose(out);
    }
    // Longer than one poll of the caller.
    Sleep(1500);
    return argc > 1 ? static_cast<int>(std::wcstol(argv[1], nullptr, 10)) : 99;
}
