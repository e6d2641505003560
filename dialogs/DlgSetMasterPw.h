#pragma once

#include "ui/DlgBase.h"

namespace Zelto {

// Asks for a new master password twice and checks it against the password rules, for the
// first key file and for a change of the master password. What is done with the password
// is the caller's business.
class DlgSetMasterPw : public dunmar::DlgBase {
  public:
    DlgSetMasterPw(HINSTANCE instance, HWND parent);
    ~DlgSetMasterPw() override;

    bool onInit() override;
    bool onCommand(int id) override;
    dunmar::dm_string title() override;

    // The accepted password; empty unless the dialog ended with 1.
    const dunmar::dm_string& password() const { return accepted_; }

  private:
    void accept();

    dunmar::dm_string accepted_;
};

}  // namespace Zelto
