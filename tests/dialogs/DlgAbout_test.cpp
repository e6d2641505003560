#include "dialogs/DlgAbout.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "dialogTestSupport.h"

using namespace ztest;

TEST(DlgAbout, VersionAndBuildDateAtItsSizeAndOkEndsIt) {
    Zelto::DlgAbout dialog(kModule, nullptr);
    std::wstring version;
    SIZE size = {};
    EXPECT_EQ(IDOK, runDriven(dialog, {[&](HWND d) {
                                  version = itemText(d, IDC_ABOUT_VERSION);
                                  size = outerSize(d);
                                  click(d, IDOK);
                              }}));
    EXPECT_EQ(std::make_pair(480L, 200L), std::make_pair(size.cx, size.cy));
    // "Zelto - Version 2.2.1 (Build: Jan 2 2018)", with the date of compilation.
    const std::wregex line(LR"(Zelto - Version 2\.2\.1 \(Build: [A-Z][a-z]{2} [1-9]\d? 20\d\d\))");
    EXPECT_TRUE(std::regex_match(version, line)) << std::string(version.begin(), version.end());
}
