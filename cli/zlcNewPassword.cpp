#include "cli/zlcNewPassword.h"

#include "app/zlPasswordRules.h"
#include "cli/zlcExitCodes.h"
#include "core/dm_convert.h"

namespace Zelto {

using dunmar::dm_wstring;

namespace {

// The password as wide text, each byte that is no UTF-8 as U+FFFD, so that the rules see
// it as a character they refuse.
dunmar::dm_string ruleText(const std::string& bytes) {
    dm_wstring wide;
    size_t at = 0;
    while (at < bytes.size()) {
        bool complete = false;
        const dm_wstring part =
            dunmar::utf8_to_utf16(bytes.data() + at, bytes.size() - at, &complete);
        wide += part;
        if (complete)
            break;
        at += dunmar::utf16_to_utf8(part.data(), part.size()).size() + 1;
        wide += static_cast<dunmar::dm_wchar>(0xFFFD);
    }
    return dunmar::dm_string(wide);
}

}  // namespace

int zlcAskNewPassword(zlcIo& io, std::string& password) {
    password.clear();
    std::string first;
    std::string repeated;
    if (!io.readSecret("New master password: ", first))
        return zlcFail(io, zlcExitUsage, "no new master password was given");
    if (!io.readSecret("Repeat the new master password: ", repeated))
        return zlcFail(io, zlcExitUsage, "the new master password was not repeated");
    const dunmar::dm_string message = zlPasswordRuleMessage(ruleText(first));
    if (!message.empty())
        return zlcFail(io, zlcExitUsage, message.to_utf8().str());
    if (first != repeated)
        return zlcFail(io, zlcExitUsage, zlPasswordMismatchMessage().to_utf8().str());
    password = first;
    return zlcExitOk;
}

}  // namespace Zelto
