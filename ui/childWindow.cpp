#include "ui/childWindow.h"

namespace dunmar {

bool createChild(HINSTANCE instance, HWND parent, controls& all, control& item,
                 const wchar_t* windowClass, const dm_string& text, DWORD style,
                 DWORD extendedStyle, uint32_t id) {
    HWND child =
        CreateWindowExW(extendedStyle, windowClass, text.c_str(), style, 0, 0, 20, 20, parent,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), instance, nullptr);
    item.attach(child, id);
    all.add(&item);
    return child != nullptr;
}

}  // namespace dunmar
