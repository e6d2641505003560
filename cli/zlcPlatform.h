#pragma once

#include <string>
#include <vector>

namespace Zelto {

// The system's side of the program: its arguments, its standard streams, the terminal.

// The arguments after the program's name, as UTF-8.
std::vector<std::string> zlcArguments(int argc, char** argv);

// Readies the process: standard streams that pass bytes as they are (no line-end
// translation), and on Windows the instance handle that the converter is loaded from.
void zlcPrepareProcess();

// Writes UTF-8 text to standard output or standard error (to a console as its characters).
void zlcWriteOut(const std::string& text);
void zlcWriteErr(const std::string& text);

bool zlcStdoutIsTerminal();

// A secret: from a terminal typed without echo after the prompt (on standard error); else
// the next line of standard input without its line end. False at the end of the input.
bool zlcReadSecret(const char* prompt, std::string& line);

}  // namespace Zelto
