#pragma once

#include "core/dm_utf8_str.h"
#include "core/dm_wchar.h"

namespace Zelto {

// Languages of the interface; automatic follows the system's interface language.
enum zlLanguage : int {
    zlLanguageAuto = -1,
    zlLanguageEnglish = 0,
    zlLanguageGerman = 1,
    zlLanguageFrench = 2,
};

// Identifiers of the texts that code outside the table refers to by name.
enum zlTextId : int {
    zlTextAppName = 0,
    zlTextEnglish = 30,
    zlTextDeutsch = 31,
    zlTextLast = 75,
};

// The text of id in the current language: constant, never freed. Falls back to English,
// and to "???" where a row has no English text.
const dunmar::dm_wchar* zlText(int id);

int zlGetLanguage();
void zlSetLanguage(int language);
// The current language with automatic worked out anew from the system.
int zlEffectiveLanguage();

// "English" makes the language English, "Deutsch" German; anything else changes nothing
// and gives false.
bool zlSetLanguageFromSettings(const dunmar::dm_utf8_str& name);

// The name the key file stores for the current language: "Deutsch" or "English".
dunmar::dm_utf8_str zlLanguageNameForFile();

// Where the system's interface language comes from: its primary language number
// (7 German, 9 English, 12 French, ...). Replaceable so tests can play another system.
using zlUiLanguageSource = int (*)();
void zlSetUiLanguageSource(zlUiLanguageSource source);  // null restores the system's
int zlSystemUiPrimaryLanguage();

}  // namespace Zelto
