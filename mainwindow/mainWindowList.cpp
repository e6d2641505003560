#include <string>
#include <unordered_set>

#include "app/zlKeyFilter.h"
#include "app/zlKeyRows.h"
#include "app/zlTexts.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowState.h"
#include "mainwindow/mainWindowTexts.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr const wchar_t* kNoKeysRow = L"No keys found!";
constexpr int32_t kCustomScrollTicks = 10;

int selectedIndex(HWND list) {
    return static_cast<int>(SendMessageW(list, LB_GETCURSEL, 0, 0));
}

void addRow(HWND list, const wchar_t* text) {
    SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

bool contains(const dunmar::dm_stringlist& list, const dm_string& text) {
    for (const dm_string& item : list) {
        if (item.equals(text))
            return true;
    }
    return false;
}

}  // namespace

int mainWindow::fill() {
    if (!window_)
        return 0;
    mainWindowControls& c = *controls_;
    const zlFileItemKeys* keys = file_.keys();
    const std::vector<zlFileItemKey*> all = zlKeysOf(keys);
    rows_.clear();
    listRows_.keepOnly(all);
    if (!all.empty()) {
        dunmar::dm_stringlist labels;
        std::unordered_set<dunmar::dm_wstring> seen;
        for (zlFileItemKey* key : all) {
            const dunmar::dm_stringlist pieces = zlLabelPieces(listRows_.labelOf(*key));
            for (const dm_string& piece : pieces) {
                if (seen.insert(piece.str()).second)
                    labels.append(piece);
            }
            if (filter_.empty() || contains(pieces, filter_))
                rows_.push_back(key);
        }
        fillFilterBox(labels);
    }

    dunmar::controlScrollBar& bar = c.partialShow;
    bar.maximum = zlPartialShowMaximum(keys);
    SetScrollRange(bar.handle(), SB_CTL, bar.minimum, bar.maximum, TRUE);
    // Like a new list: it starts at its first row, with the selected row in view.
    listRows_.write(c.keyList.handle(), rowTexts(bar.position), false);

    if (all.empty()) {
        // Added after the masking, so it is never masked.
        addRow(c.keyList.handle(), kNoKeysRow);
        return 1;
    }
    return static_cast<int>(rows_.size());
}

void mainWindow::fillFilterBox(const dunmar::dm_stringlist& labels) {
    const dunmar::controlComboBox& box = controls_->filterBox;
    HWND handle = box.handle();
    const int selected = static_cast<int>(SendMessageW(handle, CB_GETCURSEL, 0, 0));
    SendMessageW(handle, CB_RESETCONTENT, 0, 0);
    // The empty first item stands for "no filter".
    SendMessageW(handle, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L""));
    for (const dm_string& label : labels)
        SendMessageW(handle, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(label.c_str()));
    box.selectIndex(selected);
}

std::vector<dm_string> mainWindow::rowTexts(int32_t position) {
    std::vector<dm_string> texts;
    texts.reserve(rows_.size());
    for (const zlFileItemKey* key : rows_)
        texts.push_back(zlMaskRow(listRows_.textOf(*key), position));
    return texts;
}

bool mainWindow::render(int32_t position) {
    HWND list = controls_->keyList.handle();
    if (!window_ || !list)
        return false;
    // Without key rows the list holds at most "No keys found!", which stays unmasked.
    if (controls_->keyList.count() == 0 || rows_.empty())
        return true;
    listRows_.write(list, rowTexts(position), true);
    return true;
}

zlFileItemKey* mainWindow::keyOfRow(int index) const {
    if (index < 0 || static_cast<size_t>(index) >= rows_.size())
        return nullptr;
    return rows_[static_cast<size_t>(index)];
}

void mainWindow::onSelectionChange() {
    mainWindowControls& c = *controls_;
    c.enableKeyButtons(false);
    c.stayTop.enable(true);
    const zlFileItemKey* key = keyOfRow(selectedIndex(c.keyList.handle()));
    const zlFileItemSettings* settings = file_.settings();
    if (settings && settings->showSelectedKey >= 1) {
        const dm_string name = key ? key->plainName().to_wide() : dm_string();
        status_.show(settings->showSelectedKey,
                     {zlText(textKey), L" \"", name.c_str(), L"\" ", zlText(textSelected)});
    }
    if (key) {
        c.enableKeyButtons(true);
        c.stayTop.enable(true);
    }
}

void mainWindow::onFilterChange() {
    const dunmar::controlComboBox& box = controls_->filterBox;
    const int selected = static_cast<int>(SendMessageW(box.handle(), CB_GETCURSEL, 0, 0));
    filter_ = box.itemText(selected);
    fill();
}

void mainWindow::onScroll(int id, int32_t position) {
    dunmar::controlScrollBar& bar = controls_->partialShow;
    if (id != idPartialShow) {
        const std::wstring idText = std::to_wstring(id);
        const std::wstring positionText = std::to_wstring(position);
        status_.show(kCustomScrollTicks,
                     {L"OnCustomScroll(", idText.c_str(), L", ", positionText.c_str(), L")"});
        return;
    }
    if (position < bar.minimum)
        position = bar.minimum;
    if (position > bar.maximum)
        position = bar.maximum;
    if (position != bar.position) {
        bar.position = position;
        SetScrollPos(bar.handle(), SB_CTL, position, TRUE);
        mainWindowGlobals().partialPosition = position;
    }
    render(position);
}

}  // namespace Zelto
