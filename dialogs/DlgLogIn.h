#pragma once

#include "ui/DlgBase.h"
#include "ui/controlButton.h"
#include "ui/controlComboBox.h"
#include "ui/controlEdit.h"
#include "ui/controlHyperLink.h"
#include "ui/controlLabel.h"

namespace Zelto {

// Asks for the master password at start-up and at unlock. It only tests the length; the
// caller decides whether the password is right. The companion (the main window while
// unlocking) is kept on the dialog's rectangle.
class DlgLogIn : public dunmar::DlgBase {
  public:
    DlgLogIn(HINSTANCE instance, HWND companion);
    ~DlgLogIn() override;

    bool onInit() override;
    bool onSelectionChanged(int id) override;
    bool onCommand(int id) override;
    bool onEditChange(int id) override;
    bool onMove(int x, int sameX) override;
    bool onSize(int sizeType, int width, int height) override;
    bool createControls() override;
    bool layout(int width, int height) override;
    dunmar::dm_string title() override;

    // The typed password, read after the dialog has ended.
    const dunmar::dm_string& password() const { return password_; }
    // The same in UTF-8, as the key file takes it; false (and out empty) when the text does
    // not convert wholly, such as one with a lone surrogate: no password can match it.
    bool utf8Password(dunmar::dm_utf8_str& out) const;

    // Offers the interface language in a combo box (no caller does so today).
    void setOfferLanguageChoice(bool offer) { offerLanguage_ = offer; }

    // Where the dialog last stood (left, top), for placing the main window.
    static POINT lastPosition();
    // Called after the language was switched here so that the companion can re-label
    // itself. Process-wide; null for none.
    using relabelHandler = void (*)(HWND companion);
    static void setRelabelHandler(relabelHandler handler);

    // The length rule: 8 to 127 characters.
    static bool lengthAccepted(const dunmar::dm_string& password);

  private:
    bool runLengthTest();
    void glueCompanion() const;
    void labelButton();

    HWND companion_;
    bool offerLanguage_ = false;
    dunmar::controlComboBox language_;
    dunmar::controlLabel prompt_;
    dunmar::controlEdit edit_;
    dunmar::controlHyperLink link_;
    dunmar::controlButton button_;
    dunmar::dm_string password_;
};

}  // namespace Zelto
