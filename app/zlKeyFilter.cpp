#include "app/zlKeyFilter.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_stringlist;
using dunmar::dm_utf8_str;
using dunmar::dm_wchar;

namespace {

bool contains(const dm_stringlist& list, const dm_string& text) {
    for (const dm_string& item : list) {
        if (item.equals(text))
            return true;
    }
    return false;
}

}  // namespace

dm_stringlist zlLabelPieces(const dm_string& label) {
    dm_stringlist pieces;
    const dm_wchar* text = label.c_str();
    const size_t n = label.length();
    size_t start = 0;
    while (start <= n) {
        size_t end = start;
        while (end < n && text[end] != ',')
            ++end;
        size_t first = start;
        while (first < end && text[first] == ' ')
            ++first;
        if (first < end)
            pieces.append(dm_string(text + first, end - first));
        start = end + 1;
    }
    return pieces;
}

bool zlLabelMatches(const dm_string& label, const dm_string& filter) {
    if (filter.empty())
        return true;
    return contains(zlLabelPieces(label), filter);
}

dm_string zlKeyLabel(const zlFileItemKey& key) {
    dm_utf8_str plain;
    if (!key.plainField(zlTypeKeyLabel, plain))
        return dm_string();
    return plain.to_wide();
}

std::vector<zlFileItemKey*> zlKeysOf(const zlFileItem* container) {
    std::vector<zlFileItemKey*> keys;
    if (!container)
        return keys;
    for (size_t i = 0; i < container->childCount(); ++i) {
        zlFileItem* item = container->child(i);
        if (item && item->typeCode() == zlTypeKey)
            keys.push_back(static_cast<zlFileItemKey*>(item));
    }
    return keys;
}

dm_stringlist zlCollectLabels(const zlFileItem* container) {
    dm_stringlist labels;
    for (const zlFileItemKey* key : zlKeysOf(container)) {
        for (const dm_string& piece : zlLabelPieces(zlKeyLabel(*key))) {
            if (!contains(labels, piece))
                labels.append(piece);
        }
    }
    return labels;
}

std::vector<zlFileItemKey*> zlFilterKeys(const zlFileItem* container, const dm_string& filter) {
    std::vector<zlFileItemKey*> kept;
    for (zlFileItemKey* key : zlKeysOf(container)) {
        if (zlLabelMatches(zlKeyLabel(*key), filter))
            kept.push_back(key);
    }
    return kept;
}

}  // namespace Zelto
