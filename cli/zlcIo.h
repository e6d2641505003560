#pragma once

#include <functional>
#include <string>

namespace Zelto {

// Where a command's texts go and where its secrets come from. Output is collected and
// written out by the caller, so commands can be run and checked in-process.
struct zlcIo {
    // The next secret: typed without echo on a terminal (after the prompt), else the next
    // line of standard input. False when there is none.
    std::function<bool(const char* prompt, std::string& line)> readSecret;
    std::string out;
    std::string err;
    bool outIsTerminal = false;
};

// Adds "ERROR: " + message and a line end to err; returns code.
int zlcFail(zlcIo& io, int code, const std::string& message);

}  // namespace Zelto
