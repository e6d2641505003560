#pragma once

#include <windows.h>

#include <unordered_map>
#include <vector>

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "model/zlFileItemKey.h"

namespace Zelto {

// What the key list shows, kept beside the list box so that a rewrite costs little: each
// key's deciphered label and unmasked row text (renewed once the key's enciphered name or
// label is no longer the one they came from), and the row texts last written.
class mainWindowListRows {
  public:
    // The key's label as zlKeyLabel deciphers it.
    const dunmar::dm_string& labelOf(const zlFileItemKey& key);
    // The key's row before masking: its name, then the label in brackets.
    const dunmar::dm_string& textOf(const zlFileItemKey& key);
    // Forgets what it holds of keys that are not among keys.
    void keepOnly(const std::vector<zlFileItemKey*>& keys);

    // Makes the list's rows read texts, with drawing off meanwhile and the selection kept.
    // The top row stays in view with keepTop; otherwise the list starts at its first row.
    void write(HWND list, std::vector<dunmar::dm_string>&& texts, bool keepTop);

  private:
    struct entry {
        dunmar::dm_utf8_str name;  // the enciphered texts the entry was made from
        dunmar::dm_utf8_str label;
        dunmar::dm_string plainLabel;
        dunmar::dm_string text;
        bool whole = false;  // everything deciphered
    };
    const entry& entryOf(const zlFileItemKey& key);
    void rebuild(HWND list, const std::vector<dunmar::dm_string>& texts);

    std::unordered_map<const zlFileItemKey*, entry> entries_;
    std::vector<dunmar::dm_string> written_;
};

}  // namespace Zelto
