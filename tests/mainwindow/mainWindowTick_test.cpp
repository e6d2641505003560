// The one-second tick with a pointer the test moves: the automatic lock and its countdown;
// the lock itself with its login answered as a user would.
#include "mainWindowFixture.h"
#include "ui/idleCounters.h"

using namespace ztest;
using namespace Zelto;

namespace {

RECT frameOf(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

class Tick : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        openSaved({{"Bank", "money"}});
        mainWindowGlobals().paused = false;
        window->timer().stop();  // the test gives every tick itself
        dunmar::idleTime().reset();
    }
    std::wstring countdown() const { return textOf(child(idCountdown)); }
    // Runs action; each login it opens gets the next password, a further one is cancelled.
    // The number of logins seen.
    int logins(const std::function<void()>& action, std::vector<const wchar_t*> passwords) {
        int seen = 0;
        std::vector<DialogStep> steps;
        for (const wchar_t* password : passwords) {
            steps.push_back([&](HWND dialog) {
                ++seen;
                EXPECT_TRUE(mainWindowGlobals().locked);
                const RECT login = frameOf(dialog), hidden = frameOf(main());
                EXPECT_TRUE(EqualRect(&login, &hidden)) << "hidden behind the login";
            });
            steps.push_back(login(password));
        }
        EXPECT_TRUE(runWithModals(action, steps));
        return seen;
    }
};

TEST_F(Tick, AutolockOfFiveOrLessNeverLocksSixLocksAfterSixTicks) {
    for (int seconds : {0, 5}) {
        settings->autolock = seconds;
        EXPECT_EQ(0, logins(
                         [&] {
                             for (int i = 0; i < 12; ++i)
                                 window->onTimer();
                         },
                         {}));
        EXPECT_EQ(L"", countdown());
        EXPECT_TRUE(exitCodes().empty());
    }
    settings->autolock = 6;
    dunmar::idleTime().reset();
    for (int i = 1; i <= 5; ++i) {
        window->onTimer();
        EXPECT_EQ(std::to_wstring(6 - i) + L" s ", countdown());
    }
    RECT before = frameOf(main());
    EXPECT_EQ(1, logins([&] { window->onTimer(); }, {L"8bytes!!"}));
    RECT after = frameOf(main());
    EXPECT_TRUE(EqualRect(&before, &after));
    EXPECT_FALSE(mainWindowGlobals().locked);
    EXPECT_EQ(0, dunmar::idleTime().lock);
    EXPECT_TRUE(window->timer().running()) << "the lock starts the timer again";
}

TEST_F(Tick, MovingThePointerStartsBothCountsAfreshButNotWhilePaused) {
    settings->autolock = 6;
    settings->autoClearClipboard = 20;
    for (int i = 0; i < 4; ++i)
        window->onTimer();
    EXPECT_EQ(L"2 s ", countdown());
    EXPECT_EQ(4, dunmar::idleTime().clipboard);
    cursor() = POINT{101, 100};
    window->onTimer();
    EXPECT_EQ(L"5 s ", countdown());
    EXPECT_EQ(1, dunmar::idleTime().clipboard);
    EXPECT_TRUE(window->timer().running()) << "movement restarts the timer";
    mainWindowGlobals().paused = true;
    cursor() = POINT{5, 5};
    window->onTimer();
    EXPECT_EQ(1, dunmar::idleTime().lock);
    EXPECT_EQ(L"5 s ", countdown());
}

TEST_F(Tick, AStatusMessageGivesWayToReadyWhenItsTimeIsUp) {
    settings->autolock = 0;
    window->status().show(3, {L"three seconds"});
    window->onTimer();
    window->onTimer();
    EXPECT_EQ(L" three seconds", statusText());
    window->onTimer();
    EXPECT_EQ(L" Ready", statusText());
}

// Wrong passwords, and texts that are no UTF-8 password (a lone surrogate before or after a
// right one), ask again; the right one restores the window and its size limits.
TEST_F(Tick, TheLockAsksUntilTheRightPasswordAndRestoresTheWindow) {
    RECT before = frameOf(main());
    EXPECT_EQ(4, logins([&] { press(idLockButton); }, {L"wrongpass",
                                                       L"\xD800"
                                                       L"8bytes!!",
                                                       L"8bytes!!\xD800", L"8bytes!!"}));
    RECT after = frameOf(main());
    EXPECT_TRUE(EqualRect(&before, &after));
    EXPECT_EQ(290, mainWindowGlobals().minTrackWidth);
    EXPECT_EQ(435, mainWindowGlobals().minTrackHeight);
    EXPECT_TRUE(exitCodes().empty());
    selectRow(0);  // the key file reads under the right password again
    EXPECT_EQ(L" Key \"Bank\" selected", statusText());
    mainWindowGlobals().locked = true;
    EXPECT_FALSE(window->lock()) << "a lock in progress does not start another";
    mainWindowGlobals().locked = false;

    ASSERT_TRUE(pressWith(idLockButton, {answer(IDCANCEL)}));
    EXPECT_EQ(std::vector<UINT>{0}, exitCodes());
}

TEST_F(Tick, ALockWhileTheEditDialogIsOpenHidesItUntilTheRightPassword) {
    selectRow(0);
    HWND edit = nullptr;
    bool hidden = false, shown = false, mainEnabled = true;
    ASSERT_TRUE(
        pressWith(idEditButton, {[&](HWND dialog) {
                                     edit = dialog;
                                     window->lock();
                                 },
                                 [&](HWND) { hidden = !IsWindowVisible(edit); }, login(L"8bytes!!"),
                                 [&](HWND) {
                                     shown = IsWindowVisible(edit) != FALSE;
                                     mainEnabled = IsWindowEnabled(main()) != FALSE;
                                 },
                                 answer(IDCANCEL)}));
    EXPECT_TRUE(hidden);
    EXPECT_TRUE(shown);
    EXPECT_FALSE(mainEnabled) << "the edit dialog is still modal over the window";
    EXPECT_TRUE(IsWindowEnabled(main()));
}

// The session's lock and the machine's suspend lock the window; other news does not. While
// paused (keys being re-enciphered) the lock waits for the next tick.
TEST_F(Tick, TheSessionsLockAndASuspendLockTheWindow) {
    const struct {
        UINT message;
        WPARAM what;
        int logins;
    } cases[] = {
        {WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, 1},
        {WM_POWERBROADCAST, PBT_APMSUSPEND, 1},
        {WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, 0},
        {WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, 0},
    };
    for (const auto& c : cases) {
        auto send = [&] {
            SendMessageW(main(), c.message, c.what, 0);
            pump();
        };
        EXPECT_EQ(c.logins, logins(send, std::vector<const wchar_t*>(c.logins, L"8bytes!!")))
            << c.message << " " << c.what;
    }
    mainWindowGlobals().paused = true;
    EXPECT_EQ(0, logins(
                     [&] {
                         SendMessageW(main(), WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, 0);
                         pump();
                     },
                     {}));
    mainWindowGlobals().paused = false;
    EXPECT_EQ(1, logins([&] { window->onTimer(); }, {L"8bytes!!"}));
    EXPECT_TRUE(exitCodes().empty());
}

}  // namespace
