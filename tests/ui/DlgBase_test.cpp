#include "ui/DlgBase.h"

#include <gtest/gtest.h>

#include <vector>

#include "res/resource.h"
#include "ui/controlHyperLink.h"
#include "ui/controlLabel.h"
#include "ui/support/dialogDriver.h"
#include "ui/uiColors.h"

using namespace ztest;
using Sizes = std::vector<std::pair<int, int>>;

namespace {

// The sizeable base template with a label and the link, recording its lay-outs.
class TestDialog : public dunmar::DlgBase {
  public:
    explicit TestDialog(HINSTANCE instance = GetModuleHandleW(nullptr))
        : DlgBase(instance, nullptr, IDD_BASE_SIZEABLE, 300, 200) {}
    bool createControls() override {
        addChild(label, L"STATIC", dunmar::dm_string(L"A label"), label.style(), 0, 200);
        return link.create(instance(), window(), dunmar::dm_string(L"zelto.example"));
    }
    bool layout(int width, int height) override { return layouts.push_back({width, height}), true; }

    Sizes layouts;
    dunmar::controlLabel label;
    dunmar::controlHyperLink link;
};

}  // namespace

TEST(DlgBase, StaticsOnTheBackgroundAndLayOutsOnlyForAShownFrame) {
    EXPECT_EQ(-1, TestDialog(nullptr).run());  // no instance: not shown
    TestDialog dialog;
    std::vector<COLORREF> colours;  // text, background, brush: the label's, then the link's
    const INT_PTR result = runDriven(
        dialog, {[&](HWND d) {
            EXPECT_EQ(&dialog, dunmar::DlgBase::current());
            HDC dc = CreateCompatibleDC(nullptr);
            for (HWND s : {dialog.label.handle(), dialog.link.handle()}) {
                SetTextColor(dc, RGB(1, 2, 3));
                LOGBRUSH brush = {};
                GetObjectW(HBRUSH(SendMessageW(d, WM_CTLCOLORSTATIC, WPARAM(dc), LPARAM(s))),
                           sizeof(brush), &brush);
                colours.insert(colours.end(), {GetTextColor(dc), GetBkColor(dc), brush.lbColor});
            }
            DeleteDC(dc);
            dialog.layouts.clear();
            for (int type : {SIZE_MINIMIZED, SIZE_RESTORED, SIZE_MAXIMIZED, SIZE_MAXHIDE, 5})
                SendMessageW(d, WM_SIZE, type, MAKELPARAM(300 + type, 200 + type));
            SendMessageW(d, WM_CLOSE, 0, 0);
        }});
    EXPECT_EQ(IDCANCEL, result);
    EXPECT_EQ(nullptr, dunmar::DlgBase::current());
    const COLORREF bg = dunmar::kBackgroundColor;
    EXPECT_EQ((std::vector<COLORREF>{0, bg, bg, dunmar::kLinkColor, bg, bg}), colours);
    EXPECT_EQ((Sizes{{300, 200}, {302, 202}}), dialog.layouts);  // restored and maximised only
}
