#include "ui/support/screenshot.h"

#include <algorithm>
#include <filesystem>

namespace ztest {

std::vector<DialogStep> captureSteps(RgbImage& image) {
    std::vector<DialogStep> steps;
    steps.push_back([](HWND dialog) {
        RedrawWindow(dialog, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    });
    for (int i = 0; i < 4; ++i)
        steps.push_back([](HWND) {});
    steps.push_back([&image](HWND dialog) { image = readScreen(dialog); });
    return steps;
}

RgbImage readScreen(HWND window) {
    RgbImage image;
    RECT frame;
    if (!GetWindowRect(window, &frame))
        return image;
    image.width = frame.right - frame.left;
    image.height = frame.bottom - frame.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = image.width;
    info.bmiHeader.biHeight = -image.height;  // top-down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, image.width, image.height, screen, frame.left, frame.top, SRCCOPY);
    GdiFlush();
    image.pixels.resize(size_t(image.width) * image.height * 3);
    const auto* source = static_cast<const uint8_t*>(bits);
    for (size_t i = 0; i < size_t(image.width) * image.height; ++i) {
        image.pixels[i * 3 + 0] = source[i * 4 + 2];
        image.pixels[i * 3 + 1] = source[i * 4 + 1];
        image.pixels[i * 3 + 2] = source[i * 4 + 0];
    }
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return image;
}

std::string saveScreenshot(const RgbImage& image, const std::string& name) {
    const std::filesystem::path folder(ZELTO_SCREENSHOT_DIR);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    const std::string path = (folder / (name + ".png")).string();
    return writePng(path, image) ? path : std::string();
}

int countColour(const RgbImage& image, const RECT& area, COLORREF colour) {
    int count = 0;
    const int top = std::max(0, static_cast<int>(area.top));
    const int bottom = std::min(image.height, static_cast<int>(area.bottom));
    const int left = std::max(0, static_cast<int>(area.left));
    const int right = std::min(image.width, static_cast<int>(area.right));
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const uint8_t* p = image.at(x, y);
            if (p[0] == GetRValue(colour) && p[1] == GetGValue(colour) &&
                p[2] == GetBValue(colour)) {
                ++count;
            }
        }
    }
    return count;
}

RECT rectInCapture(HWND child) {
    RECT rect = {};
    RECT frame = {};
    GetWindowRect(child, &rect);
    GetWindowRect(GetAncestor(child, GA_ROOT), &frame);
    OffsetRect(&rect, -frame.left, -frame.top);
    return rect;
}

void append(std::vector<DialogStep>& steps, const std::vector<DialogStep>& more) {
    steps.insert(steps.end(), more.begin(), more.end());
}

}  // namespace ztest
