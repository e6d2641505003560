#include "app/zlPasswordRules.h"

#include "core/dm_guid.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;
using dunmar::dm_wchar;

namespace {

bool isUpper(dm_wchar c) {
    return c >= 'A' && c <= 'Z';
}
bool isLower(dm_wchar c) {
    return c >= 'a' && c <= 'z';
}
bool isDigit(dm_wchar c) {
    return c >= '0' && c <= '9';
}

dm_string text(const char* ascii) {
    return dm_utf8_str(ascii).to_wide();
}

}  // namespace

dm_string zlPasswordRuleMessage(const dm_string& password) {
    const size_t n = password.length();
    if (n < 8)
        return text("Password size to small");
    if (n >= 128)
        return text("Password size to big");
    const dm_wchar first = password.c_str()[0];
    if (!isUpper(first) && !isLower(first))
        return text("First character must not be a number");
    for (size_t i = 0; i < n; ++i) {
        const dm_wchar c = password.c_str()[i];
        if (!isUpper(c) && !isLower(c) && !isDigit(c)) {
            return text("Invalid character in password (allowed: A-Z, a-z, 0-9)");
        }
    }
    return dm_string();
}

dm_string zlPasswordMismatchMessage() {
    return text("Password and verification text are not equal");
}

dm_string zlPasswordProposal(const dm_string& guidText) {
    dm_string proposal = text("zl");
    const size_t count = guidText.length() < 16 ? guidText.length() : 16;
    for (size_t i = 0; i < count; ++i) {
        dm_wchar c = guidText.c_str()[i];
        const bool even = i % 2 == 0;
        if (isUpper(c)) {
            c = c == 'A' ? 'Z' : static_cast<dm_wchar>(c - 1);
            if (even)
                c = static_cast<dm_wchar>(c - 'A' + 'a');
        } else if (isLower(c)) {
            c = c == 'a' ? 'z' : static_cast<dm_wchar>(c - 1);
            if (even)
                c = static_cast<dm_wchar>(c - 'a' + 'A');
        } else if (isDigit(c)) {
            c = c == '0' ? '9' : static_cast<dm_wchar>(c - 1);
        } else {
            continue;
        }
        proposal.append(&c, 1);
    }
    return proposal;
}

bool zlNewPasswordProposal(dm_string& out) {
    out.clear();
    dm_string guid;
    if (!dunmar::dm_new_guid_text(guid))
        return false;
    out = zlPasswordProposal(guid);
    return true;
}

}  // namespace Zelto
