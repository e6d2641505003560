#include "dialogs/DlgEditKey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "app/zlKeyFields.h"
#include "dialogTestSupport.h"
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
using Zelto::DlgEditKey;
using Zelto::zlKeyFields;

namespace {

const int kEdits[7] = {IDC_EDITKEY_NAME,  IDC_EDITKEY_LABEL, IDC_EDITKEY_USER, IDC_EDITKEY_PW,
                       IDC_EDITKEY_EMAIL, IDC_EDITKEY_URL,   IDC_EDITKEY_NOTE};
const int kLabels[7] = {IDC_EDITKEY_NAME_LABEL, IDC_EDITKEY_LABEL_LABEL, IDC_EDITKEY_USER_LABEL,
                        IDC_EDITKEY_PW_LABEL,   IDC_EDITKEY_EMAIL_LABEL, IDC_EDITKEY_URL_LABEL,
                        IDC_EDITKEY_NOTE_LABEL};

const char* kGuid = "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9";
const char* kWrappingGuid = "A0000000-0000-0000-0000-000000000000";
const char* nextGuid = kGuid;

bool fixedGuid(dm_string& out) {
    out = dm_utf8_str(nextGuid).to_wide();
    return true;
}

bool failingGuid(dm_string& out) {
    out.clear();
    return false;
}

std::wstring wide(const char* utf8) {
    return dm_utf8_str(utf8).to_wide().str();
}

class EditKey : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(0, file.set_pass_phrase(kLongPass));
        DlgEditKey::setGuidSource(&fixedGuid);
        nextGuid = kGuid;
    }
    void TearDown() override { DlgEditKey::setGuidSource(nullptr); }

    Zelto::zlFileItemKey* addKey(std::initializer_list<const char*> values) {
        zlKeyFields fields;
        size_t i = 0;
        for (const char* value : values)
            fields.value[i++] = dm_utf8_str(value);
        return Zelto::zlAddKey(file, fields);
    }

    static std::vector<std::string> plainFields(const Zelto::zlFileItemKey& key) {
        zlKeyFields fields;
        EXPECT_TRUE(Zelto::zlReadKeyFields(key, fields));
        std::vector<std::string> out;
        for (const auto& value : fields.value)
            out.push_back(value.str());
        return out;
    }

    static std::vector<std::string> storedFields(const Zelto::zlFileItemKey& key) {
        std::vector<std::string> out;
        for (int type : Zelto::zlKeyFieldTypes)
            out.push_back(key.fieldValue(type).str());
        return out;
    }

    size_t keyCount() const { return file.keys() ? file.keys()->childCount() : 0; }

    Zelto::zlKeyFile file;
};

}  // namespace

TEST_F(EditKey, NoChangeEndsAsCancelledAndWritesNothing) {
    Zelto::zlFileItemKey* key = addKey({"Bank", "money", "me", "pw12345678", "", "", ""});
    const auto before = storedFields(*key);
    DlgEditKey edit(thisModule(), nullptr, file, key);
    EXPECT_EQ(IDCANCEL, runDriven(edit, {[](HWND d) {
                                      // Typed, then put back as it was.
                                      setText(d, IDC_EDITKEY_USER, L"someone else");
                                      setText(d, IDC_EDITKEY_USER, L"me");
                                      click(d, IDOK);
                                  }}));
    EXPECT_EQ(before, storedFields(*key));
    EXPECT_EQ(nullptr, edit.storedKey());
    EXPECT_TRUE(edit.storedName().empty());

    // A new key left empty is not added, and no key list is made for it.
    Zelto::zlKeyFile empty;
    ASSERT_EQ(0, empty.set_pass_phrase(kLongPass));
    DlgEditKey fresh(thisModule(), nullptr, empty, nullptr);
    EXPECT_EQ(IDCANCEL, runDriven(fresh, {[](HWND d) { click(d, IDOK); }}));
    EXPECT_EQ(nullptr, empty.keys());
}

