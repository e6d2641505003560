#include "mainwindow/mainWindowListRows.h"

#include <unordered_set>

#include "app/zlKeyRows.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

// Rewriting a row moves every row after it; past this share of changed rows a rebuild of
// the whole list is cheaper.
constexpr size_t kRebuildShare = 8;

const dm_utf8_str& valueOf(const zlFileItemKey& key, int typeCode) {
    static const dm_utf8_str none;
    const zlFileItemKeyItem* field = key.field(typeCode);
    return field ? field->value() : none;
}

}  // namespace

const mainWindowListRows::entry& mainWindowListRows::entryOf(const zlFileItemKey& key) {
    const dm_utf8_str& name = valueOf(key, zlTypeKeyName);
    const dm_utf8_str& label = valueOf(key, zlTypeKeyLabel);
    entry& found = entries_[&key];
    if (found.whole && found.name.equals(name) && found.label.equals(label))
        return found;
    found.name = name;
    found.label = label;
    dm_utf8_str plain;
    const bool deciphered = key.plainField(zlTypeKeyLabel, plain);
    found.plainLabel = deciphered ? plain.to_wide() : dm_string();
    const dm_utf8_str plainName = key.plainName();
    found.text = zlRowText(plainName.to_wide(), found.plainLabel);
    // What did not decipher (no usable pass phrase yet) is tried again next time.
    found.whole = deciphered && (name.empty() || !plainName.empty());
    return found;
}

const dm_string& mainWindowListRows::labelOf(const zlFileItemKey& key) {
    return entryOf(key).plainLabel;
}

const dm_string& mainWindowListRows::textOf(const zlFileItemKey& key) {
    return entryOf(key).text;
}

void mainWindowListRows::keepOnly(const std::vector<zlFileItemKey*>& keys) {
    const std::unordered_set<const zlFileItemKey*> kept(keys.begin(), keys.end());
    for (auto at = entries_.begin(); at != entries_.end();) {
        if (kept.count(at->first))
            ++at;
        else
            at = entries_.erase(at);
    }
}

void mainWindowListRows::rebuild(HWND list, const std::vector<dm_string>& texts) {
    SendMessageW(list, LB_RESETCONTENT, 0, 0);
    size_t characters = 0;
    for (const dm_string& text : texts)
        characters += text.length() + 1;
    SendMessageW(list, LB_INITSTORAGE, texts.size(), characters * sizeof(wchar_t));
    for (const dm_string& text : texts)
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void mainWindowListRows::write(HWND list, std::vector<dm_string>&& texts, bool keepTop) {
    const size_t n = texts.size();
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    // The rows written last are only trusted while the list still has as many.
    const bool sameRows =
        count >= 0 && static_cast<size_t>(count) == written_.size() && written_.size() == n;
    std::vector<size_t> changed;
    if (sameRows) {
        for (size_t i = 0; i < n; ++i) {
            if (!texts[i].equals(written_[i]))
                changed.push_back(i);
        }
        if (changed.empty() && keepTop)
            return;
    }

    const LRESULT selected = SendMessageW(list, LB_GETCURSEL, 0, 0);
    const LRESULT caret = SendMessageW(list, LB_GETCARETINDEX, 0, 0);
    const LRESULT top = keepTop ? SendMessageW(list, LB_GETTOPINDEX, 0, 0) : 0;
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    if (sameRows && changed.size() * kRebuildShare <= n) {
        for (size_t i : changed) {
            SendMessageW(list, LB_DELETESTRING, i, 0);
            SendMessageW(list, LB_INSERTSTRING, i, reinterpret_cast<LPARAM>(texts[i].c_str()));
        }
    } else {
        rebuild(list, texts);
    }
    SendMessageW(list, LB_SETTOPINDEX, top > 0 ? top : 0, 0);
    const auto inRange = [n](LRESULT index) {
        return index >= 0 && static_cast<size_t>(index) < n;
    };
    if (inRange(selected))
        SendMessageW(list, LB_SETCURSEL, selected, 0);
    else if (keepTop && inRange(caret))
        SendMessageW(list, LB_SETCARETINDEX, caret, TRUE);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    written_ = std::move(texts);
}

}  // namespace Zelto
