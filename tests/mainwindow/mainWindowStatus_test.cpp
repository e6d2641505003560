// The status line: message composition and the countdown that restores " Ready".
#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

class StatusLine : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        addEmptyKeyList();
        open();
    }
    mainWindowStatus& status() { return window->status(); }
};

TEST_F(StatusLine, MessageIsABlankAndThePartsWithoutTheNullOnes) {
    status().show(3, {L"Copied ", nullptr, L"'Password'", L" to clipboard"});
    EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());
    EXPECT_EQ(L" Copied 'Password' to clipboard", std::wstring(status().message().c_str()));
    status().show(3, {L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10"});
    EXPECT_EQ(L" 0123456789", statusText());
}

TEST_F(StatusLine, TooShortAMessageReadsReady) {
    status().show(3, {});
    EXPECT_EQ(L" Ready", statusText());
    status().show(3, {L"x"});
    EXPECT_EQ(L" x", statusText());
    status().show(3, {L"", nullptr});
    EXPECT_EQ(L" Ready", statusText());
}

TEST_F(StatusLine, CountdownRestoresReadyWhenItExpires) {
    status().show(2, {L"Backup done"});
    EXPECT_EQ(2, status().ticksLeft());
    status().countDown();
    EXPECT_EQ(L" Backup done", statusText());
    EXPECT_EQ(1, status().ticksLeft());
    status().countDown();
    EXPECT_EQ(L" Ready", statusText());
    EXPECT_EQ(-1, status().ticksLeft());

    zlSetLanguage(zlLanguageGerman);
    status().show(1, {L"Backup"});
    status().countDown();
    EXPECT_EQ(L" Bereit", statusText());
}

TEST_F(StatusLine, MessageWithoutTicksStays) {
    status().show(0, {L"Failed to open 'Url'"});
    EXPECT_EQ(-1, status().ticksLeft());
    for (int i = 0; i < 5; ++i)
        status().countDown();
    EXPECT_EQ(L" Failed to open 'Url'", statusText());
    status().show(-7, {L"again"});
    EXPECT_EQ(-1, status().ticksLeft());
}

}  // namespace
