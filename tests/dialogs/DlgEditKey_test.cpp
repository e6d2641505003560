#include "dialogs/DlgEditKey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "dialogTestSupport.h"
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
using Zelto::DlgEditKey;
using Fields = std::vector<std::string>;

namespace {

const int kEdits[7] = {IDC_EDITKEY_NAME,  IDC_EDITKEY_LABEL, IDC_EDITKEY_USER, IDC_EDITKEY_PW,
                       IDC_EDITKEY_EMAIL, IDC_EDITKEY_URL,   IDC_EDITKEY_NOTE};

const char* nextGuid = nullptr;  // null: the generator fails
bool fixedGuid(dm_string& out) {
    out = dm_utf8_str(nextGuid ? nextGuid : "").to_wide();
    return nextGuid != nullptr;
}

class EditKey : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(0, file.set_pass_phrase(kLongPass));
        DlgEditKey::setGuidSource(&fixedGuid);
        nextGuid = "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9";
    }
    void TearDown() override { DlgEditKey::setGuidSource(nullptr); }

    Zelto::zlFileItemKey* addKey(const Fields& values) {
        Zelto::zlKeyFields fields;
        for (size_t i = 0; i < 7; ++i)
            fields.value[i] = dm_utf8_str(values[i].c_str());
        return Zelto::zlAddKey(file, fields);
    }
    static Fields plainFields(const Zelto::zlFileItemKey* key) {
        Zelto::zlKeyFields fields;
        Fields out;
        if (key && Zelto::zlReadKeyFields(*key, fields)) {
            for (const auto& value : fields.value)
                out.push_back(value.str());
        }
        return out;
    }
    size_t keyCount() const { return file.keys() ? file.keys()->childCount() : 0; }

    Zelto::zlKeyFile file;
};

std::wstring wide(const std::string& utf8) {
    return dm_utf8_str(utf8.c_str()).to_wide().str();
}

}  // namespace

TEST_F(EditKey, NewKeyTakesTheTypedFieldsAndAProposalForAnEmptyPassword) {
    const Fields typed = {
        "Post office",           "home, work",          "m\xC3\xBCller", "", "m@example.org",
        "https://post.example/", "line one\r\nline two"};
    DlgEditKey edit(thisModule(), nullptr, file, nullptr);
    std::wstring title;
    SIZE opened = {};
    SIZE shrunk = {};
    const INT_PTR result =
        runDriven(edit, {[&](HWND d) {
                             title = textOf(d);
                             opened = outerSize(d);
                             resizeTo(d, 100, 100);
                             shrunk = outerSize(d);
                             for (int i = 0; i < 7; ++i)
                                 setText(d, kEdits[i], wide(typed[i]));
                             click(d, IDC_EDITKEY_PROPOSE);  // empty: filled without a question
                         },
                         [](HWND d) { click(d, IDOK); }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(L"Zelto - New", title);
    EXPECT_EQ((std::vector<LONG>{640, 320, 480, 320}),
              (std::vector<LONG>{opened.cx, opened.cy, shrunk.cx, shrunk.cy}));
    ASSERT_EQ(1u, keyCount());
    EXPECT_EQ(file.keys()->child(0), edit.storedKey());
    Fields stored = typed;
    stored[3] = "zl9Z0A1B2C3d4e59";  // 0A.. gives 9Z, lower case at even places
    EXPECT_EQ(stored, plainFields(edit.storedKey()));
    EXPECT_EQ(L"Post office", edit.storedName().str());
    EXPECT_NE("zl9Z0A1B2C3d4e59", edit.storedKey()->fieldValue(Zelto::zlTypeKeyPW).str());
}

TEST_F(EditKey, EditedKeyAsksBeforeItsPasswordIsReplaced) {
    Zelto::zlFileItemKey* key =
        addKey({"Mail", "work", "anna", "oldPassword1", "anna@example.org", "", "note"});
    DlgEditKey edit(thisModule(), nullptr, file, key);
    std::vector<std::wstring> shown;
    std::vector<std::wstring> passwords;  // after each answer
    std::vector<std::wstring> box;        // title and texts of the question
    auto propose = [](HWND d) { click(d, IDC_EDITKEY_PROPOSE); };
    auto answer = [&](int button) {
        return [&, button](HWND b) {
            box = staticTexts(b);
            box.push_back(textOf(b));
            click(b, button);
        };
    };
    auto readPassword = [&](HWND d) { passwords.push_back(itemText(d, IDC_EDITKEY_PW)); };
    const INT_PTR result =
        runDriven(edit, {[&](HWND d) {
                             EXPECT_EQ(L"Zelto - Edit", textOf(d));
                             for (int id : kEdits)
                                 shown.push_back(itemText(d, id));
                             setText(d, IDC_EDITKEY_USER, L"anna.b");
                             nextGuid = "A0000000-0000-0000-0000-000000000000";
                             propose(d);
                         },
                         answer(IDNO), readPassword, propose, answer(IDYES), readPassword,
                         [&](HWND d) {
                             nextGuid = nullptr;
                             setText(d, IDC_EDITKEY_PW, L"");
                             propose(d);  // no identifier: nothing happens, no question either
                             readPassword(d);
                             setText(d, IDC_EDITKEY_PW, L"zlz9999999999999");
                             click(d, IDOK);
                         }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ((std::vector<std::wstring>{L"Mail", L"work", L"anna", L"oldPassword1",
                                         L"anna@example.org", L"", L"note"}),
              shown);
    // A0.. gives z9 through the wrap.
    EXPECT_EQ((std::vector<std::wstring>{L"oldPassword1", L"zlz9999999999999", L""}), passwords);
    EXPECT_NE(box.end(), std::find(box.begin(), box.end(), L"Replace current password ?"));
    EXPECT_EQ(L"Zelto", box.back());
    EXPECT_EQ(1u, keyCount());  // changed in place
    EXPECT_EQ(key, edit.storedKey());
    EXPECT_EQ(
        (Fields{"Mail", "work", "anna.b", "zlz9999999999999", "anna@example.org", "", "note"}),
        plainFields(key));
}

TEST_F(EditKey, NothingChangedOrNothingEncipherableEndsAsCancelled) {
    Zelto::zlFileItemKey* key = addKey({"Bank", "money", "me", "pw12345678", "", "", ""});
    Zelto::zlKeyFile empty;  // no master password: nothing can be enciphered
    // The key edited, or none for a new one, and the user field as OK is pressed.
    const std::pair<Zelto::zlFileItemKey*, std::wstring> cases[] = {
        {key, L"me"},  // typed, then put back as it was
        {nullptr, L""},
        {nullptr, L"someone"},
    };
    for (const auto& c : cases) {
        DlgEditKey edit(thisModule(), nullptr, c.first ? file : empty, c.first);
        EXPECT_EQ(IDCANCEL, runDriven(edit, {[&](HWND d) {
                                          setText(d, IDC_EDITKEY_USER, L"someone else");
                                          setText(d, IDC_EDITKEY_USER, c.second);
                                          click(d, IDOK);
                                      }}));
        EXPECT_EQ(nullptr, edit.storedKey());
        EXPECT_EQ(nullptr, empty.keys());
    }
    EXPECT_EQ(1u, keyCount());
    EXPECT_EQ((Fields{"Bank", "money", "me", "pw12345678", "", "", ""}), plainFields(key));
}
