#include "dialogs/DlgSetMasterPw.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "dialogTestSupport.h"
#include "res/resource.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using Zelto::DlgSetMasterPw;

namespace {

struct Attempt {
    std::wstring password;
    std::wstring verify;
    std::wstring message;
};

const std::wstring kTooSmall = L"Password size to small";
const std::wstring kTooBig = L"Password size to big";
const std::wstring kFirst = L"First character must not be a number";
const std::wstring kInvalid = L"Invalid character in password (allowed: A-Z, a-z, 0-9)";
const std::wstring kMismatch = L"Password and verification text are not equal";

// Each attempt types password and verification, presses OK and reads the message line.
std::vector<DialogStep> attempts(const std::vector<Attempt>& list,
                                 std::vector<std::wstring>& messages) {
    std::vector<DialogStep> steps;
    for (const Attempt& attempt : list) {
        steps.push_back([attempt, &messages](HWND d) {
            setText(d, IDC_SETPW_PASSWORD, attempt.password);
            setText(d, IDC_SETPW_VERIFY, attempt.verify);
            click(d, IDOK);
            messages.push_back(itemText(d, IDC_SETPW_MESSAGE));
        });
    }
    return steps;
}

}  // namespace

TEST(DlgSetMasterPw, EveryRuleGivesItsMessageUntilAPasswordPasses) {
    const std::wstring valid127 = L"a" + std::wstring(126, L'7');
    const std::vector<Attempt> list = {
        {L"abc1234", L"abc1234", kTooSmall},
        {L"", L"", kTooSmall},
        {L"a" + std::wstring(127, L'7'), L"a" + std::wstring(127, L'7'), kTooBig},
        {L"1abcdefg", L"1abcdefg", kFirst},
        {L"_abcdefg", L"_abcdefg", kFirst},
        {L"abcd 1234", L"abcd 1234", kInvalid},
        {L"abcd\x00E4\x00F6\x00FC"
         L"1",
         L"abcd\x00E4\x00F6\x00FC"
         L"1",
         kInvalid},
        {L"Abcd1234", L"abcd1234", kMismatch},
        {L"abcd1234", L"", kMismatch},  // not a size message: only the password is ruled
    };
    std::vector<std::wstring> messages;
    DlgSetMasterPw dialog(thisModule(), nullptr);
    std::vector<DialogStep> steps = attempts(list, messages);
    steps.push_back([&](HWND d) {
        setText(d, IDC_SETPW_PASSWORD, valid127);
        setText(d, IDC_SETPW_VERIFY, valid127);
        click(d, IDOK);
    });
    EXPECT_EQ(IDOK, runDriven(dialog, steps));
    ASSERT_EQ(list.size(), messages.size());
    for (size_t i = 0; i < list.size(); ++i)
        EXPECT_EQ(list[i].message, messages[i]) << "attempt " << i;
    EXPECT_EQ(valid127, dialog.password().str());
}

TEST(DlgSetMasterPw, TextsAndTemplatePlaces) {
    DlgSetMasterPw dialog(thisModule(), nullptr);
    const INT_PTR result =
        runDriven(dialog, {[](HWND d) {
                      EXPECT_EQ(L"Zelto - Set Master Password", textOf(d));
                      EXPECT_EQ(L"Password", itemText(d, IDC_SETPW_PASSWORD_LABEL));
                      EXPECT_EQ(L"Verify", itemText(d, IDC_SETPW_VERIFY_LABEL));
                      EXPECT_EQ(L" \r\n" + text(36), itemText(d, IDC_SETPW_WARNING));
                      EXPECT_EQ(L"OK", itemText(d, IDOK));
                      EXPECT_EQ(L"Cancel", itemText(d, IDCANCEL));
                      EXPECT_TRUE(itemText(d, IDC_SETPW_PASSWORD).empty());
                      EXPECT_TRUE(itemText(d, IDC_SETPW_MESSAGE).empty());
                      EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, IDC_SETPW_PASSWORD), GWL_STYLE) &
                                  ES_PASSWORD);
                      EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, IDC_SETPW_WARNING), GWL_STYLE) &
                                  ES_READONLY);
                      // Places in dialog units: id, x, y, width, height.
                      const int places[][5] = {
                          {IDC_SETPW_PASSWORD_LABEL, 7, 13, 76, 13},
                          {IDC_SETPW_PASSWORD, 150, 12, 213, 14},
                          {IDC_SETPW_VERIFY_LABEL, 7, 37, 76, 13},
                          {IDC_SETPW_VERIFY, 150, 36, 213, 14},
                          {IDC_SETPW_WARNING, 7, 61, 356, 80},
                          {IDC_SETPW_MESSAGE, 7, 171, 356, 14},
                          {IDOK, 259, 151, 50, 14},
                          {IDCANCEL, 313, 151, 50, 14},
                      };
                      for (const auto& p : places) {
                          EXPECT_EQ(describe(dialogUnits(d, p[1], p[2], p[3], p[4])),
                                    describe(childRect(d, p[0])))
                              << "control " << p[0];
                      }
                      setText(d, IDC_SETPW_PASSWORD, L"abcd1234");
                      setText(d, IDC_SETPW_VERIFY, L"abcd1234");
                      click(d, IDCANCEL);
                  }});
    EXPECT_EQ(IDCANCEL, result);
    EXPECT_TRUE(dialog.password().empty());
}

TEST(DlgSetMasterPw, GermanTextsButEnglishRuleMessages) {
    LanguageScope german(Zelto::zlLanguageGerman);
    DlgSetMasterPw dialog(thisModule(), nullptr);
    std::wstring message;
    runDriven(dialog, {[&](HWND d) {
                  EXPECT_EQ(L"Zelto - Master Passwort setzen", textOf(d));
                  EXPECT_EQ(L"Passwort", itemText(d, IDC_SETPW_PASSWORD_LABEL));
                  EXPECT_EQ(L"Verifizieren", itemText(d, IDC_SETPW_VERIFY_LABEL));
                  EXPECT_EQ(L"Abbruch", itemText(d, IDCANCEL));
                  EXPECT_NE(std::wstring::npos,
                            itemText(d, IDC_SETPW_WARNING).find(L"Dies ist sehr wichtig"));
                  setText(d, IDC_SETPW_PASSWORD, L"kurz");
                  click(d, IDOK);
                  message = itemText(d, IDC_SETPW_MESSAGE);
                  click(d, IDCANCEL);
              }});
    EXPECT_EQ(kTooSmall, message);
}
