#include "dialogs/DlgLogIn.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogTestSupport.h"

using namespace ztest;
using Zelto::DlgLogIn;

// The button ends the dialog as cancelled below eight characters; the password is still seen.
TEST(DlgLogIn, ButtonSaysOkForEightTo127CharactersAndTheLanguageChoiceRelabels) {
    static HWND relabelled = nullptr;
    HWND companion = CreateWindowExW(0, L"STATIC", L"main", WS_OVERLAPPEDWINDOW, 0, 0, 300, 450,
                                     nullptr, nullptr, kModule, nullptr);
    DlgLogIn::setRelabelHandler([](HWND c) { relabelled = c; });
    DlgLogIn dialog(kModule, companion);
    dialog.setOfferLanguageChoice(true);
    const std::wstring k127(127, L'p');  // and 7, 8, 128 characters below
    std::vector<std::wstring> seen;      // the button after each change, then the choice's effect
    SIZE opened = {}, shrunk = {};
    const INT_PTR result =
        runDriven(dialog, {[&](HWND d) {
                      EXPECT_EQ(GetDlgItem(d, IDC_LOGIN_PASSWORD), GetFocus());
                      seen.push_back(itemText(d, IDC_LOGIN_BUTTON));
                      for (const auto& text : std::vector<std::wstring>{L"abc1234", L"abc12345",
                                                                        k127, k127 + L"p", k127}) {
                          setText(d, IDC_LOGIN_PASSWORD, text);
                          seen.push_back(itemText(d, IDC_LOGIN_BUTTON));
                      }
                      HWND combo = GetDlgItem(d, IDC_LOGIN_LANGUAGE);
                      EXPECT_EQ(L"English", textOf(combo));  // the language in use
                      SendMessageW(combo, CB_SETCURSEL, 1, 0);
                      command(d, IDC_LOGIN_LANGUAGE, CBN_SELCHANGE);
                      seen.push_back(itemText(d, IDC_LOGIN_PROMPT));
                      opened = outerSize(d);  // asked for 209 x 67, held at the minimum
                      SetWindowPos(d, nullptr, 0, 0, 100, 40, SWP_NOMOVE | SWP_NOZORDER);
                      shrunk = outerSize(d);
                      setText(d, IDC_LOGIN_PASSWORD, L"abc1234");
                      click(d, IDC_LOGIN_BUTTON);
                  }});
    Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
    DlgLogIn::setRelabelHandler(nullptr);
    DestroyWindow(companion);
    EXPECT_EQ(IDCANCEL, result);
    EXPECT_EQ(L"abc1234", dialog.password().str());
    EXPECT_EQ((std::vector<std::wstring>{L"Cancel", L"Cancel", L"OK", L"OK", L"Cancel", L"OK",
                                         L"Bitte Passwort eingeben"}),
              seen);
    EXPECT_EQ(companion, relabelled);
    const std::vector<LONG> minimum = {dialog.minTrackWidth(), 160, dialog.minTrackWidth(), 160};
    EXPECT_EQ(minimum, (std::vector<LONG>{opened.cx, opened.cy, shrunk.cx, shrunk.cy}));
}
