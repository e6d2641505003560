#include <nlohmann/json.hpp>

#include "app/zlKeyFilter.h"
#include "cli/zlcOutput.h"
#include "model/zlFileItemKeyItem.h"

namespace Zelto {

// Members keep the order they are added in.
using json = nlohmann::ordered_json;

namespace {

// Never throws: text that is not UTF-8 is replaced, not refused.
std::string dump(const json& value) {
    return value.dump(2, ' ', false, json::error_handler_t::replace) + "\n";
}

json labelArray(const dunmar::dm_stringlist& labels) {
    json array = json::array();
    for (const dunmar::dm_string& label : labels)
        array.push_back(label.to_utf8().str());
    return array;
}

}  // namespace

std::string zlcKeyListJson(const std::vector<zlcListedKey>& keys) {
    json array = json::array();
    for (const zlcListedKey& k : keys) {
        json entry = json::object();
        entry["position"] = k.position;
        entry["name"] = k.name;
        entry["label"] = k.label;
        entry["labels"] = labelArray(zlLabelPieces(dunmar::dm_utf8_str(k.label).to_wide()));
        array.push_back(std::move(entry));
    }
    return dump(array);
}

std::string zlcLabelsJson(const dunmar::dm_stringlist& labels) {
    return dump(labelArray(labels));
}

std::string zlcKeyJson(size_t position, const zlKeyFields& fields, bool reveal) {
    json entry = json::object();
    entry["position"] = position;
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        const char* name = zlKeyFieldElement(zlKeyFieldTypes[i]);
        if (zlKeyFieldTypes[i] == zlTypeKeyPW && !reveal)
            entry[name] = nullptr;
        else
            entry[name] = fields.value[i].str();
    }
    return dump(entry);
}

}  // namespace Zelto
