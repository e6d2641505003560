#include "dialogs/DlgEditKey.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "dialogTestSupport.h"
#include "support/test_util.h"

using namespace ztest;
using Zelto::DlgEditKey;
using Fields = std::vector<std::wstring>;

namespace {

const int kEdits[7] = {IDC_EDITKEY_NAME,  IDC_EDITKEY_LABEL, IDC_EDITKEY_USER, IDC_EDITKEY_PW,
                       IDC_EDITKEY_EMAIL, IDC_EDITKEY_URL,   IDC_EDITKEY_NOTE};
const Fields kBefore = {L"Bank", L"money", L"me", L"pw12345678", L"", L"", L"note"};

Fields plainFields(const Zelto::zlFileItemKey* key) {
    Zelto::zlKeyFields fields;
    Fields out;
    for (size_t i = 0; key && Zelto::zlReadKeyFields(*key, fields) && i < 7; ++i)
        out.push_back(fields.value[i].to_wide().str());
    return out;
}

}  // namespace

TEST(DlgEditKey, KeepsTheKeyUnlessAChangeIsStoredAndAsksBeforeReplacingAPassword) {
    DlgEditKey::setGuidSource([](dunmar::dm_string& out) {  // proposals from a fixed identifier
        return out = dunmar::dm_string(L"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9"), true;
    });
    Zelto::zlKeyFields fields;  // a file with a master password and one key holding kBefore
    for (size_t i = 0; i < 7; ++i)
        fields.value[i] = dunmar::dm_string(kBefore[i].c_str()).to_utf8();
    Zelto::zlKeyFile file, empty;  // no master password: nothing can be enciphered
    file.set_pass_phrase(kLongPass);
    Zelto::zlFileItemKey* key = Zelto::zlAddKey(file, fields);
    // Cancel, OK with nothing changed, OK with a new key that cannot be enciphered.
    const struct {
        Zelto::zlKeyFile& file;
        Zelto::zlFileItemKey* key;
        const wchar_t* user;
        int button;
    } cases[] = {{file, key, L"someone", IDCANCEL},
                 {file, key, L"me", IDOK},
                 {empty, nullptr, L"someone", IDOK}};
    for (const auto& c : cases) {
        DlgEditKey edit(kModule, nullptr, c.file, c.key);
        EXPECT_EQ(IDCANCEL, runDriven(edit, {[&](HWND d) {
                                          setText(d, IDC_EDITKEY_USER, L"someone else");
                                          setText(d, IDC_EDITKEY_USER, c.user);
                                          click(d, c.button);
                                      }}));
        EXPECT_EQ(nullptr, edit.storedKey());
    }
    EXPECT_EQ(nullptr, empty.keys());
    EXPECT_EQ(kBefore, plainFields(key));

    DlgEditKey edit(kModule, nullptr, file, key);
    Fields seen;  // the fields shown, then the password before each proposal and after the last
    Fields typed = {
        L"Post office",           L"home, work",          L"m\x00FCller", L"", L"m@example.org",
        L"https://post.example/", L"line one\r\nline two"};
    auto propose = [&](HWND d) {
        seen.push_back(itemText(d, IDC_EDITKEY_PW));
        click(d, IDC_EDITKEY_PROPOSE);  // asks, as the password is not empty
    };
    EXPECT_EQ(IDOK, runDriven(edit, {[&](HWND d) {
                                         for (int id : kEdits)
                                             seen.push_back(itemText(d, id));
                                         propose(d);
                                     },
                                     [](HWND box) { click(box, IDNO); }, propose,
                                     [](HWND box) { click(box, IDYES); },
                                     [&](HWND d) {
                                         seen.push_back(itemText(d, IDC_EDITKEY_PW));
                                         for (int i = 0; i < 7; ++i)
                                             setText(d, kEdits[i], typed[i]);
                                         click(d, IDC_EDITKEY_PROPOSE);  // empty: no question
                                         click(d, IDOK);
                                     }}));
    const wchar_t* proposal = L"zl9Z0A1B2C3d4e59";  // 0A.. gives 9Z, lower case at even places
    Fields expected = kBefore;
    expected.insert(expected.end(), {L"pw12345678", L"pw12345678", proposal});
    EXPECT_EQ(expected, seen);
    EXPECT_EQ(1u, file.keys()->childCount());  // changed in place
    EXPECT_EQ(key, edit.storedKey());
    EXPECT_EQ(L"Post office", edit.storedName().str());
    typed[3] = proposal;
    EXPECT_EQ(typed, plainFields(key));
}
