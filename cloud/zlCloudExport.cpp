#include "cloud/zlCloudExport.h"

#include "app/zlTexts.h"
#include "cloud/zlAzure.h"
#include "core/dm_convert.h"

namespace Zelto {

zlCloudResult zlExportToCloud(zlKeyFile& file, const std::string& connectionString,
                              zlHttpTransport& transport, const zlCloudExportUi& ui,
                              zlDateSource date) {
    zlAzure azure(transport, date);
    zlCloudResult result = azure.open(connectionString);
    if (!result.ok()) {
        return result;
    }
    const zlFileItemSettings* settings = file.settings();
    if (settings == nullptr) {
        return zlCloudFailure(zlCloudNothingToExport, std::string());
    }
    zlAzureTableEntity entity;
    result = entity.fill(*settings, file.buildFileText(zlLanguageNameForFile()));
    if (result.ok()) {
        result = entity.check();
    }
    if (!result.ok()) {
        return result;
    }
    if (ui.showData) {
        ui.showData(entity.data, dunmar::dm_string(DM_W("xmlData")));
    }
    result = azure.createTableIfNotExists();
    if (result.ok()) {
        result = azure.write(entity);
    }
    if (result.ok() && ui.showSuccess) {
        ui.showSuccess(dunmar::dm_string(DM_W("Export was successful")),
                       dunmar::dm_string(DM_W("Zelto Cloud Account")));
    }
    return result;
}

dunmar::dm_string zlCloudStatusText(const zlCloudResult& result) {
    if (result.code == zlCloudOk || result.code == zlCloudNothingToExport) {
        return dunmar::dm_string();
    }
    const std::string text = "ERROR: Cloud export failed: " + result.reason;
    return dunmar::dm_string(dunmar::utf8_to_utf16(text.data(), text.size()));
}

}  // namespace Zelto
