#include "dialogs/DlgSetMasterPw.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogTestSupport.h"
#include "res/resource.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using Zelto::DlgSetMasterPw;

TEST(DlgSetMasterPw, EachRuleKeepsTheDialogOpenWithItsMessage) {
    const std::wstring small = L"Password size to small";
    const std::wstring first = L"First character must not be a number";
    const std::wstring invalid = L"Invalid character in password (allowed: A-Z, a-z, 0-9)";
    const std::wstring unequal = L"Password and verification text are not equal";
    const std::wstring valid127 = L"a" + std::wstring(126, L'7');
    // Password, verification, the message OK leaves.
    const std::vector<std::vector<std::wstring>> attempts = {
        {L"abc1234", L"abc1234", small},
        {L"", L"", small},
        {valid127 + L"7", valid127 + L"7", L"Password size to big"},
        {L"1abcdefg", L"1abcdefg", first},
        {L"_abcdefg", L"_abcdefg", first},
        {L"abcd 1234", L"abcd 1234", invalid},
        {L"abcd\x00E4\x00F6\x00FC"
         L"1",
         L"abcd\x00E4\x00F6\x00FC"
         L"1",
         invalid},
        {L"Abcd1234", L"abcd1234", unequal},
        {L"abcd1234", L"", unequal},  // not a size message: only the password is ruled
    };
    std::vector<std::wstring> messages;
    std::vector<DialogStep> steps = {[](HWND d) {
        for (int id : {IDC_SETPW_PASSWORD, IDC_SETPW_VERIFY})
            EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, id), GWL_STYLE) & ES_PASSWORD);
    }};
    for (const auto& a : attempts) {
        steps.push_back([&a, &messages](HWND d) {
            setText(d, IDC_SETPW_PASSWORD, a[0]);
            setText(d, IDC_SETPW_VERIFY, a[1]);
            click(d, IDOK);
            messages.push_back(a[0] + L" / " + a[1] + L": " + itemText(d, IDC_SETPW_MESSAGE));
        });
    }
    steps.push_back([&](HWND d) {
        setText(d, IDC_SETPW_PASSWORD, valid127);
        setText(d, IDC_SETPW_VERIFY, valid127);
        click(d, IDOK);
    });
    DlgSetMasterPw dialog(thisModule(), nullptr);
    EXPECT_EQ(IDOK, runDriven(dialog, steps));
    std::vector<std::wstring> expected;
    for (const auto& a : attempts)
        expected.push_back(a[0] + L" / " + a[1] + L": " + a[2]);
    EXPECT_EQ(expected, messages);
    EXPECT_EQ(valid127, dialog.password().str());

    DlgSetMasterPw cancelled(thisModule(), nullptr);
    EXPECT_EQ(IDCANCEL, runDriven(cancelled, {[](HWND d) {
                                      setText(d, IDC_SETPW_PASSWORD, L"abcd1234");
                                      setText(d, IDC_SETPW_VERIFY, L"abcd1234");
                                      click(d, IDCANCEL);
                                  }}));
    EXPECT_TRUE(cancelled.password().empty());
}
