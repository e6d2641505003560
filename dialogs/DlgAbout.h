#pragma once

#include "ui/DlgBase.h"
#include "ui/controlButton.h"
#include "ui/controlHyperLink.h"
#include "ui/controlLabel.h"

namespace Zelto {

// Shows the version, the build date, the maker's notice and a link to the maker's site.
class DlgAbout : public dunmar::DlgBase {
  public:
    DlgAbout(HINSTANCE instance, HWND parent);
    ~DlgAbout() override;

    bool onInit() override;
    bool onCommand(int id) override;
    bool createControls() override;
    bool layout(int width, int height) override;
    dunmar::dm_string title() override;

    // "Zelto - Version 2.2.1 (Build: <date>)".
    static dunmar::dm_string versionLine();
    static dunmar::dm_string notice();

  private:
    dunmar::controlLabel version_;
    dunmar::controlLabel notice_;
    dunmar::controlHyperLink link_;
    dunmar::controlButton ok_;
};

}  // namespace Zelto
