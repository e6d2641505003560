#include "model/zlKeyFile.h"

#include <utility>

#include "core/dm_file_layer.h"
#include "core/dm_system.h"
#include "model/zlFileFormat.h"
#include "model/zlKeyFileReader.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_system;
using dunmar::dm_utf8_str;

zlFileItemSettings* zlKeyFile::settings() const {
    return static_cast<zlFileItemSettings*>(root_.findChild(zlTypeSettings));
}

zlFileItemKeys* zlKeyFile::keys() const {
    return static_cast<zlFileItemKeys*>(root_.findChild(zlTypeKeys));
}

zlFileItemTrash* zlKeyFile::trash() const {
    return static_cast<zlFileItemTrash*>(root_.findChild(zlTypeTrash));
}

void zlKeyFile::setPath(const dm_string& path) {
    if (!path.equals(path_))
        forgetDiskBytes();
    path_ = path;
}

void zlKeyFile::rememberDiskBytes(std::string bytes) {
    diskBytes_ = std::move(bytes);
    diskKnown_ = true;
}

void zlKeyFile::forgetDiskBytes() {
    diskBytes_.clear();
    diskKnown_ = false;
}

int zlKeyFile::readFile(const dm_string& path) {
    forgetDiskBytes();
    if (path.empty())
        return zlReadEmptyPath;
    path_ = path;
    if (!dm_system::file_exists(path))
        return zlReadNoFile;
    if (!dm_system::file_exists(path) || !dm_system::file_readable(path))
        return zlReadNotReadable;
    unsigned long long size = 0;
    if (dm_system::file_size(path, size) && size == 0)
        return zlReadEmptyFile;

    dm_utf8_str text;
    if (!dm_system::read_file(path, text))
        return zlReadFailed;
    rememberDiskBytes(text.str());
    if (zlIsOlderFormat(text))
        return zlReadOlderFormat;
    return readText(std::move(text));
}

int zlKeyFile::readText(dm_utf8_str&& text) {
    return zlKeyFileReader(root_).readText(std::move(text));
}

dm_utf8_str zlKeyFile::buildFileText(const dm_utf8_str& languageName) {
    zlFileItemSettings* s = settings();
    if (!s) {
        s = new zlFileItemSettings(this);
        root_.appendChild(s);
    }
    s->version = zlFileItemSettings::programVersion();
    s->language = languageName;

    dm_utf8_str text("<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n");
    root_.writeXml(dm_utf8_str(), text);
    return text;
}

bool zlKeyFile::writeSkeleton(const dm_utf8_str& verify) const {
    if (path_.empty() || dm_system::file_exists(path_))
        return false;
    dunmar::dm_save_file(path_, zlSkeletonText(verify), false);
    return dm_system::file_exists(path_);
}

bool zlKeyFile::moveKeyToTrash(zlFileItemKey* key) {
    zlFileItemKeys* list = keys();
    if (!list || !key)
        return false;
    const long index = list->indexOfChild(key);
    if (index < 0)
        return false;
    zlFileItemTrash* bin = trash();
    if (!bin) {
        bin = new zlFileItemTrash(this);
        root_.appendChild(bin);
    }
    return list->moveChild(index, bin);
}

}  // namespace Zelto
