#pragma once

namespace Zelto {

// What the program's exit status tells a script.
enum zlcExit : int {
    zlcExitOk = 0,
    zlcExitUsage = 1,          // bad arguments, or a new password that breaks the rules
    zlcExitWrongPassword = 2,  // the master password does not open the file
    zlcExitNoKey = 3,          // no key of that name or position, or several of that name
    zlcExitFile = 4,           // the file cannot be read, written or converted
};

}  // namespace Zelto
