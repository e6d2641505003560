#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "model/zlKeyFile.h"

namespace ztest {

inline std::filesystem::path converterData(const char* name) {
    return std::filesystem::path(ZELTO_TEST_DATA_DIR) / "converter" / name;
}

// The deciphered fields of every key in the key list, each as "element=value", one
// string per key in file order.
inline std::vector<std::string> plainKeys(const Zelto::zlKeyFile& file) {
    static const char* names[] = {"name", "label", "user", "pw", "email", "url", "note"};
    std::vector<std::string> out;
    const Zelto::zlFileItemKeys* keys = file.keys();
    for (size_t i = 0; keys && i < keys->childCount(); ++i) {
        const auto* key = static_cast<const Zelto::zlFileItemKey*>(keys->child(i));
        std::string line;
        for (size_t f = 0; f < key->childCount(); ++f) {
            const auto* field = static_cast<const Zelto::zlFileItemKeyItem*>(key->child(f));
            dunmar::dm_utf8_str plain;
            file.decrypt(field->value(), plain);
            line += std::string(line.empty() ? "" : "|") +
                    names[field->typeCode() - Zelto::zlTypeKeyName] + "=" + plain.str();
        }
        out.push_back(line);
    }
    return out;
}

// The keys of the fixture Legacy.xml, in the form of plainKeys.
inline std::vector<std::string> legacyFixtureKeys() {
    return {
        "name=Bank|label=money, home|user=ada|pw=p&ss<w>rd \"1\" 'x'|email=ada@example.org|"
        "url=https://bank.example/login?a=1&b=2|note=line one\r\nline <two> & 'three'",
        "name=M\xC3\xBCller GmbH|label=|pw=|note=\xC3\x9Cn\xC3\xAF"
        "c\xC3\xB6"
        "d\xC3\xA9 \xE2\x9C\x93, thirty-three bytes and more",
        "name=Plain name|user=x",
    };
}

inline const char* kLegacyFixturePassword = "legacy password";

}  // namespace ztest
