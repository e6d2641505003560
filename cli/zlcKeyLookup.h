#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/zlFileItemKey.h"

namespace Zelto {

// The outcome of looking a key up by the KEY argument.
struct zlcKeyMatch {
    enum Result { found, notFound, ambiguous };
    Result result = notFound;
    zlFileItemKey* key = nullptr;
    size_t position = 0;             // 1-based, when found
    std::vector<size_t> candidates;  // the positions of every key of that name
};

// "#N" with N all digits is the key at position N of the container's keys (1-based, the
// numbering of zlKeysOf). Any other text is a name, compared exactly with the deciphered
// names; a name several keys share is ambiguous.
zlcKeyMatch zlcFindKey(const zlFileItem* container, const std::string& key);

// The message for a lookup that did not find exactly one key.
std::string zlcKeyMatchMessage(const zlcKeyMatch& match, const std::string& key);

}  // namespace Zelto
