#include "dialogs/DlgSetMasterPw.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogTestSupport.h"

using namespace ztest;

TEST(DlgSetMasterPw, EachRuleKeepsTheDialogOpenWithItsMessage) {
    const std::wstring valid127 = L"a" + std::wstring(126, L'7');
    const std::wstring unequal = L"Password and verification text are not equal";
    // Password, verification, the message OK leaves; the last is accepted.
    const std::vector<std::vector<std::wstring>> attempts = {
        {L"abc1234", L"abc1234", L"Password size to small"},
        {valid127 + L"7", valid127 + L"7", L"Password size to big"},
        {L"1abcdefg", L"1abcdefg", L"First character must not be a number"},
        {L"abcd 1234", L"x", L"Invalid character in password (allowed: A-Z, a-z, 0-9)"},
        {L"Abcd1234", L"abcd1234", unequal},
        {L"abcd1234", L"", unequal},
        {valid127, valid127, L""},
    };
    std::vector<std::wstring> messages, expected;
    Zelto::DlgSetMasterPw dialog(kModule, nullptr);
    EXPECT_EQ(IDOK, runDriven(dialog, {[&](HWND d) {
                                  for (int id : {IDC_SETPW_PASSWORD, IDC_SETPW_VERIFY})
                                      EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, id), GWL_STYLE) &
                                                  ES_PASSWORD);
                                  for (const auto& a : attempts) {
                                      setText(d, IDC_SETPW_PASSWORD, a[0]);
                                      setText(d, IDC_SETPW_VERIFY, a[1]);
                                      click(d, IDOK);
                                      if (!a[2].empty()) {
                                          messages.push_back(a[0] + L": " +
                                                             itemText(d, IDC_SETPW_MESSAGE));
                                          expected.push_back(a[0] + L": " + a[2]);
                                      }
                                  }
                              }}));
    EXPECT_EQ(expected, messages);
    EXPECT_EQ(valid127, dialog.password().str());
}
