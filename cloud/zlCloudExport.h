#pragma once

#include <functional>
#include <string>

#include "cloud/zlCloudResult.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlHttpTransport.h"
#include "core/dm_string.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// The two boxes of the export. Each call returns when the user has closed the box; either
// may be left empty, and then nothing is shown.
struct zlCloudExportUi {
    // The complete key file text, titled "xmlData", before anything is sent.
    std::function<void(const dunmar::dm_string& text, const dunmar::dm_string& title)> showData;
    // "Export was successful" titled "Zelto Cloud Account", after the write.
    std::function<void(const dunmar::dm_string& text, const dunmar::dm_string& title)> showSuccess;
};

// Exports the key file to the table "user" of the account that the connection string names,
// as one record keyed by the user's last name and e-mail.
//
// In order: parse the connection string; without a settings item, zlCloudNothingToExport and
// nothing else; fill the record from the settings and the file's text as the writer builds
// it, and check it; show the data box; create the table if needed; write; show the success
// box. Everything that can be refused without the network is refused before the data box,
// and nothing is sent before that box is closed. A failure returns its reason for the
// status line and shows no box after the data box.
zlCloudResult zlExportToCloud(zlKeyFile& file, const std::string& connectionString,
                              zlHttpTransport& transport, const zlCloudExportUi& ui,
                              zlDateSource date = zlHttpDateNow);

// The status line's text for a failed export: "ERROR: Cloud export failed: " and the reason.
// Empty for success and for nothing to export.
dunmar::dm_string zlCloudStatusText(const zlCloudResult& result);

}  // namespace Zelto
