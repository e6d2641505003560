#include "cli/zlcCommandTable.h"

#include <utility>

namespace Zelto {

namespace {

const char* const kMaster = "the master password";
const char* const kMasterThenKey =
    "the master password, then with --password-stdin the key's password";
const zlcOptionSpec kJson = {"json", nullptr, "print JSON instead of text"};

// The fields that add and edit set; edit adds --name.
std::vector<zlcOptionSpec> keyFieldOptions(bool withName) {
    std::vector<zlcOptionSpec> options;
    if (withName)
        options.push_back({"name", "T", "rename the key"});
    options.push_back({"label", "T", "labels, separated by commas"});
    options.push_back({"user", "T", "user name"});
    options.push_back({"email", "T", "e-mail address"});
    options.push_back({"url", "T", "internet address"});
    options.push_back({"note", "T", "note"});
    options.push_back({"generate", nullptr, "set a newly proposed password"});
    options.push_back({"password-stdin", nullptr, "read the key's password as the next secret"});
    return options;
}

zlcCommandSpec command(const char* name, const char* arguments, int minArguments, int maxArguments,
                       const char* summary, const char* description, const char* secrets,
                       std::vector<zlcOptionSpec> options) {
    return {name,    arguments,   minArguments, maxArguments,
            summary, description, secrets,      std::move(options)};
}

std::vector<zlcCommandSpec> makeCommands() {
    std::vector<zlcCommandSpec> c;
    c.push_back(
        command("init", "", 0, 0, "create a new, empty key file",
                "Creates the key file with a new master password. The password needs 8 to 127\n"
                "characters, only A-Z, a-z and 0-9, a letter first. Fails when the file exists.\n",
                "the new master password, twice", {}));
    c.push_back(
        command("ls", "", 0, 0, "list the keys",
                "Lists the keys in file order, one a line: #position, name, and the label in\n"
                "brackets when it is not empty. KEY accepts the position as #N; a filter does not\n"
                "change it. With --trash the positions count the deleted keys.\n",
                kMaster,
                {{"label", "L", "only keys with the label L (exact, case-sensitive)"},
                 {"trash", nullptr, "list the deleted keys"},
                 kJson}));
    c.push_back(command("labels", "", 0, 0, "list every label once",
                        "Lists every label of the keys once, in the order they are first met.\n",
                        kMaster, {kJson}));
    c.push_back(
        command("show", "KEY", 1, 1, "show all fields of a key",
                "Shows the seven fields of the key: name, label, user, pw, email, url, note.\n"
                "The password shows as ******** (null in JSON) unless --reveal is given.\n",
                kMaster, {{"reveal", nullptr, "show the password"}, kJson}));
    c.push_back(
        command("get", "KEY FIELD", 2, 2, "print one field's value",
                "Prints the plain value of one field and nothing else (a line end only when the\n"
                "output is a terminal). FIELD is one of name, label, user, pw, email, url, note.\n",
                kMaster, {}));
    c.push_back(
        command("add", "NAME", 1, 1, "add a key",
                "Adds a key named NAME at the end of the list; fields not given stay empty.\n"
                "Passwords are never taken from the command line: use --generate or\n"
                "--password-stdin. A name that another key has already is allowed, but KEY can\n"
                "then only reach them as #N.\n",
                kMasterThenKey, keyFieldOptions(false)));
    c.push_back(
        command("edit", "KEY", 1, 1, "change fields of a key",
                "Changes the fields given and keeps the others; an empty value empties a field\n"
                "(but a key keeps a name). Nothing is written when no value changes.\n",
                kMasterThenKey, keyFieldOptions(true)));
    c.push_back(command("rm", "KEY", 1, 1, "delete a key (it moves to the trash)",
                        "Moves the key, with all its fields, to the trash of the key file;\n"
                        "ls --trash lists it.\n",
                        kMaster, {}));
    c.push_back(
        command("passwd", "", 0, 0, "change the master password",
                "Makes a backup of the key file, then enciphers every key and setting anew under\n"
                "the new master password (same rules as init). The old password no longer opens\n"
                "the file.\n",
                "the master password, then the new one twice", {}));
    c.push_back(
        command("backup", "", 0, 0, "copy the key file to a time-stamped backup",
                "Copies the key file to Zelto.backup.<time stamp>.xml in its folder and prints\n"
                "the backup's path.\n",
                kMaster, {}));
    c.push_back(command(
        "settings", "", 0, 0, "show or change the settings",
        "Without options prints the settings; with options changes them and prints them.\n"
        "Seconds are read as the settings dialog reads them (leading digits, anything else\n"
        "is 0) and clamped: --autolock and --clear-clipboard below 5 become 0 (off) and\n"
        "above 600 become 600; --show-selected below 1 becomes 0 (off) and above 30\n"
        "becomes 30. The user fields are stored enciphered; an empty value empties one.\n",
        kMaster,
        {{"autolock", "N", "lock after N seconds without input"},
         {"clear-clipboard", "N", "clear the clipboard N seconds after a copy"},
         {"show-selected", "N", "show a selected key's name for N seconds"},
         {"language", "L", "the file's language: English or Deutsch"},
         {"first-name", "T", "your first name, for the cloud export (stored enciphered)"},
         {"last-name", "T", "your last name, the export's partition key (stored enciphered)"},
         {"email", "T", "your e-mail address, the export's row key (stored enciphered)"}}));
    c.push_back(
        command("export", "", 0, 0, "export the enciphered key file to the cloud table",
                "Writes the key file as it is saved, still enciphered, with your first name, last\n"
                "name, e-mail address (see settings) and the password's verify value into one\n"
                "record of the table \"user\" of the cloud account; a second export replaces it.\n"
                "The account is built in; the environment variable ZELTO_CLOUD_CONNECTION_STRING\n"
                "names another one. Names and addresses the table cannot take as keys, and files\n"
                "too large for one record, are refused before anything is sent.\n",
                kMaster, {{"show-data", nullptr, "print the key file text that is sent"}}));
    c.push_back(command("help", "[COMMAND]", 0, 1, "show the help of the tool or of a command",
                        "Shows the help of the tool, or of COMMAND.\n", nullptr, {}));
    return c;
}

}  // namespace

const zlcOptionSpec* zlcCommandSpec::option(const std::string& optionName) const {
    for (const zlcOptionSpec& o : options) {
        if (optionName == o.name)
            return &o;
    }
    return nullptr;
}

const std::vector<zlcCommandSpec>& zlcCommands() {
    static const std::vector<zlcCommandSpec> commands = makeCommands();
    return commands;
}

const zlcCommandSpec* zlcFindCommand(const std::string& name) {
    for (const zlcCommandSpec& c : zlcCommands()) {
        if (name == c.name)
            return &c;
    }
    return nullptr;
}

const std::vector<zlcOptionSpec>& zlcGlobalOptions() {
    static const std::vector<zlcOptionSpec> options = {
        {"file", "PATH", "the key file (default: Zelto.xml beside the program)"},
        {"help", nullptr, "show this help (also -h)"},
        {"version", nullptr, "print the program's version"},
    };
    return options;
}

}  // namespace Zelto
