#include "dialogs/dialogText.h"

#include "app/zlTexts.h"
#include "model/zlFileItemSettings.h"

namespace Zelto {

using dunmar::dm_string;

dm_string zlDialogTitle(const dunmar::dm_wchar* suffix) {
    dm_string title(zlText(zlTextAppName));
    title.append(L" - ");
    title.append(suffix);
    return title;
}

dm_string zlVersionText() {
    return zlFileItemSettings::programVersion().to_wide();
}

dm_string zlBuildDate() {
    // The compiler pads a single-digit day with a blank: "Jan  2 2018".
    const char* compiled = __DATE__;
    dm_string date;
    for (const char* p = compiled; *p; ++p) {
        if (*p == ' ' && p[1] == ' ')
            continue;
        const wchar_t c = static_cast<wchar_t>(*p);
        date.append(&c, 1);
    }
    return date;
}

}  // namespace Zelto
