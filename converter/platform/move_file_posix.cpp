#include <unistd.h>

#include <cstdio>
#include <string>

#include "converter/zlReplaceFile.h"
#include "core/dm_convert.h"

namespace Zelto {

namespace {

bool nativePath(const dunmar::dm_string& path, std::string& out) {
    bool complete = false;
    out = dunmar::utf16_to_utf8(path.c_str(), path.length(), &complete);
    return complete && !out.empty();
}

}  // namespace

bool zlMoveFileOver(const dunmar::dm_string& from, const dunmar::dm_string& to) {
    std::string source, target;
    if (!nativePath(from, source) || !nativePath(to, target))
        return false;
    return std::rename(source.c_str(), target.c_str()) == 0;
}

void zlRemoveFile(const dunmar::dm_string& path) {
    std::string name;
    if (nativePath(path, name))
        unlink(name.c_str());
}

}  // namespace Zelto
