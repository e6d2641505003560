#include <string>

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

constexpr const wchar_t* kPlaceholderRow = L"----";
constexpr const wchar_t* kNoKeysRow = L"No keys found!";
constexpr int32_t kCustomScrollTicks = 10;

int selectedIndex(HWND list) {
    return static_cast<int>(SendMessageW(list, LB_GETCURSEL, 0, 0));
}

void addRow(HWND list, const wchar_t* text) {
    SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

// Drawing of the list stops while its rows are rebuilt and resumes, with the selection
// it had, when the object goes.
class frozenList {
  public:
    explicit frozenList(const dunmar::controlList& list)
        : list_(list), selected_(selectedIndex(list.handle())) {
        LockWindowUpdate(list_.handle());
    }
    ~frozenList() {
        list_.selectIndex(selected_);
        LockWindowUpdate(nullptr);
        UpdateWindow(list_.handle());
    }
    frozenList(const frozenList&) = delete;
    frozenList& operator=(const frozenList&) = delete;

  private:
    const dunmar::controlList& list_;
    int selected_;
};

}  // namespace

int mainWindow::fill() {
    if (!window_)
        return 0;
    mainWindowControls& c = *controls_;
    const zlFileItemKeys* keys = file_.keys();
    const std::vector<zlFileItemKey*> all = zlKeysOf(keys);
    {
        frozenList frozen(c.keyList);
        SendMessageW(c.keyList.handle(), LB_RESETCONTENT, 0, 0);
        rows_.clear();
        if (!all.empty()) {
            for (zlFileItemKey* key : all) {
                if (!zlLabelMatches(zlKeyLabel(*key), filter_))
                    continue;
                addRow(c.keyList.handle(), kPlaceholderRow);
                rows_.push_back(key);
            }
            fillFilterBox(zlCollectLabels(keys));
        }
    }

    dunmar::controlScrollBar& bar = c.partialShow;
    bar.maximum = zlPartialShowMaximum(keys);
    SetScrollRange(bar.handle(), SB_CTL, bar.minimum, bar.maximum, TRUE);
    render(bar.position);

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

bool mainWindow::render(int32_t position) {
    HWND list = controls_->keyList.handle();
    if (!window_ || !list)
        return false;
    if (controls_->keyList.count() == 0)
        return true;
    frozenList frozen(controls_->keyList);
    for (size_t i = 0; i < rows_.size(); ++i) {
        const zlFileItemKey* key = rows_[i];
        const dm_string text =
            zlMaskRow(zlRowText(key->plainName().to_wide(), zlKeyLabel(*key)), position);
        SendMessageW(list, LB_INSERTSTRING, i, reinterpret_cast<LPARAM>(text.c_str()));
        SendMessageW(list, LB_DELETESTRING, i + 1, 0);
    }
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
