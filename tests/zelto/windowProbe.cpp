// Test tool for scripts that drive programs under Wine.
//   windowProbe            prints every visible top-level window of the Wine session with
//                          its children, their texts, places and states; lists and combo
//                          boxes also print their items. UTF-8, one thing a line:
//     window <handle> "<title>" class=<class> rect=<left>,<top>,<right>,<bottom>
//         child <id> <class> "<text>" rect=... enabled=<0|1> [checked=<0|1>]
//           item "<text>" [selected]
//   windowProbe close TITLE  asks the visible top-level window titled TITLE to close, as
//                          its close box would; exit status 1 when there is none.
//   windowProbe settext TITLE ID TEXT  sets the text of child ID of that window as
//                          WM_SETTEXT does; \uXXXX in TEXT stands for one UTF-16 unit, so
//                          that texts no keyboard types (a lone surrogate) can be given.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

std::string utf8(const std::wstring& text) {
    static char out[16384];
    out[0] = 0;
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, out, sizeof out, nullptr, nullptr);
    return out;
}

std::wstring textOf(HWND window) {
    wchar_t buffer[4096] = {};
    GetWindowTextW(window, buffer, 4096);
    return buffer;
}

std::wstring classOf(HWND window) {
    wchar_t name[256] = {};
    GetClassNameW(window, name, 256);
    return name;
}

std::string rectOf(HWND window) {
    RECT r = {};
    GetWindowRect(window, &r);
    return std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) +
           "," + std::to_string(r.bottom);
}

// Items of a list or combo box, read through the messages that cross process borders.
void printItems(HWND control, bool combo) {
    const UINT countMessage = combo ? CB_GETCOUNT : LB_GETCOUNT;
    const UINT lengthMessage = combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN;
    const UINT textMessage = combo ? CB_GETLBTEXT : LB_GETTEXT;
    const LRESULT selected = SendMessageW(control, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0);
    const LRESULT count = SendMessageW(control, countMessage, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT length = SendMessageW(control, lengthMessage, i, 0);
        std::vector<wchar_t> text(static_cast<size_t>(length > 0 ? length : 0) + 1, L'\0');
        SendMessageW(control, textMessage, i, reinterpret_cast<LPARAM>(text.data()));
        std::printf("      item \"%s\"%s\n", utf8(text.data()).c_str(),
                    i == selected ? " selected" : "");
    }
}

BOOL CALLBACK printChild(HWND child, LPARAM) {
    const std::wstring cls = classOf(child);
    std::printf("    child %d %s \"%s\" rect=%s enabled=%d", GetDlgCtrlID(child), utf8(cls).c_str(),
                utf8(textOf(child)).c_str(), rectOf(child).c_str(), IsWindowEnabled(child) ? 1 : 0);
    if (lstrcmpiW(cls.c_str(), L"Button") == 0) {
        const LONG_PTR type = GetWindowLongPtrW(child, GWL_STYLE) & BS_TYPEMASK;
        if (type == BS_CHECKBOX || type == BS_AUTOCHECKBOX)
            std::printf(" checked=%d", SendMessageW(child, BM_GETCHECK, 0, 0) == BST_CHECKED);
    }
    std::printf("\n");
    if (lstrcmpiW(cls.c_str(), L"ListBox") == 0)
        printItems(child, false);
    else if (lstrcmpiW(cls.c_str(), L"ComboBox") == 0)
        printItems(child, true);
    return TRUE;
}

BOOL CALLBACK printWindow(HWND window, LPARAM) {
    if (!IsWindowVisible(window))
        return TRUE;
    std::printf("window %p \"%s\" class=%s rect=%s\n", static_cast<void*>(window),
                utf8(textOf(window)).c_str(), utf8(classOf(window)).c_str(),
                rectOf(window).c_str());
    EnumChildWindows(window, &printChild, 0);
    return TRUE;
}

// TEXT with each \uXXXX replaced by that UTF-16 unit.
std::wstring unescaped(const std::wstring& text) {
    std::wstring out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 2, L"\\u") == 0 && i + 6 <= text.size()) {
            out += static_cast<wchar_t>(std::wcstoul(text.substr(i + 2, 4).c_str(), nullptr, 16));
            i += 5;
        } else {
            out += text[i];
        }
    }
    return out;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
    if (argc == 3 && lstrcmpW(argv[1], L"close") == 0) {
        HWND window = FindWindowW(nullptr, argv[2]);
        if (!window || !IsWindowVisible(window))
            return 1;
        PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
        return 0;
    }
    if (argc == 5 && lstrcmpW(argv[1], L"settext") == 0) {
        HWND window = FindWindowW(nullptr, argv[2]);
        HWND child = window ? GetDlgItem(window, _wtoi(argv[3])) : nullptr;
        if (!child)
            return 1;
        const std::wstring text = unescaped(argv[4]);
        SendMessageW(child, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        return 0;
    }
    if (argc != 1) {
        std::fprintf(stderr, "usage: windowProbe [close TITLE | settext TITLE ID TEXT]\n");
        return 2;
    }
    EnumWindows(&printWindow, 0);
    std::fflush(stdout);
    return 0;
}
