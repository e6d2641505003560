#include "ui/support/screenshot.h"

// gdiplus.h needs what WIN32_LEAN_AND_MEAN leaves out of windows.h.
#include <objidl.h>
//
#include <gdiplus.h>

#include <algorithm>
#include <filesystem>

#include "ui/textExtent.h"

namespace ztest {

std::vector<DialogStep> captureSteps(RgbImage& image) {
    std::vector<DialogStep> steps(5, [](HWND) {});
    steps[0] = [](HWND d) {
        RedrawWindow(d, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    };
    steps.push_back([&image](HWND d) { image = readScreen(d); });
    return steps;
}

RgbImage readScreen(HWND window) {
    RgbImage image;
    RECT frame = {};
    GetWindowRect(window, &frame);
    image.width = frame.right - frame.left;
    image.height = frame.bottom - frame.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, image.width, image.height);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, image.width, image.height, screen, frame.left, frame.top, SRCCOPY);
    SelectObject(memory, previous);
    BITMAPINFO info = {};
    info.bmiHeader = {
        sizeof(BITMAPINFOHEADER), image.width, -image.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    image.pixels.resize(size_t(image.width) * image.height * 4);
    GetDIBits(memory, bitmap, 0, image.height, image.pixels.data(), &info, DIB_RGB_COLORS);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return image;
}

std::string saveScreenshot(const RgbImage& image, const std::string& name) {
    using namespace Gdiplus;
    using namespace Gdiplus::DllExports;
    static const bool started = [] {  // GDI+ holds the PNG encoder; it stays to the end
        ULONG_PTR token = 0;
        GdiplusStartupInput input;
        return GdiplusStartup(&token, &input, nullptr) == Ok;
    }();
    const std::filesystem::path folder(ZELTO_SCREENSHOT_DIR);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    const std::filesystem::path path = folder / (name + ".png");
    const CLSID png = {
        0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    GpBitmap* bitmap = nullptr;
    const bool saved =
        started && !image.pixels.empty() &&
        GdipCreateBitmapFromScan0(image.width, image.height, image.width * 4, PixelFormat32bppRGB,
                                  const_cast<BYTE*>(image.pixels.data()), &bitmap) == Ok &&
        GdipSaveImageToFile(bitmap, path.wstring().c_str(), &png, nullptr) == Ok;
    if (bitmap)
        GdipDisposeImage(bitmap);
    return saved ? path.string() : std::string();
}

int countColour(const RgbImage& image, const RECT& area, COLORREF colour) {
    int count = 0;
    for (LONG y = std::max(0L, area.top); y < std::min<LONG>(image.height, area.bottom); ++y) {
        for (LONG x = std::max(0L, area.left); x < std::min<LONG>(image.width, area.right); ++x) {
            const uint8_t* p = &image.pixels[(size_t(y) * image.width + x) * 4];
            count += RGB(p[2], p[1], p[0]) == colour;
        }
    }
    return count;
}

std::vector<int> textsCut(HWND window) {
    std::vector<int> cut;
    for (HWND c = GetWindow(window, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        wchar_t cls[32] = {};
        GetClassNameW(c, cls, 32);
        const int margin = lstrcmpiW(cls, L"Button") == 0 ? 8 : 0;  // the frame around it
        const std::wstring text = textOf(c);
        const SIZE need = dunmar::textExtent(c, dunmar::dm_string(text.c_str()));
        RECT inside;
        GetClientRect(c, &inside);
        if (IsWindowVisible(c) && (margin || lstrcmpiW(cls, L"Static") == 0) && !text.empty() &&
            (need.cx + margin > inside.right || need.cy > inside.bottom))
            cut.push_back(GetDlgCtrlID(c));
    }
    return cut;
}

}  // namespace ztest
