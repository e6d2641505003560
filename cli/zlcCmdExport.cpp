#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcSession.h"
#include "cloud/zlCloudConfig.h"
#include "cloud/zlCloudExport.h"

namespace Zelto {

using dunmar::dm_string;

int zlcExport(zlcContext& c) {
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;

    const bool showData = c.args.flag("show-data");
    zlCloudExportUi ui;
    // The boxes of the window become lines; the key file text only on request, since it
    // is long (it stays enciphered either way).
    ui.showData = [&](const dm_string& text, const dm_string& title) {
        c.io.out += title.to_utf8().str() + ": ";
        c.io.out += showData ? text.to_utf8().str() + "\n"
                             : std::to_string(text.to_utf8().length()) +
                                   " bytes of the enciphered key file (--show-data prints them)\n";
    };
    ui.showSuccess = [&](const dm_string& text, const dm_string& title) {
        c.io.out += title.to_utf8().str() + ": " + text.to_utf8().str() + "\n";
    };
    const auto transport = zlNewPlatformTransport();
    const zlCloudResult result =
        zlExportToCloud(session.file(), zlCloudConnectionString(), *transport, ui);
    if (result.code == zlCloudNothingToExport)
        return zlcFail(c.io, zlcExitFile, "the key file has no settings: nothing was exported");
    if (!result.ok())
        return zlcFail(c.io, zlcExitFile, "cloud export failed: " + result.reason);
    return zlcExitOk;
}

}  // namespace Zelto
