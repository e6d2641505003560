// The one-second tick with a pointer that the test moves and ticks the test gives: the
// automatic lock, its countdown, the status line's expiry; and the lock itself with its
// login answered as a user would.
#include "commandFixture.h"
#include "ui/idleCounters.h"

using namespace ztest;
using namespace Zelto;

namespace {

RECT frameOf(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

SIZE outerSize(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return SIZE{rect.right - rect.left, rect.bottom - rect.top};
}

// The login in front: the password typed and the button pressed.
DialogStep login(const wchar_t* password) {
    return [password](HWND dialog) {
        setText(dialog, IDC_LOGIN_PASSWORD, password);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_LOGIN_BUTTON, BN_CLICKED), 0);
    };
}

class Tick : public CommandTest {
  protected:
    void SetUp() override {
        CommandTest::SetUp();
        addKeys({{"Bank", "money"}});
        save();
        open();
        mainWindowGlobals().paused = false;
        // The test gives every tick itself.
        window->timer().stop();
    }
    std::wstring countdown() const { return textOf(child(idCountdown)); }
    // Ticks n times; a login that opens meanwhile is cancelled, and false returned.
    bool ticksWithoutLock(int n) {
        return runWithModals(
                   [&] {
                       for (int i = 0; i < n; ++i)
                           window->onTimer();
                   },
                   {}) &&
               exitCodes().empty();
    }
};

TEST_F(Tick, AutolockOfFiveOrLessNeverLocks) {
    for (int seconds : {0, 5}) {
        settings->autolock = seconds;
        dunmar::idleTime().reset();
        EXPECT_TRUE(ticksWithoutLock(12)) << seconds;
        EXPECT_EQ(0, dunmar::idleTime().lock) << seconds;
        EXPECT_EQ(L"", countdown());
        EXPECT_EQ(300, outerSize(main()).cx);
    }
}

TEST_F(Tick, SixLocksAfterSixStillTicksAndTheCountdownShowsTheSecondsLeft) {
    settings->autolock = 6;
    dunmar::idleTime().reset();
    for (int i = 1; i <= 5; ++i) {
        window->onTimer();
        EXPECT_EQ(std::to_wstring(6 - i) + L" s ", countdown());
    }
    RECT whileLocked = {};
    RECT loginFrame = {};
    ASSERT_TRUE(runWithModals([&] { window->onTimer(); }, {[&](HWND dialog) {
                                                               whileLocked = frameOf(main());
                                                               loginFrame = frameOf(dialog);
                                                           },
                                                           login(L"8bytes!!")}));
    // Hidden behind the login, on its very rectangle.
    EXPECT_TRUE(EqualRect(&loginFrame, &whileLocked));
    EXPECT_LT(whileLocked.bottom - whileLocked.top, 450);
    EXPECT_EQ(300, outerSize(main()).cx);
    EXPECT_EQ(450, outerSize(main()).cy);
    EXPECT_EQ(0, dunmar::idleTime().lock);
    EXPECT_FALSE(mainWindowGlobals().locked);
    EXPECT_TRUE(window->timer().running()) << "the lock starts the timer again";
}

TEST_F(Tick, MovingThePointerStartsBothCountsAfresh) {
    settings->autolock = 6;
    settings->autoClearClipboard = 20;
    dunmar::idleTime().reset();
    window->onTimer();
    for (int i = 0; i < 3; ++i)
        window->onTimer();
    EXPECT_EQ(L"2 s ", countdown());
    EXPECT_EQ(4, dunmar::idleTime().clipboard);
    cursor() = POINT{101, 100};
    window->onTimer();
    EXPECT_EQ(L"5 s ", countdown());
    EXPECT_EQ(1, dunmar::idleTime().lock);
    EXPECT_EQ(1, dunmar::idleTime().clipboard);
    EXPECT_TRUE(window->timer().running()) << "movement restarts the timer";

    // While paused nothing counts at all.
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
    EXPECT_EQ(-1, window->status().ticksLeft());

    window->status().show(0, {L"for good"});
    EXPECT_TRUE(ticksWithoutLock(5));
    EXPECT_EQ(L" for good", statusText());
}

