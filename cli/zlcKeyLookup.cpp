#include "cli/zlcKeyLookup.h"

#include "app/zlKeyFilter.h"

namespace Zelto {

namespace {

// The position of "#N", or 0 when the text is no position (0 itself is none either).
size_t positionOf(const std::string& key) {
    if (key.size() < 2 || key[0] != '#')
        return 0;
    size_t n = 0;
    for (size_t i = 1; i < key.size(); ++i) {
        if (key[i] < '0' || key[i] > '9')
            return 0;
        if (n > 100000000)  // far beyond any key list; keeps the sum from overflowing
            return static_cast<size_t>(-1);
        n = n * 10 + static_cast<size_t>(key[i] - '0');
    }
    return n == 0 ? static_cast<size_t>(-1) : n;
}

}  // namespace

zlcKeyMatch zlcFindKey(const zlFileItem* container, const std::string& key) {
    zlcKeyMatch match;
    const std::vector<zlFileItemKey*> keys = zlKeysOf(container);
    const size_t position = positionOf(key);
    if (position != 0) {
        if (position <= keys.size()) {
            match.result = zlcKeyMatch::found;
            match.key = keys[position - 1];
            match.position = position;
            match.candidates.push_back(position);
        }
        return match;
    }
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i]->plainName().str() == key)
            match.candidates.push_back(i + 1);
    }
    if (match.candidates.size() == 1) {
        match.result = zlcKeyMatch::found;
        match.position = match.candidates[0];
        match.key = keys[match.position - 1];
    } else if (match.candidates.size() > 1) {
        match.result = zlcKeyMatch::ambiguous;
    }
    return match;
}

std::string zlcKeyMatchMessage(const zlcKeyMatch& match, const std::string& key) {
    if (match.result == zlcKeyMatch::ambiguous) {
        std::string text =
            std::to_string(match.candidates.size()) + " keys are named \"" + key + "\" (";
        for (size_t i = 0; i < match.candidates.size(); ++i)
            text += (i ? ", #" : "#") + std::to_string(match.candidates[i]);
        return text + "); name one by its position";
    }
    if (match.result == zlcKeyMatch::notFound) {
        if (positionOf(key) != 0)
            return "no key at position " + key;
        return "no key named \"" + key + "\"";
    }
    return std::string();
}

}  // namespace Zelto
