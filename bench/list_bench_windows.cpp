// The key list of the real main window over key files of 1,000 and 10,000 keys: Enter at
// the login until every row is listed, a fill of the shown window, steps of the
// partial-show bar and filter picks, each through the messages a user's action sends and
// timed with the performance counter up to the end of the painting it causes. Prints the
// figures; asserts nothing about time.
//
//   zelto_list_bench [--keys 1000,10000] [--steps 5] [--whole 0]
// --whole 0 leaves out the two rebuilds of the whole list (the fill of the shown window and
// the pick of the empty filter item), for runs that would take too long otherwise.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "app/zlKeyFileStore.h"
#include "app/zlTexts.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowState.h"
#include "model/zlVerify.h"
#include "ui/mainFont.h"

namespace {

using namespace Zelto;
using dunmar::dm_utf8_str;

const char* kPassword = "bench password 1";
constexpr int kLabelKinds = 40;

double now() {
    static LARGE_INTEGER frequency = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return f;
    }();
    LARGE_INTEGER count;
    QueryPerformanceCounter(&count);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Lets queued messages run, painting among them.
void pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

std::wstring tempFolder() {
    wchar_t base[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, base);
    std::wstring folder =
        std::wstring(base) + L"zelto-list-bench-" + std::to_wstring(GetCurrentProcessId());
    CreateDirectoryW(folder.c_str(), nullptr);
    return folder;
}

std::string padded(int n) {
    char text[16];
    std::snprintf(text, sizeof text, "%05d", n);
    return text;
}

// count keys with names of 28 characters and two of forty labels each, written to path.
bool writeKeyFile(const std::wstring& path, int count) {
    zlKeyFile file;
    if (file.set_pass_phrase(kPassword) != 0)
        return false;
    file.setPath(dunmar::dm_string(path.c_str()));
    auto* settings = new zlFileItemSettings(&file);
    settings->verify = zlMakeVerifyValue(dm_utf8_str(kPassword));
    file.root().appendChild(settings);
    for (int i = 0; i < count; ++i) {
        const std::string n = padded(i);
        zlKeyFields fields;
        fields.value[0] = dm_utf8_str(("Account " + n + " example.org").c_str());
        fields.value[1] = dm_utf8_str(("label" + std::to_string(i % kLabelKinds) + ", label" +
                                       std::to_string((i * 7 + 3) % kLabelKinds))
                                          .c_str());
        fields.value[2] = dm_utf8_str(("user" + n).c_str());
        fields.value[3] = dm_utf8_str(("pw-" + n + "-Xy7#kq9").c_str());
        fields.value[4] = dm_utf8_str(("u" + n + "@example.org").c_str());
        fields.value[5] = dm_utf8_str(("https://example.org/" + n).c_str());
        if (!zlAddKey(file, fields))
            return false;
    }
    return zlSaveKeyFile(file) == zlSaved;
}

int listCount(HWND list) {
    return static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
}

void pickFilter(HWND main, HWND box, int index) {
    SendMessageW(box, CB_SETCURSEL, index, 0);
    SendMessageW(main, WM_COMMAND, MAKEWPARAM(idFilterBox, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(box));
}

bool measure(int keys, int steps, bool whole, const std::wstring& folder) {
    const std::wstring path = folder + L"\\Zelto.xml";
    if (!writeKeyFile(path, keys)) {
        std::printf("%d keys: the key file could not be written\n", keys);
        return false;
    }
    // As at start-up: the file is read before the login, the names are deciphered later.
    zlKeyFile file;
    file.setPath(dunmar::dm_string(path.c_str()));
    double t = now();
    if (file.readFile(dunmar::dm_string(path.c_str())) != zlReadOk) {
        std::printf("%d keys: the key file could not be read\n", keys);
        return false;
    }
    const double read = now() - t;
    if (file.settings())
        file.settings()->autolock = 0;
    mainWindowGlobals() = mainWindowState();
    mainWindowGlobals().paused = true;  // no tick, no lock while measuring
    mainWindow window(file, dunmar::dm_string(L"bench"));

    t = now();
    if (zlSetPassword(file, kPassword) != 0 || zlCheckPassword(file) != zlPasswordRight ||
        !window.create(GetModuleHandleW(nullptr), SW_SHOWNORMAL)) {
        std::printf("%d keys: the main window could not be made\n", keys);
        return false;
    }
    pump();
    const double login = now() - t;
    HWND main = window.window();
    HWND list = GetDlgItem(main, idKeyList);
    HWND bar = GetDlgItem(main, idPartialShow);
    HWND box = GetDlgItem(main, idFilterBox);
    const int listed = listCount(list);

    double fill = -1;
    if (whole) {
        t = now();
        window.fill();
        pump();
        fill = now() - t;
    }

    double revealTotal = 0;
    double revealMax = 0;
    for (int i = 0; i < steps; ++i) {
        t = now();
        SendMessageW(main, WM_HSCROLL, MAKEWPARAM(SB_LINERIGHT, 0), reinterpret_cast<LPARAM>(bar));
        pump();
        const double step = now() - t;
        revealTotal += step;
        revealMax = step > revealMax ? step : revealMax;
    }
    const int position = static_cast<int>(SendMessageW(bar, SBM_GETPOS, 0, 0));

    t = now();
    pickFilter(main, box, 1);
    pump();
    const double filterLabel = now() - t;
    const int filtered = listCount(list);
    double filterAll = -1;
    if (whole) {
        t = now();
        pickFilter(main, box, 0);
        pump();
        filterAll = now() - t;
    }

    std::printf("%d keys (file read %.3f s)\n", keys, read);
    std::printf("  login to listed rows   %8.3f s  (%d rows)\n", login, listed);
    if (whole)
        std::printf("  fill                   %8.3f s\n", fill);
    std::printf("  reveal step            %8.3f s  mean of %d, max %.3f s (position now %d)\n",
                steps > 0 ? revealTotal / steps : 0.0, steps, revealMax, position);
    std::printf("  filter pick, a label   %8.3f s  (%d rows)\n", filterLabel, filtered);
    if (whole)
        std::printf("  filter pick, no filter %8.3f s  (%d rows)\n", filterAll, listCount(list));
    std::fflush(stdout);
    DeleteFileW(path.c_str());
    return listed == keys && (!whole || listCount(list) == keys);
}

std::vector<int> parseCounts(const char* text) {
    std::vector<int> counts;
    for (const char* at = text; *at;) {
        char* end = nullptr;
        const long n = std::strtol(at, &end, 10);
        if (end == at)
            break;
        if (n > 0)
            counts.push_back(static_cast<int>(n));
        at = *end == ',' ? end + 1 : end;
    }
    return counts;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<int> counts = {1000, 10000};
    int steps = 5;
    bool whole = true;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--keys") == 0)
            counts = parseCounts(argv[i + 1]);
        else if (std::strcmp(argv[i], "--steps") == 0)
            steps = std::atoi(argv[i + 1]);
        else if (std::strcmp(argv[i], "--whole") == 0)
            whole = std::atoi(argv[i + 1]) != 0;
    }
    zlSetLanguage(zlLanguageEnglish);
    if (!dunmar::sharedFont().create()) {
        std::printf("the font could not be made\n");
        return 1;
    }
    const std::wstring folder = tempFolder();
    bool ok = true;
    for (int keys : counts)
        ok = measure(keys, steps, whole, folder) && ok;
    RemoveDirectoryW(folder.c_str());
    return ok ? 0 : 1;
}
