#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ztest {

// An 8-bit RGB picture, rows top to bottom, three bytes a pixel.
struct RgbImage {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> pixels;

    const uint8_t* at(int x, int y) const { return &pixels[(size_t(y) * width + x) * 3]; }
};

// The picture as a PNG file (stored, uncompressed deflate blocks); false when writing fails.
bool writePng(const std::string& path, const RgbImage& image);

// The CRC-32 that PNG chunks carry.
uint32_t crc32(const uint8_t* data, size_t size, uint32_t crc = 0);

}  // namespace ztest
