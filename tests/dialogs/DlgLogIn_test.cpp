#include "dialogs/DlgLogIn.h"

#include <gtest/gtest.h>

#include <string>

#include "dialogTestSupport.h"
#include "res/resource.h"
#include "ui/support/dialogDriver.h"
#include "ui/textExtent.h"

using namespace ztest;
using Zelto::DlgLogIn;

namespace {

const std::wstring kSeven = L"abc1234";
const std::wstring k127(127, L'p');
const std::wstring k128(128, L'p');

std::wstring buttonText(HWND dialog) {
    return itemText(dialog, IDC_LOGIN_BUTTON);
}

// Types text into the password edit and presses the button.
INT_PTR submit(DlgLogIn& dialog, const std::wstring& password) {
    return runDriven(dialog, {[password](HWND d) {
                         setText(d, IDC_LOGIN_PASSWORD, password);
                         click(d, IDC_LOGIN_BUTTON);
                     }});
}

HWND relabelledCompanion = nullptr;
void recordRelabel(HWND companion) {
    relabelledCompanion = companion;
}

}  // namespace

TEST(DlgLogIn, ButtonSaysOkOnlyForEightTo127Characters) {
    DlgLogIn dialog(thisModule(), nullptr);
    std::vector<std::wstring> seen;
    std::wstring title;
    const INT_PTR result = runDriven(dialog, {[&](HWND d) {
                                                  title = textOf(d);
                                                  seen.push_back(buttonText(d));
                                                  setText(d, IDC_LOGIN_PASSWORD, kSeven);
                                                  seen.push_back(buttonText(d));
                                                  typeChars(d, IDC_LOGIN_PASSWORD, L"8");
                                                  seen.push_back(buttonText(d));
                                                  setText(d, IDC_LOGIN_PASSWORD, k127);
                                                  seen.push_back(buttonText(d));
                                                  setText(d, IDC_LOGIN_PASSWORD, k128);
                                                  seen.push_back(buttonText(d));
                                                  typeChars(d, IDC_LOGIN_PASSWORD, L"\b");
                                                  seen.push_back(buttonText(d));
                                              },
                                              [](HWND d) { click(d, IDC_LOGIN_BUTTON); }});
    EXPECT_EQ(L"Zelto (2.2.1) - LogIn", title);
    EXPECT_EQ((std::vector<std::wstring>{L"Cancel", L"Cancel", L"OK", L"OK", L"Cancel", L"OK"}),
              seen);
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(k127, dialog.password().str());
}

TEST(DlgLogIn, ResultFollowsTheLengthWhenTheButtonIsPressed) {
    {
        DlgLogIn dialog(thisModule(), nullptr);
        EXPECT_EQ(IDCANCEL, submit(dialog, kSeven));
        // The caller still sees that something was typed.
        EXPECT_EQ(kSeven, dialog.password().str());
    }
    {
        DlgLogIn dialog(thisModule(), nullptr);
        EXPECT_EQ(IDOK, submit(dialog, L"abcd1234"));
        EXPECT_EQ(L"abcd1234", dialog.password().str());
    }
    {
        DlgLogIn dialog(thisModule(), nullptr);
        EXPECT_EQ(IDOK, submit(dialog, k127));
    }
    {
        DlgLogIn dialog(thisModule(), nullptr);
        EXPECT_EQ(IDCANCEL, submit(dialog, k128));
        EXPECT_EQ(k128, dialog.password().str());
    }
}

TEST(DlgLogIn, LinkOpensTheMakersSiteAndCancelEnds) {
    ShellRecorder shell;
    DlgLogIn dialog(thisModule(), nullptr);
    bool stillOpen = false;
    const INT_PTR result =
        runDriven(dialog, {[](HWND d) {
                               EXPECT_EQ(L"zelto.example", itemText(d, IDC_HYPERLINK));
                               // Nobody offers the language choice by default.
                               EXPECT_EQ(nullptr, GetDlgItem(d, IDC_LOGIN_LANGUAGE));
                               setText(d, IDC_LOGIN_PASSWORD, L"abcd1234");
                               command(d, IDC_HYPERLINK, STN_CLICKED);
                           },
                           [&](HWND d) {
                               stillOpen = IsWindowVisible(d) != FALSE;
                               // Escape, or the close box: cancelled whatever was typed.
                               SendMessageW(d, WM_CLOSE, 0, 0);
                           }});
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ((std::vector<std::wstring>{L"https://zelto.example/"}), shell.targets());
    EXPECT_EQ(IDCANCEL, result);
}

