#pragma once

#include <string>

#include "model/zlKeyFile.h"

namespace ztest {

// The tree below item in one line: settings as
// "settings{verify,autolock,autoClearClipboard,showSelectedKey,language}", containers as
// "keys[...]" and "trash[...]", keys as "(name=.. label=..)", empty slots skipped. Values as
// stored, or with plain deciphered through the item's owner (settings then add
// "|first,last,email").
inline std::string treeText(const Zelto::zlFileItem& item, bool plain = false) {
    using namespace Zelto;
    const auto show = [&](const dunmar::dm_utf8_str& value) {
        dunmar::dm_utf8_str out;
        if (plain)
            item.owner()->decrypt(value, out);
        return plain ? out.str() : value.str();
    };
    std::string out;
    switch (item.typeCode()) {
        case zlTypeSettings: {
            const auto& s = static_cast<const zlFileItemSettings&>(item);
            out = "settings{" + s.verify.str() + "," + std::to_string(s.autolock) + "," +
                  std::to_string(s.autoClearClipboard) + "," + std::to_string(s.showSelectedKey) +
                  "," + s.language.str();
            if (plain)
                out += "|" + show(s.userFirstName(false)) + "," + show(s.userLastName(false)) +
                       "," + show(s.userEmail(false));
            return out + "}";
        }
        case zlTypeRoot:
            break;
        case zlTypeKeys:
        case zlTypeTrash:
            out = item.typeCode() == zlTypeKeys ? "keys[" : "trash[";
            break;
        case zlTypeKey:
            out = "(";
            break;
        default:
            return zlKeyFieldElement(item.typeCode()) +
                   ("=" + show(static_cast<const zlFileItemKeyItem&>(item).value()));
    }
    const size_t opened = out.size();
    for (size_t i = 0; i < item.childCount(); ++i) {
        if (item.child(i))
            out += (out.size() > opened ? " " : "") + treeText(*item.child(i), plain);
    }
    if (item.typeCode() == zlTypeRoot)
        return out;
    return out + (item.typeCode() == zlTypeKey ? ")" : "]");
}

}  // namespace ztest
