#pragma once

#include <vector>

#include "res/resource.h"
#include "ui/DlgBase.h"
#include "ui/controlButton.h"
#include "ui/controlComboBox.h"
#include "ui/controlEdit.h"
#include "ui/controlHyperLink.h"
#include "ui/controlLabel.h"
#include "ui/controlList.h"

namespace ztest {

// Control identifiers of the test dialog.
enum : int {
    kTestLabel = 200,
    kTestEdit = 201,
    kTestList = 202,
    kTestCombo = 203,
};

// A dialog on the sizeable base template with one control of each kind. It keeps the base's
// command handling and records the other operations.
class TestDialog : public dunmar::DlgBase {
  public:
    explicit TestDialog(int minWidth = 300, int minHeight = 200, int maxWidth = -1,
                        int maxHeight = -1)
        : DlgBase(GetModuleHandleW(nullptr), nullptr, IDD_BASE_SIZEABLE, minWidth, minHeight,
                  maxWidth, maxHeight) {}
    TestDialog(HINSTANCE instance, int minWidth, int minHeight)
        : DlgBase(instance, nullptr, IDD_BASE_SIZEABLE, minWidth, minHeight) {}

    bool createControls() override {
        ++createCalls;
        const DWORD child = WS_CHILD | WS_VISIBLE;
        addChild(label, L"STATIC", dunmar::dm_string(L"A label"), label.style(), 0, kTestLabel);
        addChild(edit, L"EDIT", dunmar::dm_string(), child | WS_BORDER | ES_AUTOHSCROLL, 0,
                 kTestEdit);
        addChild(list, L"LISTBOX", dunmar::dm_string(),
                 child | WS_BORDER | WS_VSCROLL | LBS_NOTIFY | LBS_HASSTRINGS, 0, kTestList);
        addChild(combo, L"COMBOBOX", dunmar::dm_string(),
                 child | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS, 0, kTestCombo);
        addChild(ok, L"BUTTON", dunmar::dm_string(L"OK"), child | WS_TABSTOP | BS_DEFPUSHBUTTON, 0,
                 IDOK);
        addChild(cancel, L"BUTTON", dunmar::dm_string(L"Cancel"), child | WS_TABSTOP, 0, IDCANCEL);
        if (link.create(instance(), window(), dunmar::dm_string(L"https://zelto.example/")))
            listControl(link);
        return true;
    }

    bool layout(int width, int height) override {
        ++layoutCalls;
        lastWidth = width;
        lastHeight = height;
        label.place(8, 8, 120, 24);
        edit.place(8, 40, width - 16, 24);
        list.place(8, 72, 160, 100);
        combo.place(176, 72, 120, 200);
        link.place(176, 104, 200, 24);
        ok.place(width - 176, height - 32, 80, 24);
        cancel.place(width - 88, height - 32, 80, 24);
        return true;
    }

    bool onSelectionChanged(int id) override {
        selectionChanges.push_back(id);
        return DlgBase::onSelectionChanged(id);
    }

    bool onEditChange(int id) override {
        editChanges.push_back(id);
        return DlgBase::onEditChange(id);
    }

    int createCalls = 0;
    int layoutCalls = 0;
    int lastWidth = 0;
    int lastHeight = 0;
    std::vector<int> selectionChanges;
    std::vector<int> editChanges;
    dunmar::controlLabel label;
    dunmar::controlEdit edit;
    dunmar::controlList list;
    dunmar::controlComboBox combo;
    dunmar::controlButton ok;
    dunmar::controlButton cancel;
    dunmar::controlHyperLink link;
};

// The same dialog, also recording the commands before the base handles them.
class CommandRecordingDialog : public TestDialog {
  public:
    bool onCommand(int id) override {
        commands.push_back(id);
        return TestDialog::onCommand(id);
    }
    std::vector<int> commands;
};

}  // namespace ztest
