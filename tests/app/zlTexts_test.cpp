#include "app/zlTexts.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "core/dm_string.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

int g_system = 9;
int fakeSystem() {
    return g_system;
}

std::string utf8(const dunmar::dm_wchar* text) {
    return dm_string(text).to_utf8().str();
}

class TextsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        zlSetUiLanguageSource(fakeSystem);
        zlSetLanguage(zlLanguageAuto);
        g_system = 9;
    }
    void TearDown() override {
        zlSetUiLanguageSource(nullptr);
        zlSetLanguage(zlLanguageAuto);
    }
};

TEST_F(TextsTest, GermanAndEnglishColumns) {
    zlSetLanguage(zlLanguageGerman);
    EXPECT_EQ(
        "\xC3\x96"
        "ffnen",
        utf8(zlText(12)));
    EXPECT_EQ("'%s' in die Zwischenablage kopiert", utf8(zlText(19)));
    zlSetLanguage(zlLanguageEnglish);
    EXPECT_EQ("Open", utf8(zlText(12)));
    EXPECT_EQ("Copied '%s' to clipboard", utf8(zlText(19)));
    // The table's own spelling and blanks are kept.
    EXPECT_EQ("Quit Applikation ?", utf8(zlText(32)));
    EXPECT_EQ("For security, hould we create a backup first", utf8(zlText(72)));
    const std::string warning = utf8(zlText(36));
    EXPECT_EQ(' ', warning.front());
    EXPECT_EQ(' ', warning.back());
    EXPECT_NE(std::string::npos, warning.find(" \r\n Please ensure"));
}

TEST_F(TextsTest, AutomaticFollowsTheSystemAtEveryLookup) {
    g_system = 7;
    EXPECT_EQ(zlLanguageGerman, zlEffectiveLanguage());
    EXPECT_EQ("Benutzer", utf8(zlText(4)));
    g_system = 9;
    EXPECT_EQ("User", utf8(zlText(4)));
    // French has no texts of its own: English throughout.
    g_system = 12;
    EXPECT_EQ(zlLanguageFrench, zlEffectiveLanguage());
    EXPECT_EQ("User", utf8(zlText(4)));
    EXPECT_EQ("Quit Applikation ?", utf8(zlText(32)));
    // Any other system language counts as English.
    g_system = 16;
    EXPECT_EQ(zlLanguageEnglish, zlEffectiveLanguage());
    EXPECT_EQ(zlLanguageAuto, zlGetLanguage());
}

TEST_F(TextsTest, FallbacksAndTheEmptyLastRow) {
    for (int language : {zlLanguageEnglish, zlLanguageGerman, zlLanguageFrench}) {
        zlSetLanguage(language);
        EXPECT_EQ("", utf8(zlText(75))) << language;     // empty, yet no "???"
        EXPECT_EQ("???", utf8(zlText(29))) << language;  // an unused identifier
        EXPECT_EQ("???", utf8(zlText(76))) << language;
        EXPECT_EQ("???", utf8(zlText(-1))) << language;
        EXPECT_EQ("Zelto", utf8(zlText(zlTextAppName))) << language;
    }
}

// Only the two exact names are taken; the name written back follows the effective language.
TEST_F(TextsTest, LanguageFromSettings) {
    g_system = 7;
    for (const char* refused : {"Klingon", "", "english"})
        EXPECT_FALSE(zlSetLanguageFromSettings(dm_utf8_str(refused))) << refused;
    EXPECT_EQ(zlLanguageAuto, zlGetLanguage());
    EXPECT_EQ("Deutsch", zlLanguageNameForFile().str());  // automatic, German system
    const std::pair<const char*, int> taken[] = {{"English", zlLanguageEnglish},
                                                 {"Deutsch", zlLanguageGerman}};
    for (const auto& c : taken) {
        EXPECT_TRUE(zlSetLanguageFromSettings(dm_utf8_str(c.first)));
        EXPECT_EQ(c.second, zlGetLanguage());
        EXPECT_EQ(c.first, zlLanguageNameForFile().str());
    }
    zlSetLanguage(zlLanguageFrench);
    EXPECT_EQ("English", zlLanguageNameForFile().str());
}

#ifndef _WIN32
// On the host the locale environment stands for the system's interface language.
TEST(zlTextsSystem, LocaleEnvironmentPlaysTheSystemLanguage) {
    zlSetUiLanguageSource(nullptr);
    zlSetLanguage(zlLanguageAuto);
    const char* saved = std::getenv("LC_ALL");
    const std::string keep = saved ? saved : "";
    setenv("LC_ALL", "de_DE.UTF-8", 1);
    EXPECT_EQ(7, zlSystemUiPrimaryLanguage());
    EXPECT_EQ("Passwort", utf8(zlText(5)));
    setenv("LC_ALL", "fr_FR.UTF-8", 1);
    EXPECT_EQ(12, zlSystemUiPrimaryLanguage());
    EXPECT_EQ("Password", utf8(zlText(5)));
    if (saved) {
        setenv("LC_ALL", keep.c_str(), 1);
    } else {
        unsetenv("LC_ALL");
    }
}
#endif

}  // namespace
