#include "app/zlMasterPassword.h"

#include <string>

#include "app/zlKeyFileStore.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

// Builds the re-enciphered copy of file's tree under target's pass phrase.
int copyTree(const zlKeyFile& file, zlKeyFile& target, const dm_utf8_str& newVerify) {
    const zlFileItemSettings* settings = file.settings();
    if (!settings)
        return zlChangeNoSettings;
    auto* newSettings = new zlFileItemSettings(&target);
    target.root().appendChild(newSettings);
    if (!newSettings->assignFrom(*settings))
        return zlChangeSettingsNotCopied;
    newSettings->verify = newVerify;

    if (const zlFileItemKeys* keys = file.keys()) {
        auto* newKeys = new zlFileItemKeys(&target);
        target.root().appendChild(newKeys);
        if (!newKeys->copyKeysFrom(*keys))
            return zlChangeKeyNotCopied;
    }
    if (const zlFileItemTrash* trash = file.trash()) {
        auto* newTrash = new zlFileItemTrash(&target);
        target.root().appendChild(newTrash);
        if (!newTrash->copyKeysFrom(*trash))
            return zlChangeTrashedKeyNotCopied;
    }
    return zlChangeDone;
}

}  // namespace

int zlChangeMasterPassword(zlKeyFile& file, const dm_utf8_str& newPassword,
                           const dm_utf8_str& newVerify, const zlFileSet& files) {
    const std::string current = file.pass_phrase();
    if (newPassword.empty() || newVerify.empty())
        return zlChangeEmpty;
    if (newPassword.str() == current)
        return zlChangeDone;

    zlKeyFile target;
    target.set_pass_phrase(newPassword.c_str());
    const int copied = copyTree(file, target, newVerify);
    if (copied != zlChangeDone)
        return copied;

    // Another program's change is neither backed up nor overwritten.
    const int disk = zlCheckKeyFileOnDisk(file);
    if (disk != zlSaved)
        return disk;
    dunmar::dm_string backup;
    const int backedUp = zlMakeBackup(file.path(), files, backup);
    if (backedUp != zlBackupDone)
        return backedUp;

    target.setPath(file.path());
    const int saved = zlSaveKeyFile(target);
    if (saved != zlSaved)
        return saved;
    file.set_pass_phrase(newPassword.c_str());
    return file.readFile(file.path());
}

}  // namespace Zelto
