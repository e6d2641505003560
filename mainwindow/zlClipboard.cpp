#include "mainwindow/zlClipboard.h"

#include <cstring>

#include "crypto/zlEncrypt.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

const wchar_t* const zlClipboardPrivacyFormats[3] = {
    L"ExcludeClipboardContentFromMonitorProcessing",
    L"CanIncludeInClipboardHistory",
    L"CanUploadToCloudClipboard",
};

namespace {

HGLOBAL globalCopy(const void* data, size_t bytes) {
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!memory)
        return nullptr;
    void* target = GlobalLock(memory);
    if (!target) {
        GlobalFree(memory);
        return nullptr;
    }
    std::memcpy(target, data, bytes);
    GlobalUnlock(memory);
    return memory;
}

// Best effort: a system without these formats still gets the text.
void markPrivate() {
    const DWORD zero = 0;
    for (const wchar_t* name : zlClipboardPrivacyFormats) {
        const UINT format = RegisterClipboardFormatW(name);
        HGLOBAL value = format ? globalCopy(&zero, sizeof(zero)) : nullptr;
        if (value && !SetClipboardData(format, value))
            GlobalFree(value);
    }
}

// The Unicode text on the clipboard, empty when there is none. The clipboard is open.
dm_string clipboardText() {
    HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (!data)
        return dm_string();
    const auto* text = static_cast<const wchar_t*>(GlobalLock(data));
    if (!text)
        return dm_string();
    // The block may be larger than its text; the text ends at its first zero.
    const size_t capacity = GlobalSize(data) / sizeof(wchar_t);
    size_t length = 0;
    while (length < capacity && text[length] != L'\0')
        ++length;
    dm_string copy(text, length);
    GlobalUnlock(data);
    return copy;
}

}  // namespace

zlClipboard::~zlClipboard() = default;

zlClipboard& zlClipboard::instance() {
    static zlClipboard clipboard;
    return clipboard;
}

bool zlClipboard::copy(HWND owner, const zlFileItemKeyItem* field) {
    if (!field || !field->owner())
        return false;
    dm_utf8_str plain;
    if (field->owner()->decrypt(field->value(), plain) != 0)
        return false;
    const dm_string text = plain.to_wide();
    if (text.empty())
        return false;
    owner_ = owner;
    text_ = text;
    return place(owner, text);
}

bool zlClipboard::place(HWND owner, const dm_string& text) {
    HGLOBAL memory = globalCopy(text.c_str(), (text.length() + 1) * sizeof(wchar_t));
    if (!memory)
        return false;
    if (!OpenClipboard(owner)) {
        GlobalFree(memory);
        return false;
    }
    EmptyClipboard();
    const bool placed = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    if (placed)
        markPrivate();
    else
        GlobalFree(memory);
    CloseClipboard();
    return placed;
}

bool zlClipboard::clearIfUnchanged() {
    // The window that copied may be gone (a language switch makes a new one).
    if (text_.empty() || !OpenClipboard(IsWindow(owner_) ? owner_ : nullptr))
        return false;
    const bool ours = clipboardText().equals(text_);
    if (ours)
        EmptyClipboard();
    CloseClipboard();
    return ours;
}

}  // namespace Zelto
