#include "dialogs/DlgFileCreated.h"

#include <gtest/gtest.h>

#include <string>

#include "dialogTestSupport.h"
#include "res/resource.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using dunmar::dm_string;
using Zelto::DlgFileCreated;

TEST(DlgFileCreated, FolderEndsAtTheLaterSeparator) {
    const std::pair<std::wstring, std::wstring> cases[] = {
        {L"C:\\Users\\me/backups\\Zelto.backup.x.xml", L"C:\\Users\\me/backups"},
        {L"C:/data\\sub/Zelto.xml", L"C:/data\\sub"},
        {L"dir/", L"dir"},
        {L"\\Zelto.xml", L""},  // the only separator at position 0
        {L"Zelto.xml", L""},
        {L"", L""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.second, DlgFileCreated::folderOf(dm_string(c.first.c_str())).str()) << c.first;
}

TEST(DlgFileCreated, ShowsThePathOpensItsFolderAndStaysOpen) {
    ShellRecorder shell;
    const std::wstring path = L"C:\\Backups & Co\\keys/Zelto.backup.20180122-101500.xml";
    DlgFileCreated dialog(thisModule(), nullptr, dm_string(path.c_str()));
    std::wstring shown;
    std::vector<std::string> places;
    const INT_PTR result = runDriven(
        dialog, {[&](HWND d) {
                     shown = itemText(d, IDC_FILECREATED_PATH);
                     EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, IDC_FILECREATED_PATH),
                                                   GWL_STYLE) &
                                 SS_NOPREFIX);  // "&" as it is
                     click(d, IDC_FILECREATED_OPEN_FOLDER);
                 },
                 [&](HWND d) {
                     resizeTo(d, 700, 220);
                     for (int id : {IDC_FILECREATED_HEADING, IDC_FILECREATED_PATH, IDOK,
                                    IDC_FILECREATED_OPEN_FOLDER})
                         places.push_back(describe(childRect(d, id)));
                     const RECT heading = childRect(d, IDC_FILECREATED_HEADING);
                     const int h = heading.bottom - heading.top;
                     const int w = clientSize(d).cx - 16;
                     EXPECT_EQ(
                         (std::vector<std::string>{describe({8, 8, 8 + w, 8 + h}),
                                                   describe({8, h + 16, 8 + w, 2 * h + 16}),
                                                   describe({8, 2 * h + 24, 128, 3 * h + 24}),
                                                   describe({144, 2 * h + 24, 264, 3 * h + 24})}),
                         places);
                     click(d, IDOK);
                 }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(path, shown);
    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Backups & Co\\keys"}), shell.targets());
}
