#include "support/legacy_writer.h"

#include <cstdio>

#include "core/dm_format.h"
#include "core/dm_utf8_str.h"
#include "crypto/code_table.h"
#include "crypto/zlEncrypt.h"
#include "model/zlVerify.h"

namespace ztest {

std::string legacyHex(const std::string& password, const std::string& plain) {
    Zelto::zlEncrypt cipher;
    dunmar::dm_utf8_str coded;
    if (cipher.set_pass_phrase(password.c_str()) != 0 ||
        cipher.encrypt(dunmar::dm_utf8_str(plain), coded) != 0)
        return "cipher failed";
    std::string hex;
    char pair[3];
    for (size_t i = 0; i + 1 < coded.length(); i += 2) {
        const int byte = Zelto::code_index().find(coded.c_str()[i], coded.c_str()[i + 1]);
        std::snprintf(pair, sizeof pair, "%02X", byte);
        hex += pair;
    }
    return hex;
}

std::string legacyText(const LegacyFile& file) {
    std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n  <settings>\r\n";
    if (file.withVerify) {
        const std::string verify = file.verifyPlain.empty()
                                       ? std::string(Zelto::zlVerifyText, Zelto::zlVerifyTextLength)
                                       : file.verifyPlain;
        text += "    <pw>" + legacyHex(file.password, verify) + "</pw>\r\n";
    }
    if (!file.autoClearClipboard.empty())
        text += "    <autoClearClipboard>" + file.autoClearClipboard + "</autoClearClipboard>\r\n";
    if (!file.language.empty())
        text += "    <language>" + file.language + "</language>\r\n";
    text += "  </settings>\r\n  <keys>\r\n";
    for (const LegacyKey& key : file.keys) {
        text += "    <key>\r\n";
        for (const LegacyField& f : key) {
            const std::string value =
                f.encrypted ? legacyHex(file.password, f.plain) : dunmar::dm_xml_escape(f.plain);
            text += "      <" + f.element + " encrypted=\"" + (f.encrypted ? "true" : "false") +
                    "\">" + value + "</" + f.element + ">\r\n";
        }
        text += "    </key>\r\n";
    }
    text += "  </keys>\r\n</Zelto>\r\n";
    return text;
}

}  // namespace ztest
