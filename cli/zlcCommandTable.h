#pragma once

#include <string>
#include <vector>

namespace Zelto {

// One option of a command, named without its leading dashes.
struct zlcOptionSpec {
    const char* name;
    const char* valueName;  // null for an option that takes no value
    const char* help;
};

// A command as the parser checks it and the help describes it.
struct zlcCommandSpec {
    const char* name;
    const char* arguments;  // the positional arguments of the usage line
    int minArguments;
    int maxArguments;
    const char* summary;      // one line of the overview
    const char* description;  // the command's own help, lines ending in "\n"
    const char* secrets;      // what it reads from the terminal or standard input, in order
    std::vector<zlcOptionSpec> options;

    const zlcOptionSpec* option(const std::string& name) const;
};

// Every command, in the order the overview lists them.
const std::vector<zlcCommandSpec>& zlcCommands();
const zlcCommandSpec* zlcFindCommand(const std::string& name);

// Options that every command takes.
const std::vector<zlcOptionSpec>& zlcGlobalOptions();

}  // namespace Zelto
