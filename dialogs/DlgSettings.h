#pragma once

#include "model/zlKeyFile.h"
#include "ui/DlgBase.h"

namespace Zelto {

// Edits the three timing settings of the key file and saves the file after each value.
class DlgSettings : public dunmar::DlgBase {
  public:
    DlgSettings(HINSTANCE instance, HWND parent, zlKeyFile& file);
    ~DlgSettings() override;

    bool onInit() override;
    bool onCommand(int id) override;
    dunmar::dm_string title() override;

    // How the key file is saved (zlSaveKeyFile unless replaced). Process-wide; null
    // restores the default.
    using keyFileSaver = int (*)(zlKeyFile& file);
    static void setKeyFileSaver(keyFileSaver saver);

    // Number of saves that did not return 1 during the last "OK".
    int failedSaves() const { return failedSaves_; }

  private:
    void store();
    void fitCaptions();

    zlKeyFile& file_;
    int failedSaves_ = 0;
};

}  // namespace Zelto
