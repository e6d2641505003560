#pragma once

#include <string>

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "crypto/zlEncrypt.h"
#include "model/zlFileItemContainers.h"
#include "model/zlFileItemKey.h"
#include "model/zlFileItemSettings.h"

namespace Zelto {

// Results of readFile.
enum : int {
    zlReadOk = 1,
    zlReadEmptyPath = -1,
    zlReadNoFile = -2,
    zlReadNotReadable = -3,
    zlReadEmptyFile = -4,
    zlReadFailed = -6,
    zlReadNoParser = -7,
    zlReadOlderFormat = -9,
};

// The cipher object that owns the key file's tree: it embeds the root, so every item
// enciphers and deciphers under its pass phrase, and it reads and builds the file's text.
class zlKeyFile : public zlEncrypt {
  public:
    zlKeyFile() : root_(this) {}

    zlFileItemRoot& root() { return root_; }
    const zlFileItemRoot& root() const { return root_; }

    // The key file this tree was read from and is written to. Another path forgets what
    // the old one held.
    const dunmar::dm_string& path() const { return path_; }
    void setPath(const dunmar::dm_string& path);

    // The bytes of path() as this tree last read or wrote them, so that a save can tell a
    // change by another program; null when they are not known.
    const std::string* diskBytes() const { return diskKnown_ ? &diskBytes_ : nullptr; }
    void rememberDiskBytes(std::string bytes);
    void forgetDiskBytes();

    // The file the last save wrote the tree to instead of path(), because another program
    // had changed path(); empty after any other save.
    const dunmar::dm_string& conflictFile() const { return conflictFile_; }
    void setConflictFile(const dunmar::dm_string& path) { conflictFile_ = path; }

    // First children of the root of each kind, or null.
    zlFileItemSettings* settings() const;
    zlFileItemKeys* keys() const;
    zlFileItemTrash* trash() const;

    // Reads the file at path into the tree (see the zlRead codes) and remembers the path
    // and the bytes read.
    int readFile(const dunmar::dm_string& path);
    // Parses a text already in memory; 1 or -7. Also the entry point of the fuzzer.
    int readText(dunmar::dm_utf8_str&& text);

    // The whole file's text. Creates a settings item when there is none (after the key
    // list) and stamps it with this program's version and the interface language's name.
    dunmar::dm_utf8_str buildFileText(const dunmar::dm_utf8_str& languageName);

    // Writes the first-start file at path() safely and never over another; false when a
    // file is already there or the file does not exist afterwards.
    bool writeSkeleton(const dunmar::dm_utf8_str& verify) const;

    // Moves key from the key list to the trash, making the trash when there is none.
    bool moveKeyToTrash(zlFileItemKey* key);

  private:
    zlFileItemRoot root_;
    dunmar::dm_string path_;
    std::string diskBytes_;
    bool diskKnown_ = false;
    dunmar::dm_string conflictFile_;
};

}  // namespace Zelto
