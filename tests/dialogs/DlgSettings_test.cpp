#include "dialogs/DlgSettings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "app/zlKeyFileStore.h"
#include "dialogTestSupport.h"
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/support/dialogDriver.h"
#include "ui/textExtent.h"
#include "ui/windowText.h"

using namespace ztest;
using Zelto::DlgSettings;

namespace {

using Values = std::array<int, 3>;  // automatic lock, clipboard, selected key

// Every save, with the settings as they were at that moment.
std::vector<Values> saves;
int recordAndSave(Zelto::zlKeyFile& file) {
    const Zelto::zlFileItemSettings* s = file.settings();
    saves.push_back(Values{s->autolock, s->autoClearClipboard, s->showSelectedKey});
    return Zelto::zlSaveKeyFile(file);
}

class Settings : public ::testing::Test {
  protected:
    void SetUp() override {
        saves.clear();
        DlgSettings::setKeyFileSaver(&recordAndSave);
        ASSERT_EQ(0, file.set_pass_phrase(kLongPass));
        file.root().appendChild(new Zelto::zlFileItemSettings(&file));
        file.root().appendChild(new Zelto::zlFileItemKeys(&file));
        file.setPath(widePath(folder / "Zelto.xml"));
        ASSERT_EQ(Zelto::zlSaved, Zelto::zlSaveKeyFile(file));
    }
    void TearDown() override { DlgSettings::setKeyFileSaver(nullptr); }

    // Types the three values and presses OK.
    INT_PTR store(const std::wstring& lock, const std::wstring& clipboard,
                  const std::wstring& shown) {
        DlgSettings dialog(thisModule(), nullptr, file);
        return runDriven(dialog, {[=](HWND d) {
                             setText(d, IDC_SETTINGS_AUTOLOCK, lock);
                             setText(d, IDC_SETTINGS_CLIPBOARD, clipboard);
                             setText(d, IDC_SETTINGS_SHOWKEY, shown);
                             click(d, IDOK);
                         }});
    }

    Values current() const {
        const Zelto::zlFileItemSettings* s = file.settings();
        return Values{s->autolock, s->autoClearClipboard, s->showSelectedKey};
    }

    Values onDisk() const {
        Zelto::zlKeyFile reread;
        EXPECT_EQ(Zelto::zlReadOk, reread.readFile(file.path()));
        const Zelto::zlFileItemSettings* s = reread.settings();
        if (!s)
            return Values{-1, -1, -1};
        return Values{s->autolock, s->autoClearClipboard, s->showSelectedKey};
    }

    TempDir folder;
    Zelto::zlKeyFile file;
};

}  // namespace

TEST_F(Settings, ShowsTheValuesAndTemplatePlaces) {
    file.settings()->autolock = 45;
    DlgSettings dialog(thisModule(), nullptr, file);
    runDriven(
        dialog, {[](HWND d) {
            EXPECT_EQ(L"Zelto - Settings", textOf(d));
            EXPECT_EQ(L"Auto Lock (Seconds):", itemText(d, IDC_SETTINGS_AUTOLOCK_LABEL));
            EXPECT_EQ(L"Auto Clear Clipboard (Seconds):",
                      itemText(d, IDC_SETTINGS_CLIPBOARD_LABEL));
            EXPECT_EQ(L"Show selected Key (Seconds):", itemText(d, IDC_SETTINGS_SHOWKEY_LABEL));
            EXPECT_EQ(L"45", itemText(d, IDC_SETTINGS_AUTOLOCK));
            EXPECT_EQ(L"30", itemText(d, IDC_SETTINGS_CLIPBOARD));
            EXPECT_EQ(L"2", itemText(d, IDC_SETTINGS_SHOWKEY));
            EXPECT_EQ(L"OK", itemText(d, IDOK));
            EXPECT_EQ(L"Cancel", itemText(d, IDCANCEL));
            EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, IDC_SETTINGS_AUTOLOCK_LABEL), GWL_STYLE) &
                        SS_RIGHT);
            // The template's places, except that the caption column grows by what its longest
            // caption lacks and the edits and buttons move along by as much.
            const int captions[][5] = {
                {IDC_SETTINGS_AUTOLOCK_LABEL, 7, 18, 137, 14},
                {IDC_SETTINGS_CLIPBOARD_LABEL, 7, 42, 137, 14},
                {IDC_SETTINGS_SHOWKEY_LABEL, 7, 68, 137, 14},
            };
            const int followers[][5] = {
                {IDOK, 263, 7, 50, 14},
                {IDCANCEL, 263, 24, 50, 14},
                {IDC_SETTINGS_AUTOLOCK, 151, 17, 58, 14},
                {IDC_SETTINGS_CLIPBOARD, 151, 41, 58, 14},
                {IDC_SETTINGS_SHOWKEY, 150, 66, 58, 14},
            };
            const int column = dialogUnits(d, 7, 18, 137, 14).right;
            int widest = 0;
            for (const auto& p : captions) {
                HWND label = GetDlgItem(d, p[0]);
                widest =
                    std::max<int>(widest, dunmar::textExtent(label, dunmar::windowText(label)).cx);
            }
            const int shift = std::max(
                0, widest - static_cast<int>(column - dialogUnits(d, 7, 18, 137, 14).left));
            for (const auto& p : captions) {
                RECT expected = dialogUnits(d, p[1], p[2], p[3], p[4]);
                expected.right += shift;
                EXPECT_EQ(describe(expected), describe(childRect(d, p[0]))) << "control " << p[0];
            }
            for (const auto& p : followers) {
                RECT expected = dialogUnits(d, p[1], p[2], p[3], p[4]);
                OffsetRect(&expected, shift, 0);
                EXPECT_EQ(describe(expected), describe(childRect(d, p[0]))) << "control " << p[0];
            }
            click(d, IDCANCEL);
        }});
}

