#include "cli/zlcArgs.h"

#include <cstddef>

namespace Zelto {

const std::string* zlcArgs::value(const char* name) const {
    const auto it = values.find(name);
    return it == values.end() ? nullptr : &it->second;
}

namespace {

// Finds the option in the globals and then in the command's list.
const zlcOptionSpec* findOption(const zlcCommandSpec* command, const std::string& name) {
    for (const zlcOptionSpec& o : zlcGlobalOptions()) {
        if (name == o.name)
            return &o;
    }
    return command ? command->option(name) : nullptr;
}

bool isGlobal(const zlcOptionSpec* option) {
    for (const zlcOptionSpec& o : zlcGlobalOptions()) {
        if (&o == option)
            return true;
    }
    return false;
}

class Parser {
  public:
    Parser(const std::vector<std::string>& argv, zlcArgs& args, std::string& error)
        : argv_(argv), args_(args), error_(error) {}

    bool run() {
        bool optionsEnded = false;
        for (next_ = 0; next_ < argv_.size();) {
            const std::string& token = argv_[next_++];
            if (!optionsEnded && token == "--") {
                optionsEnded = true;
            } else if (!optionsEnded && token == "-h") {
                args_.help = true;
            } else if (!optionsEnded && token.size() > 2 && token.compare(0, 2, "--") == 0) {
                if (!option(token.substr(2)))
                    return false;
            } else if (!optionsEnded && token.size() > 1 && token[0] == '-') {
                return fail("unknown option '" + token + "'");
            } else if (!positional(token)) {
                return false;
            }
        }
        return finish();
    }

  private:
    bool fail(const std::string& message) {
        error_ = message;
        return false;
    }

    bool option(const std::string& text) {
        const size_t eq = text.find('=');
        const std::string name = text.substr(0, eq);
        const zlcOptionSpec* spec = findOption(args_.command, name);
        if (!spec) {
            if (args_.command)
                return fail("'" + std::string(args_.command->name) + "' takes no option --" + name);
            return fail("unknown option --" + name);
        }
        if (!spec->valueName) {
            if (eq != std::string::npos)
                return fail("--" + name + " takes no value");
            if (name == "help") {
                args_.help = true;
            } else if (name == "version") {
                args_.version = true;
            } else if (!args_.flags.insert(name).second) {
                return fail("--" + name + " given twice");
            }
            return true;
        }
        std::string value;
        if (eq != std::string::npos) {
            value = text.substr(eq + 1);
        } else if (next_ < argv_.size()) {
            value = argv_[next_++];
        } else {
            return fail("--" + name + " needs a value (" + spec->valueName + ")");
        }
        if (isGlobal(spec)) {
            if (args_.hasFile)
                return fail("--" + name + " given twice");
            args_.hasFile = true;
            args_.file = value;
            return true;
        }
        if (!args_.values.emplace(name, value).second)
            return fail("--" + name + " given twice");
        return true;
    }

    bool positional(const std::string& token) {
        if (args_.command) {
            args_.arguments.push_back(token);
            return true;
        }
        args_.command = zlcFindCommand(token);
        if (!args_.command)
            return fail("unknown command '" + token + "'");
        return true;
    }

    bool finish() {
        if (args_.command && std::string(args_.command->name) == "help") {
            args_.help = true;
            args_.command = nullptr;
            if (args_.arguments.size() > 1)
                return fail("help takes at most one command");
            if (!args_.arguments.empty()) {
                args_.command = zlcFindCommand(args_.arguments[0]);
                if (!args_.command)
                    return fail("unknown command '" + args_.arguments[0] + "'");
                args_.arguments.clear();
            }
        }
        if (args_.help || args_.version)
            return true;
        if (!args_.command)
            return fail("no command given");
        const int n = static_cast<int>(args_.arguments.size());
        const std::string name = args_.command->name;
        if (n < args_.command->minArguments)
            return fail("'" + name + "' needs " + args_.command->arguments);
        if (n > args_.command->maxArguments)
            return fail("'" + name + "' takes " +
                        (args_.command->maxArguments == 0
                             ? std::string("no arguments")
                             : std::string("only ") + args_.command->arguments) +
                        "; unexpected '" + args_.arguments[args_.command->maxArguments] + "'");
        return true;
    }

    const std::vector<std::string>& argv_;
    zlcArgs& args_;
    std::string& error_;
    size_t next_ = 0;
};

}  // namespace

bool zlcParseArgs(const std::vector<std::string>& argv, zlcArgs& args, std::string& error) {
    args = zlcArgs();
    error.clear();
    return Parser(argv, args, error).run();
}

}  // namespace Zelto
