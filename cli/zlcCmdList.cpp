#include "app/zlKeyFilter.h"
#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcOutput.h"
#include "cli/zlcSession.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

int zlcList(zlcContext& c) {
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    const zlKeyFile& file = session.file();
    const zlFileItem* container =
        c.args.flag("trash") ? static_cast<const zlFileItem*>(file.trash()) : file.keys();
    const std::string* label = c.args.value("label");
    const dm_string filter = label ? dm_utf8_str(*label).to_wide() : dm_string();

    std::vector<zlcListedKey> rows;
    const std::vector<zlFileItemKey*> keys = zlKeysOf(container);
    for (size_t i = 0; i < keys.size(); ++i) {
        const dm_string keyLabel = zlKeyLabel(*keys[i]);
        if (!zlLabelMatches(keyLabel, filter))
            continue;
        rows.push_back({i + 1, keys[i]->plainName().str(), keyLabel.to_utf8().str()});
    }
    c.io.out += c.args.flag("json") ? zlcKeyListJson(rows) : zlcKeyListText(rows);
    return zlcExitOk;
}

int zlcLabels(zlcContext& c) {
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    const dunmar::dm_stringlist labels = zlCollectLabels(session.file().keys());
    c.io.out += c.args.flag("json") ? zlcLabelsJson(labels) : zlcLabelsText(labels);
    return zlcExitOk;
}

}  // namespace Zelto
