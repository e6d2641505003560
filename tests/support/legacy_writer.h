#pragma once

#include <string>
#include <vector>

// Writes key files of the older format, which the product only reads. Values are made with
// the current cipher and then rewritten pair by pair as plain hexadecimal, independently of
// the product's hexadecimal reader.
namespace ztest {

struct LegacyField {
    std::string element;  // "name", "label", ..., "note"
    bool encrypted;
    std::string plain;
};

using LegacyKey = std::vector<LegacyField>;

struct LegacyFile {
    std::string password;
    std::string verifyPlain;  // empty: the built-in verify text
    bool withVerify = true;
    std::string autoClearClipboard;  // element left out when empty
    std::string language;            // element left out when empty
    std::vector<LegacyKey> keys;
};

// plain enciphered under password, written as upper-case hexadecimal pairs.
std::string legacyHex(const std::string& password, const std::string& plain);

// & < > " ' written as character references.
std::string xmlEscape(const std::string& text);

std::string legacyText(const LegacyFile& file);

}  // namespace ztest
