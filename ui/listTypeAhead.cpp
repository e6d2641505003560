#include "ui/listTypeAhead.h"

#include "ui/windowProps.h"

namespace dunmar {

namespace {

wchar_t folded(wchar_t c) {
    wchar_t buffer[2] = {c, L'\0'};
    CharLowerBuffW(buffer, 1);
    return buffer[0];
}

std::vector<dm_string> itemTexts(HWND list, bool& ok) {
    std::vector<dm_string> texts;
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    ok = count != LB_ERR;
    if (!ok)
        return texts;
    texts.reserve(static_cast<size_t>(count));
    for (LRESULT i = 0; i < count; ++i) {
        const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, i, 0);
        if (length == LB_ERR) {
            texts.emplace_back();
            continue;
        }
        std::vector<wchar_t> buffer(static_cast<size_t>(length) + 5, L'\0');
        const LRESULT got =
            SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(buffer.data()));
        texts.emplace_back(got == LB_ERR ? L"" : buffer.data());
    }
    return texts;
}

// Reading a window property asks the window server (Wine's too), and a list box gets a
// message per row when it is filled: the procedure of the list last asked is kept here.
struct knownList {
    HWND list = nullptr;
    WNDPROC previous = nullptr;
};
thread_local knownList lastList;

WNDPROC previousProcedure(HWND list) {
    if (lastList.list != list || !lastList.previous) {
        lastList.previous = reinterpret_cast<WNDPROC>(GetPropW(list, kOriginalProcProperty));
        lastList.list = list;
    }
    return lastList.previous;
}

void forgetList(HWND list) {
    if (lastList.list == list)
        lastList = knownList();
}

}  // namespace

int typeAheadIndex(const std::vector<dm_string>& texts, wchar_t typed) {
    const wchar_t wanted = folded(typed);
    for (size_t i = 0; i < texts.size(); ++i) {
        const wchar_t* p = texts[i].c_str();
        while (*p == L' ')
            ++p;
        if (*p != L'\0' && wanted <= folded(*p))
            return static_cast<int>(i);
    }
    return -1;
}

bool isTypeAheadCharacter(WPARAM character) {
    return character != 8 && character != 9 && character != 10 && character != 13 &&
           character != 27;
}

bool listTypeAhead(HWND list, wchar_t typed) {
    if (!list)
        return false;
    bool ok = false;
    const std::vector<dm_string> texts = itemTexts(list, ok);
    if (!ok)
        return false;
    const int index = typeAheadIndex(texts, typed);
    if (index < 0)
        return false;
    const LRESULT before = SendMessageW(list, LB_GETCURSEL, 0, 0);
    const LRESULT selected = SendMessageW(list, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                                          reinterpret_cast<LPARAM>(texts[index].c_str()));
    if (selected == LB_ERR)
        return false;
    const LONG_PTR style = GetWindowLongPtrW(list, GWL_STYLE);
    HWND parent = GetParent(list);
    if (selected != before && (style & LBS_NOTIFY) && parent) {
        const WPARAM command = MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE);
        SendMessageW(parent, WM_COMMAND, command, reinterpret_cast<LPARAM>(list));
    }
    return true;
}

bool installListTypeAhead(HWND list) {
    if (!list)
        return false;
    const LONG_PTR current = GetWindowLongPtrW(list, GWLP_WNDPROC);
    if (current == reinterpret_cast<LONG_PTR>(&listTypeAheadProc))
        return true;
    SetPropW(list, kOriginalProcProperty, reinterpret_cast<HANDLE>(current));
    forgetList(list);
    SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&listTypeAheadProc));
    return true;
}

LRESULT CALLBACK listTypeAheadProc(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC previous = previousProcedure(list);
    if (!previous)
        return 0;
    if (message == WM_DESTROY) {
        SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
        RemovePropW(list, kOriginalProcProperty);
        forgetList(list);
    } else if (message == WM_CHAR && isTypeAheadCharacter(wParam)) {
        // Consumed: the list box's own prefix search would move the selection again.
        listTypeAhead(list, static_cast<wchar_t>(wParam));
        return 0;
    }
    return CallWindowProcW(previous, list, message, wParam, lParam);
}

}  // namespace dunmar
