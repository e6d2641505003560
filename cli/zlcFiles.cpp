#include "cli/zlcFiles.h"

#include "core/dm_system.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

zlFileSet zlcFileSetFor(const std::string* path) {
    if (!path)
        return zlFileSet::ofThisProgram();
    const dm_string wide = dm_utf8_str(*path).to_wide();
    dm_string folder;
    if (!dunmar::dm_system::dir_of_path(wide, folder))
        folder = dm_utf8_str("./").to_wide();
    zlFileSet set = zlFileSet::in(folder, zlNow());
    set.keyFile = wide;
    return set;
}

std::string zlcPathText(const dm_string& path) {
    return path.to_utf8().str();
}

}  // namespace Zelto
