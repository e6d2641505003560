#pragma once

#include <windows.h>

#include "core/dm_string.h"
#include "model/zlFileItemKeyItem.h"

namespace Zelto {

// Puts one deciphered key field on the clipboard and later takes it off again, but only
// while the clipboard still holds exactly that text. One object for the process.
class zlClipboard {
  public:
    zlClipboard() = default;
    virtual ~zlClipboard();

    // Deciphers field and places it as Unicode text, marked to stay out of clipboard
    // history, cloud clipboard and monitoring tools. False for an empty or undecipherable
    // value (the clipboard is untouched) and when placing it failed.
    bool copy(HWND owner, const zlFileItemKeyItem* field);

    // Empties the clipboard when it holds exactly the text copied last. The text is kept,
    // so a later call checks again. True when it was emptied.
    bool clearIfUnchanged();

    const dunmar::dm_string& text() const { return text_; }
    HWND owner() const { return owner_; }

    static zlClipboard& instance();

    zlClipboard(const zlClipboard&) = delete;
    zlClipboard& operator=(const zlClipboard&) = delete;

  private:
    bool place(HWND owner, const dunmar::dm_string& text);

    HWND owner_ = nullptr;
    dunmar::dm_string text_;
};

// The registered formats that keep a copied secret out of clipboard history, the cloud
// clipboard and monitoring tools, each placed with the value zero.
extern const wchar_t* const zlClipboardPrivacyFormats[3];

}  // namespace Zelto
