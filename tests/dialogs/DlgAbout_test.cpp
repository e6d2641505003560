#include "dialogs/DlgAbout.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "dialogTestSupport.h"
#include "res/resource.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using Zelto::DlgAbout;

TEST(DlgAbout, VersionBuildDateAndTheMakersLink) {
    ShellRecorder shell;
    DlgAbout dialog(thisModule(), nullptr);
    std::wstring title;
    std::wstring version;
    std::wstring link;
    bool stillOpen = false;
    SIZE size = {};
    const INT_PTR result =
        runDriven(dialog, {[&](HWND d) {
                               title = textOf(d);
                               version = itemText(d, IDC_ABOUT_VERSION);
                               link = itemText(d, IDC_HYPERLINK);
                               size = outerSize(d);
                               EXPECT_FALSE(itemText(d, IDC_ABOUT_NOTICE).empty());
                               EXPECT_EQ(L"OK", itemText(d, IDOK));
                               command(d, IDC_HYPERLINK, STN_CLICKED);
                           },
                           [&](HWND d) {
                               stillOpen = IsWindowVisible(d) != FALSE;
                               click(d, IDOK);
                           }});
    EXPECT_EQ(IDOK, result);
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(L"Zelto - About", title);
    EXPECT_EQ(480, size.cx);
    EXPECT_EQ(200, size.cy);
    EXPECT_EQ(L"https://zelto.example/", link);
    EXPECT_EQ((std::vector<std::wstring>{L"https://zelto.example/"}), shell.targets());
    // "Zelto - Version 2.2.1 (Build: Jan 22 2018)", with the date of compilation.
    EXPECT_TRUE(std::regex_match(
        version,
        std::wregex(
            LR"(Zelto - Version 2\.2\.1 \(Build: (Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) [1-9][0-9]? [0-9]{4}\))")))
        << std::string(version.begin(), version.end());
    EXPECT_EQ(version, DlgAbout::versionLine().str());
}

TEST(DlgAbout, GermanTitle) {
    LanguageScope german(Zelto::zlLanguageGerman);
    DlgAbout dialog(thisModule(), nullptr);
    std::wstring title;
    runDriven(dialog, {[&](HWND d) {
                  title = textOf(d);
                  SendMessageW(d, WM_CLOSE, 0, 0);
              }});
    EXPECT_EQ(
        L"Zelto - \x00DC"
        L"ber",
        title);
}
