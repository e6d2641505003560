#include "cloud/zlAzureTableEntity.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "cloud/zlTableKeys.h"
#include "core/dm_convert.h"

namespace Zelto {

namespace {

const char kDataParts[] = "DataParts";

// Each string property: 8 bytes, its name and its value in UTF-16, and 4 bytes of length.
size_t stringPropertyBytes(size_t nameLength, size_t valueUnits) {
    return 8 + 2 * nameLength + 4 + 2 * valueUnits;
}

bool wideFromUtf8(const dunmar::dm_utf8_str& text, dunmar::dm_string& out) {
    bool complete = false;
    dunmar::dm_wstring wide = dunmar::utf8_to_utf16(text.c_str(), text.length(), &complete);
    if (!complete) {
        return false;
    }
    out = dunmar::dm_string(wide);
    return true;
}

bool utf8FromWide(const dunmar::dm_wstring& text, std::string& out) {
    bool complete = false;
    out = dunmar::utf16_to_utf8(text.data(), text.size(), &complete);
    return complete;
}

}  // namespace

zlCloudResult zlAzureTableEntity::fill(const zlFileItemSettings& settings,
                                       const dunmar::dm_utf8_str& fileText) {
    zlAzureTableEntity next;
    const struct {
        dunmar::dm_utf8_str text;
        dunmar::dm_string* field;
        const char* name;
    } values[] = {
        {settings.userFirstName(true), &next.firstName, "first name"},
        {settings.userLastName(true), &next.lastName, "last name"},
        {settings.userEmail(true), &next.email, "e-mail"},
        {settings.verify, &next.verify, "verify value"},
        {fileText, &next.data, "key file text"},
    };
    for (const auto& value : values) {
        if (!wideFromUtf8(value.text, *value.field)) {
            return zlCloudFailure(zlCloudBadText,
                                  std::string("the ") + value.name + " is not well-formed text");
        }
    }
    *this = next;
    return zlCloudSuccess();
}

std::vector<dunmar::dm_wstring> zlAzureTableEntity::dataParts() const {
    std::vector<dunmar::dm_wstring> parts;
    const dunmar::dm_wstring& text = data.str();
    size_t start = 0;
    do {
        size_t length = std::min(maxPropertyUnits, text.size() - start);
        const size_t end = start + length;
        // A pair of surrogates stays together in the next part.
        if (end < text.size() && length > 1 && text[end - 1] >= 0xD800 && text[end - 1] <= 0xDBFF) {
            --length;
        }
        parts.push_back(text.substr(start, length));
        start += length;
    } while (start < text.size());
    return parts;
}

std::string zlAzureTableEntity::dataPropertyName(size_t index) {
    return index == 0 ? std::string("Data") : "Data" + std::to_string(index + 1);
}

size_t zlAzureTableEntity::entityBytes() const {
    // The entity's own overhead (time stamp included) and its two keys.
    size_t bytes = 4 + 2 * (lastName.length() + email.length());
    bytes += stringPropertyBytes(9, firstName.length());  // "FirstName"
    bytes += stringPropertyBytes(6, verify.length());     // "Verify"
    const std::vector<dunmar::dm_wstring> parts = dataParts();
    for (size_t i = 0; i < parts.size(); ++i) {
        bytes += stringPropertyBytes(dataPropertyName(i).size(), parts[i].size());
    }
    if (parts.size() > 1) {
        bytes += 8 + 2 * (sizeof kDataParts - 1) + 4;  // an Int32
    }
    return bytes;
}

zlCloudResult zlAzureTableEntity::check() const {
    zlCloudResult result = zlCheckTableKey(lastName, "last name");
    if (result.ok()) {
        result = zlCheckTableKey(email, "e-mail");
    }
    if (!result.ok()) {
        return result;
    }
    if (firstName.length() > maxPropertyUnits || verify.length() > maxPropertyUnits) {
        return zlCloudFailure(zlCloudEntityTooLarge,
                              "the first name or the verify value is longer than " +
                                  std::to_string(maxPropertyUnits) + " characters");
    }
    const size_t parts = dataParts().size();
    const size_t properties = 3 + 2 + parts + (parts > 1 ? 1 : 0);
    const size_t bytes = entityBytes();
    if (bytes > maxEntityBytes || properties > maxProperties) {
        return zlCloudFailure(zlCloudEntityTooLarge,
                              "the key file is too large for the cloud table (" +
                                  std::to_string((bytes + 1023) / 1024) +
                                  " KiB in one record, which takes at most " +
                                  std::to_string(maxEntityBytes / 1024) + " KiB)");
    }
    return zlCloudSuccess();
}

zlCloudResult zlAzureTableEntity::body(std::string& json) const {
    zlCloudResult result = check();
    if (!result.ok()) {
        return result;
    }
    std::string partitionKey;
    std::string rowKey;
    std::string first;
    std::string verifyText;
    if (!utf8FromWide(lastName.str(), partitionKey) || !utf8FromWide(email.str(), rowKey) ||
        !utf8FromWide(firstName.str(), first) || !utf8FromWide(verify.str(), verifyText)) {
        return zlCloudFailure(zlCloudBadText, "a user field is not well-formed text");
    }
    nlohmann::ordered_json entity;
    entity["PartitionKey"] = partitionKey;
    entity["RowKey"] = rowKey;
    entity["FirstName"] = first;
    entity["Verify"] = verifyText;
    const std::vector<dunmar::dm_wstring> parts = dataParts();
    for (size_t i = 0; i < parts.size(); ++i) {
        std::string part;
        if (!utf8FromWide(parts[i], part)) {
            return zlCloudFailure(zlCloudBadText, "the key file text is not well-formed text");
        }
        entity[dataPropertyName(i)] = part;
    }
    if (parts.size() > 1) {
        entity[kDataParts] = static_cast<int>(parts.size());
    }
    // Every value is well-formed by now, so the dump has nothing to replace.
    json = entity.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    return zlCloudSuccess();
}

}  // namespace Zelto