TEST(DlgLogIn, LayoutAndTrackSizes) {
    DlgLogIn dialog(thisModule(), nullptr);
    runDriven(dialog, {[&](HWND d) {
                           // Asked for 209 x 67, held at the minimum track size.
                           EXPECT_EQ(dialog.minTrackWidth(), outerSize(d).cx);
                           EXPECT_EQ(160, outerSize(d).cy);
                           const SIZE prompt =
                               dunmar::textExtent(GetDlgItem(d, IDC_LOGIN_PROMPT),
                                                  dunmar::dm_string(text(16).c_str()));
                           EXPECT_EQ(prompt.cx + 16 + 96 + 32, dialog.minTrackWidth());
                           EXPECT_EQ(GetDlgItem(d, IDC_LOGIN_PASSWORD), GetFocus());

                           resizeTo(d, 520, 260);
                           const SIZE client = clientSize(d);
                           const int t = prompt.cy;
                           const int h = t + 8;
                           const int W = client.cx;
                           const int H = client.cy;
                           EXPECT_EQ(describe({8, 8, 8 + prompt.cx + 16, 8 + h}),
                                     describe(childRect(d, IDC_LOGIN_PROMPT)));
                           EXPECT_EQ(describe({8, t + 24, W - 8, t + 24 + h}),
                                     describe(childRect(d, IDC_LOGIN_PASSWORD)));
                           EXPECT_EQ(describe({8, 2 * h + 24, W - 96, 3 * h + 24}),
                                     describe(childRect(d, IDC_HYPERLINK)));
                           EXPECT_EQ(describe({W - 88, H - h - 8, W - 8, H - 8}),
                                     describe(childRect(d, IDC_LOGIN_BUTTON)));

                           resizeTo(d, 100, 40);
                           EXPECT_EQ(dialog.minTrackWidth(), outerSize(d).cx);
                           EXPECT_EQ(160, outerSize(d).cy);
                           EXPECT_TRUE(GetWindowLongPtrW(d, GWL_STYLE) & WS_MINIMIZEBOX);
                       },
                       [](HWND d) { command(d, IDCANCEL); }});
}

TEST(DlgLogIn, CompanionFollowsTheDialog) {
    HWND companion = CreateWindowExW(0, L"STATIC", L"main", WS_OVERLAPPEDWINDOW, 0, 0, 300, 450,
                                     nullptr, nullptr, thisModule(), nullptr);
    ASSERT_NE(nullptr, companion);
    DlgLogIn dialog(thisModule(), companion);
    RECT glued = {};
    RECT dialogRect = {};
    RECT moved = {};
    RECT movedDialog = {};
    POINT remembered = {};
    runDriven(dialog, {[&](HWND d) {
                           GetWindowRect(companion, &glued);
                           GetWindowRect(d, &dialogRect);
                           SetWindowPos(d, nullptr, dialogRect.left + 37, dialogRect.top + 11, 0, 0,
                                        SWP_NOSIZE | SWP_NOZORDER);
                           GetWindowRect(companion, &moved);
                           GetWindowRect(d, &movedDialog);
                           remembered = DlgLogIn::lastPosition();
                       },
                       [](HWND d) { command(d, IDCANCEL); }});
    DestroyWindow(companion);
    EXPECT_EQ(describe(dialogRect), describe(glued));
    EXPECT_EQ(describe(movedDialog), describe(moved));
    EXPECT_EQ(dialogRect.left + 37, moved.left);
    EXPECT_EQ(movedDialog.left, remembered.x);
    EXPECT_EQ(movedDialog.top, remembered.y);
}

TEST(DlgLogIn, OfferedLanguageChoiceRelabelsDialogAndCompanion) {
    LanguageScope english(Zelto::zlLanguageEnglish);
    HWND companion = CreateWindowExW(0, L"STATIC", L"main", WS_OVERLAPPEDWINDOW, 0, 0, 300, 450,
                                     nullptr, nullptr, thisModule(), nullptr);
    DlgLogIn::setRelabelHandler(&recordRelabel);
    relabelledCompanion = nullptr;
    DlgLogIn dialog(thisModule(), companion);
    dialog.setOfferLanguageChoice(true);
    std::vector<std::wstring> items;
    std::wstring prompt;
    runDriven(dialog, {[&](HWND d) {
                           HWND combo = GetDlgItem(d, IDC_LOGIN_LANGUAGE);
                           ASSERT_NE(nullptr, combo);
                           for (int i = 0; i < 2; ++i) {
                               wchar_t item[32] = {};
                               SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(item));
                               items.push_back(item);
                           }
                           EXPECT_EQ(0, SendMessageW(combo, CB_GETCURSEL, 0, 0));
                           SendMessageW(combo, CB_SETCURSEL, 1, 0);
                           command(d, IDC_LOGIN_LANGUAGE, CBN_SELCHANGE);
                           prompt = itemText(d, IDC_LOGIN_PROMPT);
                       },
                       [](HWND d) { command(d, IDCANCEL); }});
    DlgLogIn::setRelabelHandler(nullptr);
    DestroyWindow(companion);
    EXPECT_EQ((std::vector<std::wstring>{L"English", L"Deutsch"}), items);
    EXPECT_EQ(Zelto::zlLanguageGerman, Zelto::zlGetLanguage());
    EXPECT_EQ(L"Bitte Passwort eingeben", prompt);
    EXPECT_EQ(companion, relabelledCompanion);
}
