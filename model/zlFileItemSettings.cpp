#include "model/zlFileItemSettings.h"

#include "core/dm_format.h"
#include "crypto/zlEncrypt.h"
#include "model/zlVersion.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

void writeElement(dm_utf8_str& out, const dm_utf8_str& inner, const char* name,
                  const dm_utf8_str& value) {
    out.append("\r\n", 2);
    out.append(inner);
    out.append("<");
    out.append(name);
    out.append(">");
    out.append(value);
    out.append("</");
    out.append(name);
    out.append(">");
}

dm_utf8_str number(long value) {
    return dm_utf8_str(dunmar::dm_format_long(value));
}

}  // namespace

zlFileItemSettings::zlFileItemSettings(zlEncrypt* owner)
    : zlFileItem(owner), version(programVersion()) {}

dm_utf8_str zlFileItemSettings::programVersion() {
    dm_utf8_str text(dunmar::dm_format_long(zlVersionMajor));
    text.append(".");
    text.append(dm_utf8_str(dunmar::dm_format_long(zlVersionMinor)));
    text.append(".");
    text.append(dm_utf8_str(dunmar::dm_format_long(zlVersionPatch)));
    return text;
}

bool zlFileItemSettings::writeXml(const dm_utf8_str& indent, dm_utf8_str& out) const {
    dm_utf8_str inner(indent);
    inner.append("  ", 2);
    out.append("<settings>");
    writeElement(out, inner, "verify", verify);
    writeElement(out, inner, "version", version);
    writeElement(out, inner, "autolock", number(autolock));
    writeElement(out, inner, "autoClearClipboard", number(autoClearClipboard));
    writeElement(out, inner, "showSelectedKey", number(showSelectedKey));
    writeElement(out, inner, "language", language);
    writeElement(out, inner, "userFirstName", userFirstName_);
    writeElement(out, inner, "userLastName", userLastName_);
    writeElement(out, inner, "userEmail", userEmail_);
    if (childCount() == 0) {
        out.append("\r\n", 2);
        out.append(indent);
    } else {
        writeChildList(indent, out);
    }
    out.append("</settings>");
    return true;
}

zlFileItem* zlFileItemSettings::clone() const {
    auto* copy = new zlFileItemSettings(owner());
    copy->verify = verify;
    copy->version = version;
    copy->autolock = autolock;
    copy->autoClearClipboard = autoClearClipboard;
    copy->showSelectedKey = showSelectedKey;
    copy->language = language;
    copy->userFirstName_ = userFirstName_;
    copy->userLastName_ = userLastName_;
    copy->userEmail_ = userEmail_;
    cloneChildrenInto(*copy);
    return copy;
}

dm_utf8_str zlFileItemSettings::userField(const dm_utf8_str& stored, bool decipher) const {
    if (!decipher)
        return stored;
    dm_utf8_str plain;
    if (!owner() || owner()->decrypt(stored, plain) != 0)
        return dm_utf8_str();
    return plain;
}

bool zlFileItemSettings::setUserField(dm_utf8_str& field, const dm_utf8_str& text, bool encipher) {
    field.clear();
    if (!encipher) {
        field = text;
        return true;
    }
    dm_utf8_str enciphered;
    if (!owner() || owner()->encrypt(text, enciphered) != 0)
        return false;
    field = enciphered;
    return true;
}

dm_utf8_str zlFileItemSettings::userFirstName(bool decipher) const {
    return userField(userFirstName_, decipher);
}
dm_utf8_str zlFileItemSettings::userLastName(bool decipher) const {
    return userField(userLastName_, decipher);
}
dm_utf8_str zlFileItemSettings::userEmail(bool decipher) const {
    return userField(userEmail_, decipher);
}
bool zlFileItemSettings::setUserFirstName(const dm_utf8_str& text, bool encipher) {
    return setUserField(userFirstName_, text, encipher);
}
bool zlFileItemSettings::setUserLastName(const dm_utf8_str& text, bool encipher) {
    return setUserField(userLastName_, text, encipher);
}
bool zlFileItemSettings::setUserEmail(const dm_utf8_str& text, bool encipher) {
    return setUserField(userEmail_, text, encipher);
}

bool zlFileItemSettings::assignFrom(const zlFileItemSettings& other) {
    verify = other.verify;
    version = other.version;
    autolock = other.autolock;
    autoClearClipboard = other.autoClearClipboard;
    showSelectedKey = other.showSelectedKey;
    language = other.language;
    return setUserFirstName(other.userFirstName(true), true) &&
           setUserLastName(other.userLastName(true), true) &&
           setUserEmail(other.userEmail(true), true);
}

}  // namespace Zelto
