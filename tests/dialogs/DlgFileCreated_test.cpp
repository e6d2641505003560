#include "dialogs/DlgFileCreated.h"

#include <gtest/gtest.h>

#include <string>

#include "dialogTestSupport.h"
#include "res/resource.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using dunmar::dm_string;
using Zelto::DlgFileCreated;

namespace {

std::wstring folderOf(const wchar_t* path) {
    return DlgFileCreated::folderOf(dm_string(path)).str();
}

}  // namespace

TEST(DlgFileCreated, FolderEndsAtTheLaterSeparator) {
    EXPECT_EQ(L"C:\\Users\\me/backups", folderOf(L"C:\\Users\\me/backups\\Zelto.backup.x.xml"));
    EXPECT_EQ(L"C:/data\\sub", folderOf(L"C:/data\\sub/Zelto.xml"));
    EXPECT_EQ(L"/a", folderOf(L"/a/b"));
    EXPECT_EQ(L"dir", folderOf(L"dir/"));
    EXPECT_EQ(L"", folderOf(L"\\Zelto.xml"));  // the only separator at position 0
    EXPECT_EQ(L"", folderOf(L"Zelto.xml"));
    EXPECT_EQ(L"", folderOf(L""));
}

TEST(DlgFileCreated, ShowsThePathAndOpensItsFolder) {
    ShellRecorder shell;
    const std::wstring path = L"C:\\Backups & Co\\keys/Zelto.backup.20180122-101500.xml";
    DlgFileCreated dialog(thisModule(), nullptr, dm_string(path.c_str()));
    bool stillOpen = false;
    const INT_PTR result = runDriven(
        dialog,
        {[&](HWND d) {
             EXPECT_EQ(L"Zelto - File created", textOf(d));
             EXPECT_EQ(L"File created", itemText(d, IDC_FILECREATED_HEADING));
             EXPECT_EQ(path, itemText(d, IDC_FILECREATED_PATH));
             EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, IDC_FILECREATED_PATH), GWL_STYLE) &
                         SS_NOPREFIX);
             EXPECT_EQ(L"Open Folder", itemText(d, IDC_FILECREATED_OPEN_FOLDER));
             EXPECT_EQ(L"OK", itemText(d, IDOK));
             click(d, IDC_FILECREATED_OPEN_FOLDER);
         },
         [&](HWND d) {
             stillOpen = IsWindowVisible(d) != FALSE;
             resizeTo(d, 700, 220);
             const SIZE client = clientSize(d);
             const RECT heading = childRect(d, IDC_FILECREATED_HEADING);
             const int h = heading.bottom - heading.top;
             const int w = client.cx - 16;
             EXPECT_EQ(describe({8, 8, 8 + w, 8 + h}), describe(heading));
             EXPECT_EQ(describe({8, h + 16, 8 + w, 2 * h + 16}),
                       describe(childRect(d, IDC_FILECREATED_PATH)));
             EXPECT_EQ(describe({8, 2 * h + 24, 128, 3 * h + 24}), describe(childRect(d, IDOK)));
             EXPECT_EQ(describe({144, 2 * h + 24, 264, 3 * h + 24}),
                       describe(childRect(d, IDC_FILECREATED_OPEN_FOLDER)));
             // Asked for 240 x 120, it stays large enough for the path and both buttons.
             resizeTo(d, 240, 120);
             const SIZE small = clientSize(d);
             EXPECT_GE(small.cx, 264 + 8);
             EXPECT_GE(small.cy, 3 * h + 24 + 8);
             click(d, IDOK);
         }});
    EXPECT_EQ(IDOK, result);
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ((std::vector<std::wstring>{L"C:\\Backups & Co\\keys"}), shell.targets());
}

TEST(DlgFileCreated, APathWithoutFolderOpensAnEmptyName) {
    ShellRecorder shell;
    DlgFileCreated dialog(thisModule(), nullptr, dm_string(L"Zelto.xml"));
    EXPECT_EQ(IDCANCEL, runDriven(dialog, {[](HWND d) {
                                      click(d, IDC_FILECREATED_OPEN_FOLDER);
                                      SendMessageW(d, WM_CLOSE, 0, 0);
                                  }}));
    EXPECT_EQ((std::vector<std::wstring>{L""}), shell.targets());
}
