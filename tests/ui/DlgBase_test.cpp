#include "ui/DlgBase.h"

#include <gtest/gtest.h>

#include <vector>

#include "res/resource.h"
#include "ui/support/dialogDriver.h"

using namespace ztest;
using Sizes = std::vector<std::pair<int, int>>;

namespace {

// The sizeable base template, recording its lay-outs.
class TestDialog : public dunmar::DlgBase {
  public:
    explicit TestDialog(HINSTANCE instance = GetModuleHandleW(nullptr))
        : DlgBase(instance, nullptr, IDD_BASE_SIZEABLE, 300, 200) {}
    bool createControls() override { return true; }
    bool layout(int width, int height) override { return layouts.push_back({width, height}), true; }

    Sizes layouts;
};

}  // namespace

// The statics' colours show in the dialog tour's pictures.
TEST(DlgBase, LayOutsOnlyForAShownFrame) {
    EXPECT_EQ(-1, TestDialog(nullptr).run());  // no instance: not shown
    TestDialog dialog;
    const INT_PTR result = runDriven(
        dialog, {[&](HWND d) {
            EXPECT_EQ(&dialog, dunmar::DlgBase::current());
            dialog.layouts.clear();
            for (int type : {SIZE_MINIMIZED, SIZE_RESTORED, SIZE_MAXIMIZED, SIZE_MAXHIDE, 5})
                SendMessageW(d, WM_SIZE, type, MAKELPARAM(300 + type, 200 + type));
            SendMessageW(d, WM_CLOSE, 0, 0);
        }});
    EXPECT_EQ(IDCANCEL, result);
    EXPECT_EQ(nullptr, dunmar::DlgBase::current());
    EXPECT_EQ((Sizes{{300, 200}, {302, 202}}), dialog.layouts);  // restored and maximised only
}
