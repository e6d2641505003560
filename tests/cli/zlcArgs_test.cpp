#include "cli/zlcArgs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cli/zlcHelp.h"

using namespace Zelto;

namespace {

// The parse as one line: command, arguments in [], options sorted by name, then the
// file, help and version; or the error.
std::string parsed(const std::vector<std::string>& argv) {
    zlcArgs a;
    std::string error;
    if (!zlcParseArgs(argv, a, error))
        return "error: " + error;
    std::string text = a.command ? a.command->name : "-";
    for (const std::string& argument : a.arguments)
        text += " [" + argument + "]";
    for (const auto& v : a.values)
        text += " " + v.first + "=" + v.second;
    for (const std::string& flag : a.flags)
        text += " " + flag;
    return text + (a.hasFile ? " file=" + a.file : "") + (a.help ? " help" : "") +
           (a.version ? " version" : "");
}

// Options take "--name value" or "--name=value", a value as it stands even with dashes;
// global options stand anywhere; "--" ends the options; "help" is "--help".
TEST(zlcArgs, WhatIsTakenAndWhatIsRefused) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"--file", "/k/Zelto.xml", "add", "bank", "--label=home, work", "--user", "--odd",
          "--generate", "--note="},
         "add [bank] label=home, work note= user=--odd generate file=/k/Zelto.xml"},
        {{"get", "--", "--file", "pw"}, "get [--file] [pw]"},
        {{"get", "#2", "pw", "--file=x.xml"}, "get [#2] [pw] file=x.xml"},
        {{"ls", "--json", "--trash", "--label", "a"}, "ls label=a json trash"},
        {{"--help"}, "- help"},
        {{"-h"}, "- help"},
        {{"help"}, "- help"},
        {{"help", "show"}, "show help"},
        {{"show", "--help"}, "show help"},
        {{"--help", "show"}, "show help"},
        {{"--version"}, "- version"},
        {{"help", "nosuch"}, "error: unknown command 'nosuch'"},
        {{"help", "ls", "show"}, "error: help takes at most one command"},
        {{}, "error: no command given"},
        {{"frobnicate"}, "error: unknown command 'frobnicate'"},
        {{"ls", "--reveal"}, "error: 'ls' takes no option --reveal"},
        {{"--json", "ls"}, "error: unknown option --json"},
        {{"ls", "-x"}, "error: unknown option '-x'"},
        {{"show"}, "error: 'show' needs KEY"},
        {{"get", "bank"}, "error: 'get' needs KEY FIELD"},
        {{"get", "a", "b", "c"}, "error: 'get' takes only KEY FIELD; unexpected 'c'"},
        {{"ls", "extra"}, "error: 'ls' takes no arguments; unexpected 'extra'"},
        {{"show", "-"}, "show [-]"},
        {{"ls", "--label"}, "error: --label needs a value (L)"},
        {{"ls", "--json=yes"}, "error: --json takes no value"},
        {{"ls", "--json", "--json"}, "error: --json given twice"},
        {{"ls", "--label", "a", "--label=b"}, "error: --label given twice"},
        {{"--file", "a", "ls", "--file", "b"}, "error: --file given twice"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.second, parsed(c.first));
}

// Each command's usage line, with its placeholders filled in, is a command line the parser
// takes; commands that take a KEY say how one is named.
TEST(zlcArgs, UsageLinesOfTheHelpParse) {
    for (const zlcCommandSpec& command : zlcCommands()) {
        const std::string help = zlcCommandHelp(command);
        ASSERT_EQ(0u, help.find("Usage: zelto-cli [--file PATH] ")) << help;
        EXPECT_EQ(help.find(" KEY") < help.find('\n'),
                  help.find("KEY is a key's name") != std::string::npos)
            << help;
        std::istringstream usage(help.substr(17, help.find('\n') - 17));
        std::vector<std::string> argv;
        std::string word;
        while (usage >> word) {
            word.erase(std::remove(word.begin(), word.end(), '['), word.end());
            word.erase(std::remove(word.begin(), word.end(), ']'), word.end());
            // The two password sources exclude each other.
            if (word == "--password-stdin" &&
                std::find(argv.begin(), argv.end(), "--generate") != argv.end())
                continue;
            if (word.compare(0, 2, "--") == 0 || word == command.name)
                argv.push_back(word);
            else
                argv.push_back(word == "FIELD" ? "pw" : word == "COMMAND" ? "ls" : "v-" + word);
        }
        EXPECT_EQ(std::string::npos, parsed(argv).find("error")) << parsed(argv);
        argv.push_back("extra");
        EXPECT_EQ(0u, parsed(argv).find("error: ")) << parsed(argv);
    }
}

}  // namespace
