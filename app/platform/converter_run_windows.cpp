#include <windows.h>

#include <string>

#include "app/zlConverterRun.h"
#include "app/zlInstance.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr DWORD kCreationFlags =
    CREATE_DEFAULT_ERROR_MODE | CREATE_UNICODE_ENVIRONMENT | NORMAL_PRIORITY_CLASS;
static_assert(kCreationFlags == 0x4000420, "creation flags of the converter");

bool fail(dm_string& detail, const char* text) {
    detail = dunmar::dm_utf8_str(text).to_wide();
    return false;
}

// Writes the resource data to path in one write.
bool writeConverter(const dm_string& path, const void* data, DWORD size, dm_string& detail) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return fail(detail, "::CreateFile(..) returned INVALID_HANDLE_VALUE");
    DWORD written = 0;
    const BOOL wrote = WriteFile(file, data, size, &written, nullptr);
    CloseHandle(file);
    if (!wrote)
        return fail(detail, "::WriteFile(..) returned FALSE");
    if (written != size)
        return fail(detail, "WriteFile(..) failed: (bytesWritten != sizeOfResource)");
    return true;
}

// Appends text as one quoted argument that the C runtime's parser gives back unchanged:
// backslashes are literal except before a quote, so the run before an inner quote or the
// closing quote is doubled and each inner quote escaped.
void appendQuoted(std::wstring& line, const dm_string& text) {
    line.push_back(L'"');
    size_t backslashes = 0;
    for (const wchar_t* c = text.c_str(); *c != 0; ++c) {
        if (*c == L'\\') {
            ++backslashes;
            continue;
        }
        line.append(*c == L'"' ? backslashes * 2 + 1 : backslashes, L'\\');
        line.push_back(*c);
        backslashes = 0;
    }
    line.append(backslashes * 2, L'\\');
    line.push_back(L'"');
}

// Starts the converter in the folder and polls once a second until it has ended.
bool startAndWait(const zlFileSet& files, const dunmar::dm_utf8_str& password, dm_string& detail,
                  unsigned long& exitCode) {
    std::wstring line = L"\"";
    line.append(files.converter.c_str()).append(L"\" ");
    appendQuoted(line, password.to_wide());
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    const BOOL started = CreateProcessW(nullptr, &line[0], nullptr, nullptr, FALSE, kCreationFlags,
                                        nullptr, files.folder.c_str(), &startup, &process);
    SecureZeroMemory(&line[0], line.size() * sizeof(wchar_t));
    if (!started)
        return fail(detail, "::CreateProcess(..) returned FALSE");
    CloseHandle(process.hThread);

    DWORD code = 0;
    if (!GetExitCodeProcess(process.hProcess, &code)) {
        CloseHandle(process.hProcess);
        return fail(detail, "::GetExitCodeProcess(..) returned FALSE");
    }
    while (code == STILL_ACTIVE) {
        Sleep(1000);
        if (!GetExitCodeProcess(process.hProcess, &code))
            break;  // only the first question's failure is reported; keep the code seen
    }
    CloseHandle(process.hProcess);
    exitCode = code;
    return code == 0;
}

}  // namespace

bool zlRunConverter(const zlFileSet& files, const dunmar::dm_utf8_str& password, dm_string& detail,
                    unsigned long& exitCode) {
    detail.clear();
    exitCode = 0;
    HMODULE instance = static_cast<HMODULE>(zlInstance());
    if (instance == nullptr)
        return fail(detail, "(curApp.GetInstance() returned NULL)");
    if (files.folder.empty())
        return fail(detail, "GetThisPathName(..) returned \"\"");

    HRSRC found = FindResourceW(instance, MAKEINTRESOURCEW(137), RT_RCDATA);
    if (found == nullptr)
        return fail(detail, "::FindResource(..) returned NULL");
    const DWORD size = SizeofResource(instance, found);
    if (size < 10)
        return fail(detail, "::SizeofResource(..) returned a invalid value (< 10 Bytes)");
    HGLOBAL loaded = LoadResource(instance, found);
    if (loaded == nullptr)
        return fail(detail, "::LoadResource(..) returned NULL");
    const void* data = LockResource(loaded);
    if (data == nullptr)
        return fail(detail, "::LockResource(..) returned NULL");

    if (!writeConverter(files.converter, data, size, detail))
        return false;
    return startAndWait(files, password, detail, exitCode);
}

}  // namespace Zelto
