#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "cli/zlcCommandTable.h"

namespace Zelto {

// A parsed command line.
struct zlcArgs {
    const zlcCommandSpec* command = nullptr;  // null when none was given
    std::vector<std::string> arguments;       // positional arguments after the command
    std::map<std::string, std::string> values;
    std::set<std::string> flags;
    std::string file;
    bool hasFile = false;
    bool help = false;
    bool version = false;

    bool flag(const char* name) const { return flags.count(name) != 0; }
    // The value given for the option, or null when it was not given.
    const std::string* value(const char* name) const;
};

// Parses the arguments that follow the program's name. Options take "--name value" or
// "--name=value"; "--" ends the options. Global options may stand anywhere; a command's
// options only after the command. "help [COMMAND]" is the same as "[COMMAND] --help".
// False with a message for anything the command does not take.
bool zlcParseArgs(const std::vector<std::string>& argv, zlcArgs& args, std::string& error);

}  // namespace Zelto