TEST_F(EditKey, NewKeyGetsTheTypedFields) {
    const std::vector<std::string> typed = {"Post office",         "home, work",
                                            "m\xC3\xBCller",       "S3cret!pw",
                                            "m@example.org",       "https://post.example/",
                                            "line one\r\nline two"};
    DlgEditKey edit(thisModule(), nullptr, file, nullptr);
    std::vector<std::wstring> labels;
    std::wstring title;
    std::wstring proposeCaption;
    const INT_PTR result = runDriven(edit, {[&](HWND d) {
                                                title = textOf(d);
                                                for (int id : kLabels)
                                                    labels.push_back(itemText(d, id));
                                                proposeCaption = itemText(d, IDC_EDITKEY_PROPOSE);
                                                for (int i = 0; i < 7; ++i)
                                                    setText(d, kEdits[i], wide(typed[i].c_str()));
                                            },
                                            [](HWND d) { click(d, IDOK); }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(L"Zelto - New", title);
    EXPECT_EQ((std::vector<std::wstring>{L"Key", L"Label", L"User", L"Password", L"Email",
                                         L"Internet address", L"Note"}),
              labels);
    EXPECT_EQ(L"New", proposeCaption);
    ASSERT_EQ(1u, keyCount());
    auto* key = static_cast<Zelto::zlFileItemKey*>(file.keys()->child(0));
    EXPECT_EQ(key, edit.storedKey());
    EXPECT_EQ(typed, plainFields(*key));
    EXPECT_EQ(L"Post office", edit.storedName().str());
    // Stored enciphered, not as typed.
    EXPECT_NE("S3cret!pw", key->fieldValue(Zelto::zlTypeKeyPW).str());
}

TEST_F(EditKey, EditedKeyShowsItsFieldsAndTakesTheChanges) {
    addKey({"Other", "", "", "", "", "", ""});
    Zelto::zlFileItemKey* key =
        addKey({"Mail", "work", "anna", "oldPassword1", "anna@example.org", "", "note"});
    DlgEditKey edit(thisModule(), nullptr, file, key);
    std::vector<std::wstring> shown;
    std::wstring title;
    const INT_PTR result = runDriven(edit, {[&](HWND d) {
                                         title = textOf(d);
                                         for (int id : kEdits)
                                             shown.push_back(itemText(d, id));
                                         setText(d, IDC_EDITKEY_USER, L"anna.b");
                                         setText(d, IDC_EDITKEY_PW, L"newPassword2");
                                         click(d, IDOK);
                                     }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(L"Zelto - Edit", title);
    EXPECT_EQ((std::vector<std::wstring>{L"Mail", L"work", L"anna", L"oldPassword1",
                                         L"anna@example.org", L"", L"note"}),
              shown);
    EXPECT_EQ(2u, keyCount());
    EXPECT_EQ(key, edit.storedKey());
    EXPECT_EQ((std::vector<std::string>{"Mail", "work", "anna.b", "newPassword2",
                                        "anna@example.org", "", "note"}),
              plainFields(*key));
    EXPECT_EQ(L"Mail", edit.storedName().str());
}

TEST_F(EditKey, ProposalFillsAnEmptyPasswordAndAsksBeforeReplacing) {
    DlgEditKey edit(thisModule(), nullptr, file, nullptr);
    std::vector<std::wstring> passwords;
    std::wstring boxTitle;
    std::vector<std::wstring> boxTexts;
    bool boxOnEmpty = true;
    auto readPassword = [&](HWND d) { passwords.push_back(itemText(d, IDC_EDITKEY_PW)); };
    auto answer = [&](int button) {
        return [&, button](HWND d) {
            HWND box = findMessageBox(d);
            ASSERT_NE(nullptr, box);
            boxTitle = textOf(box);
            boxTexts = staticTexts(box);
            click(box, button);
        };
    };
    const INT_PTR result =
        runDriven(edit, {[&](HWND d) {
                             click(d, IDC_EDITKEY_PROPOSE);  // empty: filled without a question
                             boxOnEmpty = findMessageBox(d) != nullptr;
                             readPassword(d);
                             nextGuid = kWrappingGuid;
                         },
                         [](HWND d) { click(d, IDC_EDITKEY_PROPOSE); },  // asks
                         answer(IDNO), readPassword,
                         [](HWND d) { click(d, IDC_EDITKEY_PROPOSE); },  // asks again
                         answer(IDYES), readPassword,
                         [&](HWND d) {
                             DlgEditKey::setGuidSource(&failingGuid);
                             setText(d, IDC_EDITKEY_PW, L"");
                             click(d, IDC_EDITKEY_PROPOSE);  // no identifier: nothing happens
                             readPassword(d);
                             click(d, IDCANCEL);
                         }});
    EXPECT_EQ(IDCANCEL, result);
    EXPECT_FALSE(boxOnEmpty);
    // 0A.. gives 9Z, lower case at even places; A0.. gives z9 through the wrap.
    EXPECT_EQ((std::vector<std::wstring>{L"zl9Z0A1B2C3d4e59", L"zl9Z0A1B2C3d4e59",
                                         L"zlz9999999999999", L""}),
              passwords);
    EXPECT_EQ(L"Zelto", boxTitle);
    EXPECT_NE(boxTexts.end(),
              std::find(boxTexts.begin(), boxTexts.end(), L"Replace current password ?"));
    EXPECT_EQ(0u, keyCount());  // nothing is stored without OK
}

TEST_F(EditKey, LayoutAfterAResize) {
    DlgEditKey edit(thisModule(), nullptr, file, nullptr);
    runDriven(
        edit, {[&](HWND d) {
            EXPECT_EQ(640, outerSize(d).cx);
            EXPECT_EQ(320, outerSize(d).cy);
            resizeTo(d, 900, 600);
            const SIZE client = clientSize(d);
            const RECT ok = childRect(d, IDOK);
            const RECT cancel = childRect(d, IDCANCEL);
            const int h = ok.bottom - ok.top;
            EXPECT_EQ(describe({client.cx - 88, client.cy - h - 8, client.cx - 8, client.cy - 8}),
                      describe(cancel));
            EXPECT_EQ(client.cx - 176, ok.left);
            EXPECT_EQ(cancel.top, ok.top);
            const RECT propose = childRect(d, IDC_EDITKEY_PROPOSE);
            EXPECT_EQ(client.cx - 8, propose.right);
            EXPECT_EQ(childRect(d, IDC_EDITKEY_PW).top, propose.top);
            EXPECT_LE(childRect(d, IDC_EDITKEY_PW).right, propose.left - 8);
            // Rows from top to bottom, edits reaching the right margin, labels beside them.
            int bottom = 0;
            for (int i = 0; i < 7; ++i) {
                const RECT field = childRect(d, kEdits[i]);
                const RECT label = childRect(d, kLabels[i]);
                EXPECT_GE(field.top, bottom + 4) << i;
                bottom = field.bottom;
                if (kEdits[i] != IDC_EDITKEY_PW) {
                    EXPECT_EQ(client.cx - 8, field.right) << i;
                }
                EXPECT_LE(label.right, field.left) << i;
                EXPECT_GE(label.top, field.top) << i;
            }
            // The note takes the height the other rows leave.
            EXPECT_EQ(ok.top - 8, childRect(d, IDC_EDITKEY_NOTE).bottom);
            EXPECT_GT(childRect(d, IDC_EDITKEY_NOTE).bottom - childRect(d, IDC_EDITKEY_NOTE).top,
                      4 * h);
            resizeTo(d, 100, 100);
            EXPECT_EQ(480, outerSize(d).cx);
            EXPECT_EQ(320, outerSize(d).cy);
            click(d, IDCANCEL);
        }});
}

TEST_F(EditKey, FailedEncipheringStoresNothing) {
    Zelto::zlKeyFile locked;  // no master password: nothing can be enciphered
    DlgEditKey edit(thisModule(), nullptr, locked, nullptr);
    EXPECT_EQ(IDCANCEL, runDriven(edit, {[](HWND d) {
                                      setText(d, IDC_EDITKEY_NAME, L"Name");
                                      click(d, IDOK);
                                  }}));
    EXPECT_EQ(nullptr, locked.keys());
    EXPECT_EQ(nullptr, edit.storedKey());
}