TEST_F(Settings, ClampsAndSavesAfterEachValue) {
    EXPECT_EQ(IDOK, store(L"4", L"601", L"31"));
    // One save per value, each before the next edit was read.
    EXPECT_EQ((std::vector<Values>{{0, 30, 2}, {0, 600, 2}, {0, 600, 30}}), saves);
    EXPECT_EQ((Values{0, 600, 30}), current());
    EXPECT_EQ((Values{0, 600, 30}), onDisk());
}

TEST_F(Settings, BoundariesAndTextsThatAreNoNumbers) {
    EXPECT_EQ(IDOK, store(L"5", L"letters", L""));
    EXPECT_EQ((Values{5, 0, 0}), current());
    EXPECT_EQ(3u, saves.size());
    EXPECT_EQ(IDOK, store(L"600", L"12 seconds", L"0"));
    EXPECT_EQ((Values{600, 12, 0}), current());
    EXPECT_EQ(IDOK, store(L"-7", L"6", L"1"));
    EXPECT_EQ((Values{0, 6, 1}), onDisk());
}

TEST_F(Settings, CancelChangesNothing) {
    const std::string before = readBytes(folder / "Zelto.xml");
    DlgSettings dialog(thisModule(), nullptr, file);
    EXPECT_EQ(IDCANCEL, runDriven(dialog, {[](HWND d) {
                                      setText(d, IDC_SETTINGS_AUTOLOCK, L"100");
                                      click(d, IDCANCEL);
                                  }}));
    EXPECT_TRUE(saves.empty());
    EXPECT_EQ((Values{30, 30, 2}), current());
    EXPECT_EQ(before, readBytes(folder / "Zelto.xml"));
}

TEST_F(Settings, WithoutSettingsNothingIsStored) {
    Zelto::zlKeyFile bare;
    bare.setPath(widePath(folder / "bare.xml"));
    DlgSettings dialog(thisModule(), nullptr, bare);
    std::wstring shown = L"?";
    EXPECT_EQ(IDOK, runDriven(dialog, {[&](HWND d) {
                                  shown = itemText(d, IDC_SETTINGS_AUTOLOCK);
                                  setText(d, IDC_SETTINGS_AUTOLOCK, L"100");
                                  click(d, IDOK);
                              }}));
    EXPECT_EQ(L"", shown);
    EXPECT_TRUE(saves.empty());
    EXPECT_EQ(nullptr, bare.settings());
    EXPECT_EQ(0, dialog.failedSaves());
}

TEST_F(Settings, FailedSavesAreCountedAndTheValuesKept) {
    DlgSettings::setKeyFileSaver(nullptr);  // the real save, into a folder that is not there
    file.setPath(widePath(folder / "missing" / "Zelto.xml"));
    DlgSettings dialog(thisModule(), nullptr, file);
    EXPECT_EQ(IDOK, runDriven(dialog, {[](HWND d) {
                                  setText(d, IDC_SETTINGS_SHOWKEY, L"9");
                                  click(d, IDOK);
                              }}));
    EXPECT_EQ(3, dialog.failedSaves());
    EXPECT_EQ((Values{30, 30, 9}), current());
}
