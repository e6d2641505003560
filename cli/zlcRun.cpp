#include "cli/zlcRun.h"

#include "cli/zlcArgs.h"
#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcFiles.h"
#include "cli/zlcHelp.h"

namespace Zelto {

namespace {

struct Handler {
    const char* name;
    int (*run)(zlcContext&);
};

const Handler kHandlers[] = {
    {"init", zlcInit},     {"ls", zlcList},       {"labels", zlcLabels},     {"show", zlcShow},
    {"get", zlcGet},       {"add", zlcAdd},       {"edit", zlcEdit},         {"rm", zlcRemove},
    {"passwd", zlcPasswd}, {"backup", zlcBackup}, {"settings", zlcSettings}, {"export", zlcExport},
};

}  // namespace

int zlcRun(const std::vector<std::string>& argv, zlcIo& io) {
    zlcArgs args;
    std::string error;
    if (!zlcParseArgs(argv, args, error)) {
        zlcFail(io, zlcExitUsage, error);
        io.err += "Run 'zelto-cli --help' for the commands and their options.\n";
        return zlcExitUsage;
    }
    if (args.help) {
        io.out += args.command ? zlcCommandHelp(*args.command) : zlcToolHelp();
        return zlcExitOk;
    }
    if (args.version) {
        io.out += zlcVersionText();
        return zlcExitOk;
    }
    for (const Handler& h : kHandlers) {
        if (std::string(h.name) == args.command->name) {
            zlcContext context{args, io, zlcFileSetFor(args.hasFile ? &args.file : nullptr)};
            return h.run(context);
        }
    }
    return zlcFail(io, zlcExitUsage, std::string("'") + args.command->name + "' is not built in");
}

}  // namespace Zelto
