#include "ui/controlComboBox.h"

#include <vector>

namespace dunmar {

int controlComboBox::count() const {
    if (!handle_)
        return 0;
    const LRESULT n = SendMessageW(handle_, CB_GETCOUNT, 0, 0);
    return n == CB_ERR ? 0 : static_cast<int>(n);
}

dm_string controlComboBox::itemText(int index) const {
    if (!handle_ || index < 0 || index >= count())
        return dm_string();
    const LRESULT length = SendMessageW(handle_, CB_GETLBTEXTLEN, index, 0);
    if (length == CB_ERR)
        return dm_string();
    std::vector<wchar_t> buffer(static_cast<size_t>(length) + 5, L'\0');
    const LRESULT got =
        SendMessageW(handle_, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(buffer.data()));
    if (got == CB_ERR)
        return dm_string();
    return dm_string(buffer.data());
}

bool controlComboBox::selectIndex(int index) const {
    if (!handle_ || index < 0 || index >= count())
        return false;
    if (SendMessageW(handle_, CB_SETCURSEL, index, 0) == CB_ERR)
        return false;
    return SendMessageW(handle_, CB_GETCURSEL, 0, 0) == index;
}

bool controlComboBox::selectText(const dm_string& text) const {
    const int n = count();
    for (int i = 0; i < n; ++i) {
        if (itemText(i).equals(text))
            return selectIndex(i);
    }
    return false;
}

}  // namespace dunmar
