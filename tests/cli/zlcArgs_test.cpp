#include "cli/zlcArgs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cli/zlcHelp.h"

using namespace Zelto;

namespace {

struct Parsed {
    bool ok;
    zlcArgs args;
    std::string error;
};

Parsed parse(std::vector<std::string> argv) {
    Parsed p;
    p.ok = zlcParseArgs(argv, p.args, p.error);
    return p;
}

TEST(zlcArgs, OptionsTakeValuesInBothForms) {
    Parsed p = parse({"--file", "/k/Zelto.xml", "add", "bank", "--label=home, work", "--user",
                      "--odd", "--generate", "--note="});
    ASSERT_TRUE(p.ok) << p.error;
    EXPECT_EQ("add", std::string(p.args.command->name));
    EXPECT_EQ(std::vector<std::string>{"bank"}, p.args.arguments);
    EXPECT_TRUE(p.args.hasFile);
    EXPECT_EQ("/k/Zelto.xml", p.args.file);
    ASSERT_NE(nullptr, p.args.value("label"));
    EXPECT_EQ("home, work", *p.args.value("label"));
    // A value may begin with dashes: it is taken as it stands.
    EXPECT_EQ("--odd", *p.args.value("user"));
    EXPECT_EQ("", *p.args.value("note"));
    EXPECT_EQ(nullptr, p.args.value("email"));
    EXPECT_TRUE(p.args.flag("generate"));
    EXPECT_FALSE(p.args.flag("password-stdin"));
}

TEST(zlcArgs, GlobalOptionsStandAnywhereAndDashesEndOptions) {
    Parsed p = parse({"get", "--", "--file", "pw"});
    ASSERT_TRUE(p.ok) << p.error;
    EXPECT_FALSE(p.args.hasFile);
    EXPECT_EQ((std::vector<std::string>{"--file", "pw"}), p.args.arguments);
    p = parse({"get", "#2", "pw", "--file=x.xml"});
    ASSERT_TRUE(p.ok) << p.error;
    EXPECT_EQ("x.xml", p.args.file);
    // A name that looks like an option reaches the command after "--".
    p = parse({"add", "--", "-dash"});
    ASSERT_TRUE(p.ok) << p.error;
    EXPECT_EQ(std::vector<std::string>{"-dash"}, p.args.arguments);
}

TEST(zlcArgs, HelpForTheToolAndForEachCommand) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"--help"}, nullptr},        {{"-h"}, nullptr},
        {{"help"}, nullptr},          {{"help", "show"}, "show"},
        {{"show", "--help"}, "show"}, {{"--help", "show"}, "show"},
        {{"show", "-h"}, "show"},
    };
    for (const auto& c : cases) {
        Parsed p = parse(c.first);
        ASSERT_TRUE(p.ok) << c.first[0] << ": " << p.error;
        EXPECT_TRUE(p.args.help) << c.first[0];
        EXPECT_EQ(std::string(c.second ? c.second : ""), p.args.command ? p.args.command->name : "")
            << c.first[0];
    }
    EXPECT_TRUE(parse({"--version"}).args.version);
    EXPECT_FALSE(parse({"help", "nosuch"}).ok);
    EXPECT_FALSE(parse({"help", "ls", "show"}).ok);
}

TEST(zlcArgs, WhatACommandDoesNotTakeIsRefused) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{}, "no command given"},
        {{"frobnicate"}, "unknown command 'frobnicate'"},
        {{"ls", "--reveal"}, "'ls' takes no option --reveal"},
        {{"--json", "ls"}, "unknown option --json"},
        {{"ls", "-x"}, "unknown option '-x'"},
        {{"show"}, "'show' needs KEY"},
        {{"get", "bank"}, "'get' needs KEY FIELD"},
        {{"get", "a", "b", "c"}, "'get' takes only KEY FIELD; unexpected 'c'"},
        {{"ls", "extra"}, "'ls' takes no arguments; unexpected 'extra'"},
        {{"ls", "--label"}, "--label needs a value (L)"},
        {{"ls", "--json=yes"}, "--json takes no value"},
        {{"ls", "--json", "--json"}, "--json given twice"},
        {{"ls", "--label", "a", "--label=b"}, "--label given twice"},
        {{"--file", "a", "ls", "--file", "b"}, "--file given twice"},
    };
    for (const auto& c : cases) {
        Parsed p = parse(c.first);
        EXPECT_FALSE(p.ok) << c.second;
        EXPECT_EQ(c.second, p.error);
    }
}

// Each command's usage line, with its placeholders filled in, is a command line the parser
// takes.
TEST(zlcArgs, UsageLinesOfTheHelpParse) {
    for (const zlcCommandSpec& command : zlcCommands()) {
        const std::string help = zlcCommandHelp(command);
        ASSERT_EQ(0u, help.find("Usage: zelto-cli ")) << help;
        // Commands that take a KEY say how one is named.
        EXPECT_EQ(help.find(" KEY") < help.find('\n'),
                  help.find("KEY is a key's name") != std::string::npos)
            << help;
        std::istringstream usage(help.substr(17, help.find('\n') - 17));
        std::vector<std::string> argv;
        std::string word;
        while (usage >> word) {
            const bool optional = word.front() == '[';
            if (optional)
                word = word.substr(1);
            while (!word.empty() && word.back() == ']')
                word.pop_back();
            // The two password sources exclude each other.
            if (word == "--password-stdin" &&
                std::find(argv.begin(), argv.end(), "--generate") != argv.end())
                continue;
            if (word.compare(0, 2, "--") == 0 || word == command.name)
                argv.push_back(word);
            else if (word == "COMMAND")
                argv.push_back("ls");
            else
                argv.push_back(word == "FIELD" ? "pw" : "value-of-" + word);
        }
        Parsed p = parse(argv);
        EXPECT_TRUE(p.ok) << command.name << ": " << p.error;
    }
}

}  // namespace
