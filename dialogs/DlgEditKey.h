#pragma once

#include <cstddef>

#include "model/zlKeyFile.h"
#include "ui/DlgBase.h"
#include "ui/controlButton.h"
#include "ui/controlEdit.h"
#include "ui/controlLabel.h"

namespace Zelto {

// Creates a key or edits one: seven fields, a password proposal and "OK"/"Cancel". On "OK"
// with a change the fields are enciphered and written into the key tree; saving the file
// is the caller's business.
class DlgEditKey : public dunmar::DlgBase {
  public:
    static constexpr size_t kFieldCount = 7;

    // key null: a new key.
    DlgEditKey(HINSTANCE instance, HWND parent, zlKeyFile& file, zlFileItemKey* key);
    ~DlgEditKey() override;

    bool onInit() override;
    bool onCommand(int id) override;
    bool createControls() override;
    bool layout(int width, int height) override;
    dunmar::dm_string title() override;

    // The name of the key stored by "OK", for the caller to select it.
    const dunmar::dm_string& storedName() const { return storedName_; }
    // The key written by the last "OK" (the new one for a new key); null before.
    zlFileItemKey* storedKey() const { return storedKey_; }

    // Where the proposal's identifier comes from (the system's GUID text unless
    // replaced). Process-wide; null restores the default.
    using guidSource = bool (*)(dunmar::dm_string& out);
    static void setGuidSource(guidSource source);

  private:
    struct fieldRow {
        dunmar::controlLabel label;
        dunmar::controlEdit edit;
        dunmar::dm_string initial;
    };

    void fill();
    void store();
    void propose();

    zlKeyFile& file_;
    zlFileItemKey* key_;
    fieldRow rows_[kFieldCount];
    dunmar::controlButton propose_;
    dunmar::controlButton ok_;
    dunmar::controlButton cancel_;
    dunmar::dm_string storedName_;
    zlFileItemKey* storedKey_ = nullptr;
};

}  // namespace Zelto
