#include "ui/support/pngWriter.h"

#include <fstream>

namespace ztest {

namespace {

void put32(std::vector<uint8_t>& out, uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        out.push_back(static_cast<uint8_t>(value >> shift));
}

void chunk(std::vector<uint8_t>& file, const char* type, const std::vector<uint8_t>& data) {
    put32(file, static_cast<uint32_t>(data.size()));
    std::vector<uint8_t> body(type, type + 4);
    body.insert(body.end(), data.begin(), data.end());
    file.insert(file.end(), body.begin(), body.end());
    put32(file, crc32(body.data(), body.size()));
}

// A zlib stream of stored blocks: no compression, so nothing to get wrong.
std::vector<uint8_t> zlibStored(const std::vector<uint8_t>& raw) {
    std::vector<uint8_t> out = {0x78, 0x01};
    size_t offset = 0;
    do {
        const size_t size = std::min<size_t>(65535, raw.size() - offset);
        const bool last = offset + size == raw.size();
        out.push_back(last ? 1 : 0);
        out.push_back(static_cast<uint8_t>(size & 0xFF));
        out.push_back(static_cast<uint8_t>(size >> 8));
        out.push_back(static_cast<uint8_t>(~size & 0xFF));
        out.push_back(static_cast<uint8_t>((~size >> 8) & 0xFF));
        out.insert(out.end(), raw.begin() + offset, raw.begin() + offset + size);
        offset += size;
    } while (offset < raw.size());
    uint32_t a = 1;
    uint32_t b = 0;
    for (uint8_t byte : raw) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    put32(out, (b << 16) | a);
    return out;
}

}  // namespace

uint32_t crc32(const uint8_t* data, size_t size, uint32_t crc) {
    crc = ~crc;
    for (size_t i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

bool writePng(const std::string& path, const RgbImage& image) {
    if (image.width <= 0 || image.height <= 0)
        return false;
    std::vector<uint8_t> file = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    std::vector<uint8_t> header;
    put32(header, static_cast<uint32_t>(image.width));
    put32(header, static_cast<uint32_t>(image.height));
    header.insert(header.end(), {8, 2, 0, 0, 0});  // 8-bit RGB, no interlace
    chunk(file, "IHDR", header);
    std::vector<uint8_t> raw;
    const size_t stride = size_t(image.width) * 3;
    raw.reserve((stride + 1) * image.height);
    for (int y = 0; y < image.height; ++y) {
        raw.push_back(0);  // no filter
        const uint8_t* row = image.at(0, y);
        raw.insert(raw.end(), row, row + stride);
    }
    chunk(file, "IDAT", zlibStored(raw));
    chunk(file, "IEND", {});
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(file.data()),
              static_cast<std::streamsize>(file.size()));
    return static_cast<bool>(out);
}

}  // namespace ztest
