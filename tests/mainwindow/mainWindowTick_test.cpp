// The one-second tick with a pointer the test moves: the lock after inactivity, the login
// that asks until the password is right, and the system's reasons to lock.
#include <functional>

#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

// Below six seconds there is no lock; from six on the seconds left count down while the
// pointer stands still. Wrong passwords and lone surrogates ask again; the session's lock
// and the machine's suspend lock too; a login cancelled ends the program.
TEST_F(MainWindowTest, InactivityAndTheSystemLockAndTheLoginAsksUntilThePasswordIsRight) {
    openWith({{"Bank", "money"}});
    mainWindowGlobals().paused = false;
    window->timer().stop();  // the test gives every tick itself
    const auto ticks = [&](int n) {
        for (int i = 0; i < n; ++i)
            window->onTimer();
    };
    // Runs action with the passwords typed into the logins in turn; the logins seen.
    const auto logins = [&](const std::function<void()>& action,
                            std::vector<const wchar_t*> passwords) {
        int seen = 0;
        std::vector<DialogStep> steps;
        for (const wchar_t* password : passwords) {
            steps.push_back([&](HWND) { seen += mainWindowGlobals().locked; });
            steps.push_back(enter(IDC_LOGIN_PASSWORD, password));
            steps.push_back(answer(IDC_LOGIN_BUTTON));
        }
        EXPECT_TRUE(runWithModals(action, steps));
        return seen;
    };
    settings->autolock = 5;
    EXPECT_EQ(0, logins([&] { ticks(12); }, {}));
    EXPECT_EQ(L"", textOf(child(idCountdown)));
    settings->autolock = 6;
    ticks(4);
    EXPECT_EQ(L"2 s ", textOf(child(idCountdown)));
    hooks().cursor = POINT{1, 0};
    ticks(1);
    EXPECT_EQ(L"5 s ", textOf(child(idCountdown)));
    window->timer().stop();  // the movement started it; stopping counts afresh too
    EXPECT_EQ(0, logins([&] { ticks(5); }, {}));
    EXPECT_EQ(4, logins([&] { ticks(1); }, {L"wrongpass",
                                            L"\xD800"
                                            L"8bytes!!",
                                            L"8bytes!!\xD800", L"8bytes!!"}));
    RECT frame;
    GetWindowRect(main(), &frame);
    EXPECT_EQ(450, frame.bottom - frame.top) << "the window is whole again";
    settings->autolock = 0;

    const struct {
        UINT message;
        WPARAM what;
        int logins;
    } news[] = {{WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, 1},
                {WM_POWERBROADCAST, PBT_APMSUSPEND, 1},
                {WM_WTSSESSION_CHANGE, WTS_SESSION_UNLOCK, 0},
                {WM_POWERBROADCAST, PBT_APMRESUMEAUTOMATIC, 0}};
    for (const auto& n : news) {
        const auto send = [&] {
            SendMessageW(main(), n.message, n.what, 0);
            pump();
        };
        EXPECT_EQ(n.logins, logins(send, std::vector<const wchar_t*>(n.logins, L"8bytes!!")))
            << n.what;
    }
    ASSERT_TRUE(pressWith(idLockButton, {answer(IDCANCEL)}));
    EXPECT_EQ(nullptr, main());
    EXPECT_EQ(std::vector<UINT>{0}, hooks().exits);
}

}  // namespace
