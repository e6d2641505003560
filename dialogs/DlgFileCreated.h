#pragma once

#include "ui/DlgBase.h"
#include "ui/controlButton.h"
#include "ui/controlLabel.h"

namespace Zelto {

// Tells that a file (a backup of the key file) was written and offers to open its folder.
class DlgFileCreated : public dunmar::DlgBase {
  public:
    DlgFileCreated(HINSTANCE instance, HWND parent, const dunmar::dm_string& path);
    ~DlgFileCreated() override;

    bool onInit() override;
    bool onCommand(int id) override;
    bool createControls() override;
    bool layout(int width, int height) override;
    dunmar::dm_string title() override;

    // The folder part of path: up to its last "/" or "\", whichever comes later; empty
    // when there is none or it is the first character.
    static dunmar::dm_string folderOf(const dunmar::dm_string& path);

  private:
    dunmar::dm_string path_;
    dunmar::controlLabel heading_;
    dunmar::controlLabel pathLabel_;
    dunmar::controlButton openFolder_;
    dunmar::controlButton ok_;
};

}  // namespace Zelto
