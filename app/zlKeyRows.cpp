#include "app/zlKeyRows.h"

#include "app/zlKeyFilter.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr int kShortestLongName = 10;
constexpr int kRevealBeyondName = 10;

}  // namespace

dm_string zlRowText(const dm_string& name, const dm_string& label) {
    dm_string text(name);
    if (!label.empty()) {
        text.append(DM_W(" ("));
        text.append(label);
        text.append(DM_W(")"));
    }
    return text;
}

dm_string zlMaskRow(const dm_string& text, int position) {
    const size_t shown = position > 0 ? static_cast<size_t>(position) : 0;
    if (text.empty() || text.length() < shown)
        return text;
    dunmar::dm_wstring masked = text.str();
    for (size_t i = shown; i < masked.size(); ++i)
        masked[i] = DM_W('*');
    return dm_string(masked);
}

int zlLongestNameLength(const zlFileItem* container) {
    size_t longest = kShortestLongName;
    for (const zlFileItemKey* key : zlKeysOf(container)) {
        const size_t length = key->plainName().to_wide().length();
        if (length > longest)
            longest = length;
    }
    return static_cast<int>(longest);
}

int zlPartialShowMaximum(const zlFileItem* container) {
    return zlLongestNameLength(container) + kRevealBeyondName;
}

}  // namespace Zelto
