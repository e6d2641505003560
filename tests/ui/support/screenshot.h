#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ui/support/dialogDriver.h"

namespace ztest {

// What the screen showed of a window: rows top to bottom, four bytes a pixel in the order
// GDI hands them over (blue, green, red, unused).
struct RgbImage {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> pixels;
};

// Steps that capture what the screen shows of the dialog (frame included) into image. Wine
// hands what was drawn to the X server from the dialog's own message loop, so the picture
// is taken a few ticks after the redraw, with the loop running in between.
std::vector<DialogStep> captureSteps(RgbImage& image);

// What the screen shows of a window now.
RgbImage readScreen(HWND window);

// Saves a capture as <name>.png in the build tree's screenshot folder and returns the
// file's path; empty when it could not be written.
std::string saveScreenshot(const RgbImage& image, const std::string& name);

// How many pixels of the rectangle (window coordinates) have exactly this colour.
int countColour(const RgbImage& image, const RECT& area, COLORREF colour);

// A child's rectangle in the coordinates of its top-level window's capture.
RECT rectInCapture(HWND child);

inline void append(std::vector<DialogStep>& steps, const std::vector<DialogStep>& more) {
    steps.insert(steps.end(), more.begin(), more.end());
}

}  // namespace ztest
