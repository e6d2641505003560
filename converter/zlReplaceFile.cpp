#include "converter/zlReplaceFile.h"

#include "core/dm_system.h"

namespace Zelto {

bool zlReplaceFileText(const dunmar::dm_string& path, const dunmar::dm_utf8_str& text) {
    if (path.empty())
        return false;
    dunmar::dm_string fresh(path);
    fresh.append(DM_W(".new"));
    if (dunmar::dm_system::write_file(fresh, text) && zlMoveFileOver(fresh, path))
        return true;
    zlRemoveFile(fresh);
    return false;
}

}  // namespace Zelto
