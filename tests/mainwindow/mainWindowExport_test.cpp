// The export command of the real main window against the table service emulator: the data
// box comes before any traffic, the record arrives whole, failures go to the status line.
#include <cstdlib>

#include "cloud/cloudTestSupport.h"
#include "cloud/tableReader.h"
#include "cloud/zlCloudConfig.h"
#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

using ztest::uniqueText;
using ztest::utf8;

class WindowExport : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        const std::string connectionString = ztest::tableServiceConnectionString();
        if (connectionString.empty()) {
            if (ztest::underCi())
                FAIL() << zlCloudConnectionStringVariable << " is not set under CI";
            GTEST_SKIP() << "no table service: run under scripts/test.sh";
        }
        ASSERT_TRUE(zlParseConnectionString(connectionString, account).ok());
        transport = zlNewPlatformTransport();
        lastName = "Hopper-" + uniqueText();
        email = "grace+" + uniqueText() + "@example.org";
        setUser("Grace", lastName, email);
    }
    void setUser(const std::string& first, const std::string& last, const std::string& mail) {
        settings->setUserFirstName(dunmar::dm_utf8_str(first.c_str()), true);
        settings->setUserLastName(dunmar::dm_utf8_str(last.c_str()), true);
        settings->setUserEmail(dunmar::dm_utf8_str(mail.c_str()), true);
    }
    void keys(int count) {
        for (int i = 0; i < count; ++i)
            ASSERT_NE(nullptr, addKey(("account " + std::to_string(i)).c_str(), "label"));
        ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
        open();
    }
    ReadBack read() { return readEntity(*transport, account, lastName, email); }

    // Runs the command; every box is looked at and closed, the record read while the first
    // one is open.
    bool exportWithBoxes() {
        boxes.clear();
        DialogStep lookAndClose = [this](HWND box) {
            if (boxes.empty())
                whileDataBox = read();
            std::vector<std::wstring> texts = staticTexts(box);
            boxes.push_back({textOf(box), texts});
            SendMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
        };
        return runWithModals([&] { command(IDM_EXPORT_CLOUD); }, {lookAndClose, lookAndClose}) ||
               boxes.size() < 2;
    }
    bool boxShows(size_t index, const std::wstring& title, const std::string& text) const {
        if (index >= boxes.size() || boxes[index].first != title)
            return false;
        for (const std::wstring& shown : boxes[index].second)
            if (utf8(dunmar::dm_string(shown)) == text)
                return true;
        return false;
    }

    zlStorageAccount account;
    std::unique_ptr<zlHttpTransport> transport;
    std::string lastName;
    std::string email;
    std::vector<std::pair<std::wstring, std::vector<std::wstring>>> boxes;
    ReadBack whileDataBox;
};

// Five hundred keys travel in several parts.
TEST_F(WindowExport, TheKeyFileArrivesWholeAfterTheDataBoxAndASecondExportReplacesIt) {
    keys(500);
    const std::string text = file.buildFileText(zlLanguageNameForFile()).str();
    exportWithBoxes();
    ASSERT_EQ(2u, boxes.size()) << statusText();
    EXPECT_TRUE(boxShows(0, L"xmlData", text));
    EXPECT_EQ(404, whileDataBox.status) << "nothing was sent while the box was open";
    EXPECT_TRUE(boxShows(1, L"Zelto Cloud Account", "Export was successful"));
    EXPECT_EQ(L" Ready", statusText());

    ReadBack back = read();
    ASSERT_EQ(200, back.status);
    EXPECT_EQ("Grace", back.entity.value("FirstName", "<none>"));
    EXPECT_EQ(settings->verify.str(), back.entity.value("Verify", "<none>"));
    EXPECT_GT(back.entity.value("DataParts", 0), 1);
    EXPECT_TRUE(text == back.joinedData());

    setUser("Amazing Grace", lastName, email);
    exportWithBoxes();
    back = read();
    ASSERT_EQ(200, back.status);
    EXPECT_EQ("Amazing Grace", back.entity.value("FirstName", "<none>"));
}

TEST_F(WindowExport, FailuresAreToldOnTheStatusLineWithoutASuccessBox) {
    keys(1);
    const std::string right = ztest::tableServiceConnectionString();
    const std::string wrongKey =
        "d3JvbmcgYWNjb3VudCBrZXkgZm9yIHRoZSB0ZXN0cyBvZiB0aGUgY2xvdWQgZXhwb3J0IQ==";
    _putenv_s(zlCloudConnectionStringVariable,
              ("DefaultEndpointsProtocol=http;AccountName=" + account.accountName +
               ";AccountKey=" + wrongKey + ";TableEndpoint=" + account.tableEndpoint)
                  .c_str());
    exportWithBoxes();
    _putenv_s(zlCloudConnectionStringVariable, right.c_str());
    ASSERT_EQ(1u, boxes.size());
    EXPECT_EQ(L"xmlData", boxes[0].first);
    EXPECT_EQ(0u, statusText().find(L" ERROR: Cloud export failed: ")) << statusText();
    EXPECT_NE(std::wstring::npos, statusText().find(L"403")) << statusText();
    EXPECT_EQ(-1, window->status().ticksLeft());
    EXPECT_EQ(404, read().status);

    // Keys the service cannot take are refused before the data box.
    for (const char* bad : {"grace/hopper@example.org", "grace%41@example.org"}) {
        setUser("Grace", lastName, bad);
        exportWithBoxes();
        EXPECT_TRUE(boxes.empty()) << bad;
        EXPECT_EQ(0u, statusText().find(L" ERROR: Cloud export failed: ")) << bad;
    }

    // A file without settings exports nothing and says nothing.
    Zelto::zlFileItemKeys elsewhere(&file);
    ASSERT_TRUE(file.root().moveChild(file.root().indexOfChild(settings), &elsewhere));
    settings = nullptr;
    window->status().show(0, {L"before"});
    exportWithBoxes();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(L" before", statusText());
}

}  // namespace
