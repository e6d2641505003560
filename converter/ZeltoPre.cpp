// The converter program: "ZeltoPre PASSWORD" rewrites ZeltoPre.xml in the working folder in
// the current format. The exit code is the conversion's result.
#include <vector>

#include "converter/zlConverterCommand.h"
#include "core/dm_string.h"
#include "core/dm_utf8_str.h"

namespace {

const dunmar::dm_string kWorkingCopy(DM_W("ZeltoPre.xml"));

}  // namespace

#ifdef _WIN32
// The wide entry point, so that a password outside the ANSI code page arrives intact.
int wmain(int argc, wchar_t** argv) {
    std::vector<dunmar::dm_string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.emplace_back(argv[i]);
    return Zelto::zlConverterCommand(arguments, kWorkingCopy);
}
#else
int main(int argc, char** argv) {
    std::vector<dunmar::dm_string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.push_back(dunmar::dm_utf8_str(argv[i]).to_wide());
    return Zelto::zlConverterCommand(arguments, kWorkingCopy);
}
#endif
