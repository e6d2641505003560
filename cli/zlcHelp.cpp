#include "cli/zlcHelp.h"

#include <cstddef>

#include "model/zlFileItemSettings.h"

namespace Zelto {

namespace {

std::string padded(const std::string& text, size_t width) {
    return text.size() < width ? text + std::string(width - text.size(), ' ') : text + "  ";
}

std::string optionText(const zlcOptionSpec& o) {
    std::string text = std::string("--") + o.name;
    if (o.valueName)
        text += std::string(" ") + o.valueName;
    return text;
}

std::string optionLines(const std::vector<zlcOptionSpec>& options) {
    std::string text;
    for (const zlcOptionSpec& o : options)
        text += "  " + padded(optionText(o), 22) + o.help + "\n";
    return text;
}

const char* const kKeyText =
    "KEY is a key's name (exact, case-sensitive) or #N, the position that ls prints.\n";

const char* const kSecretsText =
    "Passwords are never taken from the command line. On a terminal they are typed\n"
    "without echo; otherwise standard input gives them one a line, in the order each\n"
    "command's help lists: for most commands the first line is the master password.\n";

const char* const kExitText =
    "Exit status: 0 done; 1 usage, also a missing password or a new one that breaks the\n"
    "rules; 2 wrong master password; 3 key not found or ambiguous; 4 the file cannot be\n"
    "read, written or converted. Errors go to standard error and begin with \"ERROR: \".\n";

const char* const kFileText =
    "A key file of the older format is converted when a command first reads it; the old\n"
    "file is kept as Zelto.backup.<time stamp>.xml beside it. Before a command writes,\n"
    "the file must still be the one it read: if another program changed it, nothing is\n"
    "written.\n";

}  // namespace

std::string zlcToolHelp() {
    std::string text =
        "Usage: zelto-cli [--file PATH] COMMAND [ARGUMENTS] [OPTIONS]\n"
        "\n"
        "Reads and changes a Zelto key file. Every field of a key is stored enciphered\n"
        "under the master password.\n"
        "\n"
        "Commands:\n";
    for (const zlcCommandSpec& c : zlcCommands()) {
        const std::string usage =
            std::string(c.name) + (*c.arguments ? std::string(" ") + c.arguments : "");
        text += "  " + padded(usage, 22) + c.summary + "\n";
    }
    text += "\nOptions of every command:\n" + optionLines(zlcGlobalOptions()) + "\n";
    text += kKeyText;
    text += "\n";
    text += kSecretsText;
    text += "\n";
    text += kFileText;
    text += "\n";
    text += kExitText;
    text += "\nRun 'zelto-cli help COMMAND' for a command's options.\n";
    return text;
}

std::string zlcCommandHelp(const zlcCommandSpec& c) {
    std::string text = std::string("Usage: zelto-cli [--file PATH] ") + c.name;
    if (*c.arguments)
        text += std::string(" ") + c.arguments;
    for (const zlcOptionSpec& o : c.options)
        text += " [" + optionText(o) + "]";
    text += "\n\n";
    text += c.description;
    if (c.secrets)
        text += std::string("\nReads: ") + c.secrets + ".\n";
    if (!c.options.empty())
        text += "\nOptions:\n" + optionLines(c.options);
    text += "\nOptions of every command:\n" + optionLines(zlcGlobalOptions());
    const std::string name = c.name;
    if (name == "show" || name == "get" || name == "edit" || name == "rm")
        text += std::string("\n") + kKeyText;
    if (name == "add" || name == "edit")
        text += "\n--generate and --password-stdin exclude each other.\n";
    text += std::string("\n") + kExitText;
    return text;
}

std::string zlcVersionText() {
    return "zelto-cli " + zlFileItemSettings::programVersion().str() + "\n";
}

}  // namespace Zelto
