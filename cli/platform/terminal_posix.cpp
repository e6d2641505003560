#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

#include "cli/zlcPlatform.h"
#include "cli/zlcStdinLine.h"

namespace Zelto {

namespace {

// The terminal's settings while echo is off, so that a signal can put them back.
termios savedTerminal;

void restoreAndRaise(int signal) {
    tcsetattr(STDIN_FILENO, TCSANOW, &savedTerminal);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

const int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};

}  // namespace

bool zlcReadSecret(const char* prompt, std::string& line) {
    line.clear();
    if (!isatty(STDIN_FILENO) || tcgetattr(STDIN_FILENO, &savedTerminal) != 0)
        return zlcReadStdinLine(line);

    std::fputs(prompt, stderr);
    std::fflush(stderr);
    void (*previous[sizeof kSignals / sizeof kSignals[0]])(int);
    for (size_t i = 0; i < sizeof kSignals / sizeof kSignals[0]; ++i)
        previous[i] = std::signal(kSignals[i], restoreAndRaise);
    termios quiet = savedTerminal;
    quiet.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &quiet);

    const bool read = zlcReadStdinLine(line);

    tcsetattr(STDIN_FILENO, TCSAFLUSH, &savedTerminal);
    for (size_t i = 0; i < sizeof kSignals / sizeof kSignals[0]; ++i)
        std::signal(kSignals[i], previous[i]);
    std::fputs("\n", stderr);
    return read;
}

}  // namespace Zelto
