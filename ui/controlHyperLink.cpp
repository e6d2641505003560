#include "ui/controlHyperLink.h"

#include "ui/hyperLinkProcs.h"
#include "ui/windowProps.h"

namespace dunmar {

bool controlHyperLink::create(HINSTANCE instance, HWND parent, const dm_string& text) {
    id_ = kId;
    handle_ =
        CreateWindowExW(0, L"STATIC", text.c_str(), style_, 0, 0, 20, 20, parent,
                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kId)), instance, nullptr);
    if (handle_ && GetParent(handle_) == parent) {
        subclassWindow(parent, &hyperLinkParentProc);
        // Clicks reach the parent only with SS_NOTIFY.
        SetWindowLongPtrW(handle_, GWL_STYLE, GetWindowLongPtrW(handle_, GWL_STYLE) | SS_NOTIFY);
        subclassWindow(handle_, &hyperLinkStaticProc);
        SetPropW(handle_, kFromStaticProperty, reinterpret_cast<HANDLE>(1));
        buildFonts();
    }
    return handle_ != nullptr;
}

bool controlHyperLink::setFont(HFONT font) {
    if (!handle_ || !font)
        return false;
    SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), 1);
    return buildFonts();
}

bool controlHyperLink::buildFonts() const {
    const auto font = reinterpret_cast<HFONT>(SendMessageW(handle_, WM_GETFONT, 0, 0));
    if (!font)
        return false;
    SetPropW(handle_, kOriginalFontProperty, font);
    LOGFONTW description;
    if (GetObjectW(font, sizeof(description), &description) != sizeof(description))
        return false;
    description.lfUnderline = 1;
    HFONT underline = CreateFontIndirectW(&description);
    if (!underline)
        return false;
    // A font change replaces the underlined font made from the former one.
    if (HANDLE former = GetPropW(handle_, kUnderlineFontProperty))
        DeleteObject(static_cast<HGDIOBJ>(former));
    SetPropW(handle_, kUnderlineFontProperty, underline);
    return true;
}

}  // namespace dunmar
