// The texts of the interface in the language of the settings, or the system's when automatic.
#include "app/zlTexts.h"

#include <cstdlib>
#include <tuple>

#include "app_test_util.h"

static int g_system = 9;
static int fakeSystem() {
    return g_system;
}

static std::string text(int id) {
    return u8(dm_string(zlText(id)));
}

// Only the two exact names are taken from the settings; otherwise the language follows the
// system at every lookup. French has no texts of its own, other languages get English.
TEST(zlTexts, LanguageAndColumn) {
    zlSetUiLanguageSource(fakeSystem);
    const std::string open = u8"\u00D6ffnen";
    const std::tuple<const char*, bool, int, int, std::string, const char*> cases[] = {
        {"Deutsch", true, 9, zlLanguageGerman, open, "Deutsch"},
        {"English", true, 7, zlLanguageEnglish, "Open", "English"},
        {"english", false, 7, zlLanguageGerman, open, "Deutsch"},
        {"", false, 9, zlLanguageEnglish, "Open", "English"},
        {"Klingon", false, 12, zlLanguageFrench, "Open", "English"},
        {"", false, 16, zlLanguageEnglish, "Open", "English"}};
    for (const auto& [name, taken, system, effective, opened, fileName] : cases) {
        SCOPED_TRACE(std::string(name) + " on " + std::to_string(system));
        zlSetLanguage(zlLanguageAuto);
        g_system = system;
        EXPECT_EQ(taken, zlSetLanguageFromSettings(name));
        EXPECT_EQ(effective, zlEffectiveLanguage());
        EXPECT_EQ(opened, text(12));
        EXPECT_EQ(fileName, zlLanguageNameForFile().str());
        // Identifiers without a row or without texts, and the empty last row.
        for (const auto& [id, fallback] :
             {std::make_pair(-1, "???"), {29, "???"}, {76, "???"}, {75, ""}, {0, "Zelto"}})
            EXPECT_EQ(fallback, text(id)) << id;
    }
    zlSetLanguage(3);  // a number of no language
    EXPECT_EQ("Open", text(12));
    // The table's own spelling and blanks are kept.
    EXPECT_EQ("For security, hould we create a backup first", text(72));
    zlSetUiLanguageSource(nullptr);
    zlSetLanguage(zlLanguageAuto);
}

#ifndef _WIN32
// On the host the locale environment stands for the system's interface language.
TEST(zlTextsSystem, LocaleEnvironmentPlaysTheSystemLanguage) {
    const char* saved = std::getenv("LC_ALL");
    const std::string keep = saved ? saved : "";
    for (const auto& [value, primary] :
         {std::make_pair("fr_FR", 12), {"C", 9}, {"de_DE.UTF-8", 7}}) {
        setenv("LC_ALL", value, 1);
        EXPECT_EQ(primary, zlSystemUiPrimaryLanguage()) << value;
    }
    EXPECT_EQ("Deutsch", zlLanguageNameForFile().str());  // no other source: the system's
    saved ? setenv("LC_ALL", keep.c_str(), 1) : unsetenv("LC_ALL");
}
#endif
