#include "app/zlStartupRead.h"

#include "app/zlConversion.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;
using dunmar::dm_wchar;

namespace {

bool fail(dm_string& detail, const dm_wchar* text) {
    detail = dm_string(text);
    return false;
}

dm_string quoted(const dm_wchar* before, const dm_string& path) {
    dm_string text(before);
    text.append(DM_W("\""));
    text.append(path);
    text.append(DM_W("\""));
    return text;
}

}  // namespace

bool zlReadKeyFileWithConversion(zlKeyFile& file, const zlFileSet& files,
                                 const dm_utf8_str& password, dm_string& detail) {
    detail.clear();
    int result = file.readFile(files.keyFile);
    if (result == zlReadOlderFormat)
        result = zlReadWithConversion(file, files, password, detail);
    if (result != zlReadOk)
        return false;
    if (!file.settings())
        return fail(detail, DM_W("<settings> section not found"));
    // A file without keys gets an empty list, so that it always has one to add to.
    if (!file.keys())
        file.root().appendChild(new zlFileItemKeys(&file));
    return true;
}

dm_string zlReadFailureText(const dm_string& path, const dm_string& detail) {
    dm_string text = quoted(DM_W("ERROR: failed to read "), path);
    if (!detail.empty()) {
        text.append(DM_W(" ("));
        text.append(detail);
        text.append(DM_W(")"));
    }
    return text;
}

dm_string zlCreateFailureText(const dm_string& path) {
    return quoted(DM_W("ERROR: Failed to create default Zelto Xml-File "), path);
}

}  // namespace Zelto
