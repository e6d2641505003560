// Stands in for the converter in tests of running it: writes its first argument and its
// working folder, one a line, UTF-16, to fake_converter.txt in that folder, takes a while,
// and ends with the number its first argument starts with.
#include <windows.h>

#include <cstdio>
#include <cwchar>
#include <string>

int wmain(int argc, wchar_t** argv) {
    wchar_t folder[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, folder);
    const std::wstring record = std::wstring(argc > 1 ? argv[1] : L"") + L"\n" + folder + L"\n";
    if (std::FILE* out = _wfopen(L"fake_converter.txt", L"wb")) {
        std::fwrite(record.data(), sizeof(wchar_t), record.size(), out);
        std::fclose(out);
    }
    Sleep(1500);  // longer than one poll of the caller
    return argc > 1 ? static_cast<int>(std::wcstol(argv[1], nullptr, 10)) : 99;
}
