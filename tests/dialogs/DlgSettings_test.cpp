#include "dialogs/DlgSettings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/zlKeyFileStore.h"
#include "dialogTestSupport.h"

using namespace ztest;
using Zelto::DlgSettings;
using Values = std::vector<int>;  // automatic lock, clipboard, selected key

TEST(DlgSettings, EachValueIsClampedToItsRangeAndSavedBeforeTheNextIsRead) {
    static std::vector<Values> saves;  // every save, with the settings at that moment
    static int failing = 0;            // how many of the next saves fail
    Zelto::zlKeyFile file;
    file.root().appendChild(new Zelto::zlFileItemSettings(&file));
    DlgSettings::setKeyFileSaver([](Zelto::zlKeyFile& f) {
        const Zelto::zlFileItemSettings& s = *f.settings();
        saves.push_back({s.autolock, s.autoClearClipboard, s.showSelectedKey});
        return failing-- > 0 ? 0 : int(Zelto::zlSaved);
    });
    const int edits[3] = {IDC_SETTINGS_AUTOLOCK, IDC_SETTINGS_CLIPBOARD, IDC_SETTINGS_SHOWKEY};
    // Typed, the button, how many saves fail, then the values kept.
    const struct {
        std::vector<std::wstring> typed;
        int button, failing;
        Values kept;
    } cases[] = {{{L"100", L"100", L"10"}, IDCANCEL, 0, {30, 30, 2}},
                 {{L"4", L"601", L"31"}, IDOK, 0, {0, 600, 30}},
                 {{L"5", L"600", L"1"}, IDOK, 2, {5, 600, 1}}};
    Values before = {30, 30, 2};
    for (const auto& c : cases) {
        saves.clear();
        failing = c.failing;
        DlgSettings dialog(kModule, nullptr, file);
        Values shown;
        EXPECT_EQ(c.button, runDriven(dialog, {[&](HWND d) {
                                          for (int i = 0; i < 3; ++i) {
                                              shown.push_back(std::stoi(itemText(d, edits[i])));
                                              setText(d, edits[i], c.typed[i]);
                                          }
                                          click(d, c.button);
                                      }}));
        EXPECT_EQ(before, shown);
        // One save after each value is stored.
        std::vector<Values> expected;
        for (size_t n = 1; c.button == IDOK && n <= 3; ++n) {
            expected.push_back(c.kept);
            std::copy(before.begin() + n, before.end(), expected.back().begin() + n);
        }
        EXPECT_EQ(expected, saves) << c.typed[0];
        EXPECT_EQ(c.failing, dialog.failedSaves());
        before = c.kept;
    }
    DlgSettings::setKeyFileSaver(nullptr);
}
