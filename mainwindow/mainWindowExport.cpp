#include "cloud/zlCloudConfig.h"
#include "cloud/zlCloudExport.h"
#include "mainwindow/mainWindow.h"

namespace Zelto {

using dunmar::dm_string;

// The window waits for the table service; every wait of the transport is bounded. A
// failure is told on the status line with its reason and stays there.
void mainWindow::exportToCloud() {
    HWND owner = window_;
    auto box = [owner](const dm_string& text, const dm_string& title) {
        MessageBoxW(owner, text.c_str(), title.c_str(), MB_OK);
    };
    zlCloudExportUi ui;
    ui.showData = box;
    ui.showSuccess = box;
    const std::unique_ptr<zlHttpTransport> transport = zlNewPlatformTransport();
    const zlCloudResult result = zlExportToCloud(file_, zlCloudConnectionString(), *transport, ui);
    const dm_string failure = zlCloudStatusText(result);
    if (!failure.empty())
        status_.show(0, {failure.c_str()});
}

}  // namespace Zelto
