#include "dialogs/DlgSettings.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "app/zlKeyFileStore.h"
#include "dialogTestSupport.h"
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using Zelto::DlgSettings;

namespace {

using Values = std::array<int, 3>;  // automatic lock, clipboard, selected key
const int kEdits[3] = {IDC_SETTINGS_AUTOLOCK, IDC_SETTINGS_CLIPBOARD, IDC_SETTINGS_SHOWKEY};

Values valuesOf(const Zelto::zlKeyFile& file) {
    const Zelto::zlFileItemSettings* s = file.settings();
    return s ? Values{s->autolock, s->autoClearClipboard, s->showSelectedKey} : Values{-1, -1, -1};
}

// Every save, with the settings as they were at that moment.
std::vector<Values> saves;
int recordAndSave(Zelto::zlKeyFile& file) {
    saves.push_back(valuesOf(file));
    return Zelto::zlSaveKeyFile(file);
}

class Settings : public ::testing::Test {
  protected:
    void SetUp() override {
        DlgSettings::setKeyFileSaver(&recordAndSave);
        ASSERT_EQ(0, file.set_pass_phrase(kLongPass));
        file.root().appendChild(new Zelto::zlFileItemSettings(&file));
        file.root().appendChild(new Zelto::zlFileItemKeys(&file));
        file.setPath(widePath(folder / "Zelto.xml"));
        ASSERT_EQ(Zelto::zlSaved, Zelto::zlSaveKeyFile(file));
        saves.clear();
    }
    void TearDown() override { DlgSettings::setKeyFileSaver(nullptr); }

    // Runs the dialog on target: reads what it shows, types texts and presses button.
    INT_PTR run(Zelto::zlKeyFile& target, const std::array<std::wstring, 3>& texts, int button,
                std::vector<std::wstring>* shown = nullptr) {
        DlgSettings dialog(thisModule(), nullptr, target);
        const INT_PTR result = runDriven(dialog, {[&](HWND d) {
                                             for (int i = 0; i < 3; ++i) {
                                                 if (shown)
                                                     shown->push_back(itemText(d, kEdits[i]));
                                                 setText(d, kEdits[i], texts[i]);
                                             }
                                             click(d, button);
                                         }});
        failedSaves = dialog.failedSaves();
        return result;
    }

    TempDir folder;
    Zelto::zlKeyFile file;
    int failedSaves = 0;
};

}  // namespace

TEST_F(Settings, EachValueIsClampedAndSavedBeforeTheNextIsRead) {
    file.settings()->autolock = 45;
    std::vector<std::wstring> shown;
    EXPECT_EQ(IDOK, run(file, {L"4", L"601", L"31"}, IDOK, &shown));
    EXPECT_EQ((std::vector<std::wstring>{L"45", L"30", L"2"}), shown);
    EXPECT_EQ((std::vector<Values>{{0, 30, 2}, {0, 600, 2}, {0, 600, 30}}), saves);
    // Typed texts, then what is stored and saved.
    const std::pair<std::array<std::wstring, 3>, Values> cases[] = {
        {{L"5", L"letters", L""}, {5, 0, 0}},
        {{L"600", L"12 seconds", L"0"}, {600, 12, 0}},
        {{L"-7", L"6", L"1"}, {0, 6, 1}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IDOK, run(file, c.first, IDOK));
        Zelto::zlKeyFile reread;
        EXPECT_EQ(Zelto::zlReadOk, reread.readFile(file.path()));
        EXPECT_EQ(c.second, valuesOf(reread)) << c.first[0];
    }
    EXPECT_EQ(0, failedSaves);
}

TEST_F(Settings, CancelMissingSettingsAndFailedSavesKeepTheFile) {
    const std::string before = readBytes(folder / "Zelto.xml");
    EXPECT_EQ(IDCANCEL, run(file, {L"100", L"100", L"10"}, IDCANCEL));
    EXPECT_EQ((Values{30, 30, 2}), valuesOf(file));

    Zelto::zlKeyFile bare;  // no settings item: nothing shown, nothing stored
    bare.setPath(widePath(folder / "bare.xml"));
    std::vector<std::wstring> shown;
    EXPECT_EQ(IDOK, run(bare, {L"100", L"100", L"10"}, IDOK, &shown));
    EXPECT_EQ(std::vector<std::wstring>(3, L""), shown);
    EXPECT_TRUE(saves.empty());
    EXPECT_EQ(before, readBytes(folder / "Zelto.xml"));

    // The real save, into a folder that is not there: counted, the values kept.
    DlgSettings::setKeyFileSaver(nullptr);
    file.setPath(widePath(folder / "missing" / "Zelto.xml"));
    EXPECT_EQ(IDOK, run(file, {L"30", L"30", L"9"}, IDOK));
    EXPECT_EQ(3, failedSaves);
    EXPECT_EQ((Values{30, 30, 9}), valuesOf(file));
}
