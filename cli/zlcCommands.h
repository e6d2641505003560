#pragma once

#include "app/zlFileSet.h"
#include "cli/zlcArgs.h"
#include "cli/zlcIo.h"

namespace Zelto {

// What a command works with: its arguments, its texts and secrets, and the files.
struct zlcContext {
    const zlcArgs& args;
    zlcIo& io;
    zlFileSet files;
};

// The commands; each returns the exit status, with its messages given.
int zlcInit(zlcContext& c);
int zlcList(zlcContext& c);
int zlcLabels(zlcContext& c);
int zlcShow(zlcContext& c);
int zlcGet(zlcContext& c);
int zlcAdd(zlcContext& c);
int zlcEdit(zlcContext& c);
int zlcRemove(zlcContext& c);
int zlcPasswd(zlcContext& c);
int zlcBackup(zlcContext& c);
int zlcSettings(zlcContext& c);
int zlcExport(zlcContext& c);

}  // namespace Zelto
