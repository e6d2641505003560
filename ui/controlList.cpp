#include "ui/controlList.h"

#include "ui/listTypeAhead.h"

namespace dunmar {

int controlList::count() const {
    if (!handle_)
        return 0;
    const LRESULT n = SendMessageW(handle_, LB_GETCOUNT, 0, 0);
    return n == LB_ERR ? 0 : static_cast<int>(n);
}

bool controlList::selectIndex(int index) const {
    if (!handle_ || index < 0 || index >= count())
        return false;
    if (SendMessageW(handle_, LB_SETCURSEL, index, 0) == LB_ERR)
        return false;
    return SendMessageW(handle_, LB_GETCURSEL, 0, 0) == index;
}

bool controlList::typeAhead(wchar_t typed) const {
    return listTypeAhead(handle_, typed);
}

bool controlList::installTypeAhead() const {
    return installListTypeAhead(handle_);
}

}  // namespace dunmar
