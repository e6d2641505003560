#include "app/zlTexts.h"

#include "app/zlTextTable.h"

namespace Zelto {

using dunmar::dm_utf8_str;
using dunmar::dm_wchar;

namespace {

int g_language = zlLanguageAuto;
zlUiLanguageSource g_uiLanguageSource = nullptr;

const dm_wchar kFallback[] = {'?', '?', '?', 0};

int languageOfPrimary(int primary) {
    switch (primary) {
        case 7:
            return zlLanguageGerman;
        case 12:
            return zlLanguageFrench;
        default:
            return zlLanguageEnglish;  // English (9) and every other language
    }
}

bool equalsText(const dm_utf8_str& name, int id) {
    return name.to_wide().str() == zlTextTable[id].column[zlLanguageEnglish];
}

}  // namespace

void zlSetUiLanguageSource(zlUiLanguageSource source) {
    g_uiLanguageSource = source;
}

int zlGetLanguage() {
    return g_language;
}

void zlSetLanguage(int language) {
    g_language = language;
}

int zlEffectiveLanguage() {
    if (g_language != zlLanguageAuto)
        return g_language;
    // Not cached: a change of the system's language shows at the next lookup.
    const int primary = g_uiLanguageSource ? g_uiLanguageSource() : zlSystemUiPrimaryLanguage();
    return languageOfPrimary(primary);
}

const dm_wchar* zlText(int id) {
    if (id < 0 || id >= zlTextTableSize)
        return kFallback;
    const zlTextRow& row = zlTextTable[id];
    const int language = zlEffectiveLanguage();
    if (language >= 0 && language < 3) {
        const dm_wchar* text = row.column[language];
        if (text && (text[0] != 0 || language == zlLanguageEnglish))
            return text;
    }
    return row.column[zlLanguageEnglish] ? row.column[zlLanguageEnglish] : kFallback;
}

bool zlSetLanguageFromSettings(const dm_utf8_str& name) {
    if (equalsText(name, zlTextEnglish)) {
        g_language = zlLanguageEnglish;
        return true;
    }
    if (equalsText(name, zlTextDeutsch)) {
        g_language = zlLanguageGerman;
        return true;
    }
    return false;
}

dm_utf8_str zlLanguageNameForFile() {
    const int id = zlEffectiveLanguage() == zlLanguageGerman ? zlTextDeutsch : zlTextEnglish;
    return dunmar::dm_string(zlText(id)).to_utf8();
}

}  // namespace Zelto
