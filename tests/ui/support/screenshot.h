#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ui/support/dialogDriver.h"

namespace ztest {

// What the screen showed of a window: rows top to bottom, four bytes a pixel in GDI's order
// (blue, green, red, unused).
struct RgbImage {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> pixels;
};

// What the screen shows of a window (frame included) now.
RgbImage readScreen(HWND window);
// Steps that capture the dialog into image. Wine hands the drawing to the X server from the
// dialog's own message loop, so the picture is taken a few ticks after the redraw.
std::vector<DialogStep> captureSteps(RgbImage& image);
// Saves <name>.png in the build tree's screenshot folder: its path, or empty on failure.
std::string saveScreenshot(const RgbImage& image, const std::string& name);
// How many pixels of the rectangle (window coordinates) have exactly this colour.
int countColour(const RgbImage& image, const RECT& area, COLORREF colour);
// The ids of the visible buttons and statics whose text does not fit inside them.
std::vector<int> textsCut(HWND window);

}  // namespace ztest