TEST_F(Tick, AWrongPasswordAsksAgainAndTheRightOneRestoresTheWindow) {
    RECT before = {};
    GetWindowRect(main(), &before);
    int logins = 0;
    RECT whileLocked = {};
    RECT loginFrame = {};
    int32_t minimumWhileLocked = 0;
    auto count = [&](HWND) { ++logins; };
    ASSERT_TRUE(pressWith(idLockButton, {count,
                                         [&](HWND dialog) {
                                             whileLocked = frameOf(main());
                                             loginFrame = frameOf(dialog);
                                             minimumWhileLocked = mainWindowGlobals().minTrackWidth;
                                         },
                                         login(L"wrongpass"), count, login(L"8bytes!!")}));
    EXPECT_EQ(2, logins);
    EXPECT_TRUE(EqualRect(&loginFrame, &whileLocked));
    EXPECT_EQ(10, minimumWhileLocked);
    RECT after = {};
    GetWindowRect(main(), &after);
    EXPECT_TRUE(EqualRect(&before, &after));
    EXPECT_EQ(290, mainWindowGlobals().minTrackWidth);
    EXPECT_EQ(435, mainWindowGlobals().minTrackHeight);
    EXPECT_TRUE(exitCodes().empty());
    // The key file works under the right password again.
    selectRow(0);
    EXPECT_EQ(L" Key \"Bank\" selected", statusText());

    // A lock in progress does not start another.
    mainWindowGlobals().locked = true;
    EXPECT_FALSE(window->lock());
    mainWindowGlobals().locked = false;
}

TEST_F(Tick, ALockWhileTheEditDialogIsOpenHidesItUntilTheRightPassword) {
    selectRow(0);
    HWND edit = nullptr;
    bool hiddenWhileLocked = false;
    bool shownAfter = false;
    bool mainEnabledAfter = true;
    ASSERT_TRUE(pressWith(idEditButton, {[&](HWND dialog) {
                                             edit = dialog;
                                             window->lock();  // as the tick would
                                         },
                                         [&](HWND) { hiddenWhileLocked = !IsWindowVisible(edit); },
                                         login(L"8bytes!!"),
                                         [&](HWND) {
                                             shownAfter = IsWindowVisible(edit) != FALSE;
                                             mainEnabledAfter = IsWindowEnabled(main()) != FALSE;
                                         },
                                         answer(IDCANCEL)}));
    EXPECT_TRUE(hiddenWhileLocked);
    EXPECT_TRUE(shownAfter);
    EXPECT_FALSE(mainEnabledAfter) << "the edit dialog is still modal over the window";
    EXPECT_TRUE(IsWindowEnabled(main()));
}

// A text that is no UTF-8 password (a lone surrogate before or after a right one) is a
// wrong password: the login comes again.
TEST_F(Tick, ALoginWithALoneSurrogateAsksAgain) {
    int logins = 0;
    auto count = [&](HWND) { ++logins; };
    ASSERT_TRUE(
        pressWith(idLockButton, {count,
                                 login(L"\xD800"
                                       L"8bytes!!"),
                                 count, login(L"8bytes!!\xD800"), count, login(L"8bytes!!")}));
    EXPECT_EQ(3, logins);
    EXPECT_TRUE(exitCodes().empty());
}

// The session's lock and the machine's suspend lock the window; other news of the session
// and of power do not. While the keys are re-enciphered the lock waits for the next tick.
TEST_F(Tick, TheSessionsLockAndASuspendLockTheWindow) {
    struct Case {
        UINT message;
        WPARAM what;
        bool locks;
    };
    const Case cases[] = {
        {WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, true},
        {WM_POWERBROADCAST, PBT_APMSUSPEND, true},
        {WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, false},
        {WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, false},
    };
    for (const Case& c : cases) {
        bool locked = false;
        std::vector<DialogStep> steps;
        if (c.locks)
            steps = {[&](HWND) { locked = mainWindowGlobals().locked; }, login(L"8bytes!!")};
        EXPECT_TRUE(runWithModals(
            [&] {
                SendMessageW(main(), c.message, c.what, 0);
                pump();
            },
            steps))
            << c.message << " " << c.what;
        EXPECT_EQ(c.locks, locked) << c.message << " " << c.what;
        EXPECT_TRUE(exitCodes().empty());
    }

    mainWindowGlobals().paused = true;
    EXPECT_TRUE(runWithModals(
        [&] {
            SendMessageW(main(), WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, 0);
            pump();
        },
        {}));
    EXPECT_TRUE(exitCodes().empty()) << "no login while paused";
    mainWindowGlobals().paused = false;
    bool asked = false;
    EXPECT_TRUE(runWithModals([&] { window->onTimer(); },
                              {[&](HWND) { asked = true; }, login(L"8bytes!!")}));
    EXPECT_TRUE(asked);
}

TEST_F(Tick, CancellingTheLoginEndsTheProgramWithZero) {
    ASSERT_TRUE(pressWith(idLockButton, {answer(IDCANCEL)}));
    EXPECT_EQ(std::vector<UINT>{0}, exitCodes());
}

}  // namespace
