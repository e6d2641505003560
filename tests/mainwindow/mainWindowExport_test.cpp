// The export command of the real main window against the table service emulator: the data
// box shows the file before any traffic, the record arrives whole, failures go to the
// status line.
#include <cstdlib>

#include "cloud/cloudTestSupport.h"
#include "cloud/tableReader.h"
#include "cloud/zlCloudConfig.h"
#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

class WindowExport : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        if (tableServiceConnectionString().empty()) {
            if (underCi())
                FAIL() << zlCloudConnectionStringVariable << " is not set under CI";
            GTEST_SKIP() << "no table service: run under scripts/test.sh";
        }
        ASSERT_TRUE(zlParseConnectionString(tableServiceConnectionString(), account).ok());
        transport = zlNewPlatformTransport();
    }
    // A user of a record of its own.
    void setUser(const std::string& mail) {
        email = mail;
        settings->setUserFirstName(dunmar::dm_utf8_str("Grace"), true);
        settings->setUserLastName(dunmar::dm_utf8_str(lastName.c_str()), true);
        settings->setUserEmail(dunmar::dm_utf8_str(mail.c_str()), true);
        window->status().show(0, {L"before"});
    }
    ReadBack read() { return readEntity(*transport, account, lastName, email); }
    // Runs the command; every box is looked at and closed, the record read while the first
    // one is open.
    void exportWithBoxes() {
        boxes.clear();
        DialogStep lookAndClose = [this](HWND box) {
            if (boxes.empty())
                whileDataBox = read();
            boxes.push_back(utf8(dunmar::dm_string(textOf(box))));
            for (const std::wstring& text : staticTexts(box))
                if (!text.empty())  // the icon
                    boxes.push_back(utf8(dunmar::dm_string(text)));
            SendMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        };
        runWithModals([&] { command(IDM_EXPORT_CLOUD); }, {lookAndClose, lookAndClose});
    }
    zlStorageAccount account;
    std::unique_ptr<zlHttpTransport> transport;
    std::string lastName = "Hopper-" + uniqueText(), email;
    std::vector<std::string> boxes;  // title, then texts, of each box
    ReadBack whileDataBox;
};

TEST_F(WindowExport, DataBoxThenTheWholeFileAndFailuresOnTheStatusLine) {
    openWith({{"Bank", "money"}, {"Mail", "work"}});
    setUser("grace+" + uniqueText() + "@example.org");
    const std::string text = file.buildFileText(zlLanguageNameForFile()).str();
    exportWithBoxes();
    EXPECT_TRUE((std::vector<std::string>{"xmlData", text, "Zelto Cloud Account",
                                          "Export was successful"}) == boxes)
        << boxes.size() << " boxes, " << utf8(dunmar::dm_string(statusText()));
    EXPECT_EQ(404, whileDataBox.status) << "nothing was sent while the box was open";
    EXPECT_EQ(L" before", statusText());
    EXPECT_TRUE(text == read().joinedData());

    // A wrong account key: the data box only, then 403 on the status line.
    const std::string right = tableServiceConnectionString();
    std::string wrong = right;
    wrong.replace(wrong.find("AccountKey=") + 11, 4, "AAAA");
    _putenv_s(zlCloudConnectionStringVariable, wrong.c_str());
    exportWithBoxes();
    _putenv_s(zlCloudConnectionStringVariable, right.c_str());
    EXPECT_EQ(2u, boxes.size());
    EXPECT_EQ(0u, statusText().find(L" ERROR: Cloud export failed: "));
    EXPECT_NE(std::wstring::npos, statusText().find(L"403"));

    // E-mails the service cannot take as keys are refused before the data box; without
    // settings nothing is exported and nothing said.
    for (const char* bad : {"grace/hopper@example.org", "grace%41@example.org"}) {
        setUser(bad);
        exportWithBoxes();
        EXPECT_TRUE(boxes.empty() && statusText().find(L" ERROR: Cloud export failed: ") == 0)
            << bad;
    }
    zlFileItemKeys elsewhere(&file);
    ASSERT_TRUE(file.root().moveChild(file.root().indexOfChild(settings), &elsewhere));
    window->status().show(0, {L"before"});
    exportWithBoxes();
    EXPECT_TRUE(boxes.empty() && statusText() == L" before");
}

}  // namespace
