#include "core/dm_convert.h"

#include <cstdint>

namespace dunmar {
namespace {

constexpr uint32_t kSurHighStart = 0xD800;
constexpr uint32_t kSurHighEnd = 0xDBFF;
constexpr uint32_t kSurLowStart = 0xDC00;
constexpr uint32_t kSurLowEnd = 0xDFFF;
constexpr uint32_t kMaxBmp = 0xFFFF;
constexpr uint32_t kMaxUtf16 = 0x10FFFF;
constexpr uint32_t kHalfBase = 0x10000;

// Number of continuation bytes announced by a lead byte. 0x80..0xBF and 0xF8..0xFF are
// rejected later by is_legal_sequence.
int trailing_bytes(unsigned char lead) {
    if (lead < 0xC0)
        return 0;
    if (lead < 0xE0)
        return 1;
    if (lead < 0xF0)
        return 2;
    if (lead < 0xF8)
        return 3;
    if (lead < 0xFC)
        return 4;
    return 5;
}

// Well-formedness of one complete sequence of `length` bytes, per the Unicode table of
// well-formed byte sequences: rules out overlong forms, encoded surrogates and values above
// U+10FFFF.
bool is_legal_sequence(const unsigned char* s, int length) {
    if (length < 1 || length > 4)
        return false;
    for (int i = 1; i < length; ++i) {
        if (s[i] < 0x80 || s[i] > 0xBF)
            return false;
    }
    if (length >= 2) {
        const unsigned char second = s[1];
        switch (s[0]) {
            case 0xE0:
                if (second < 0xA0)
                    return false;
                break;
            case 0xED:
                if (second > 0x9F)
                    return false;
                break;
            case 0xF0:
                if (second < 0x90)
                    return false;
                break;
            case 0xF4:
                if (second > 0x8F)
                    return false;
                break;
            default:
                break;
        }
    }
    if (s[0] >= 0x80 && s[0] < 0xC2)
        return false;
    return s[0] <= 0xF4;
}

void append_utf8(std::string& out, uint32_t ch) {
    if (ch < 0x80) {
        out += static_cast<char>(ch);
    } else if (ch < 0x800) {
        out += static_cast<char>(0xC0 | (ch >> 6));
        out += static_cast<char>(0x80 | (ch & 0x3F));
    } else if (ch < 0x10000) {
        out += static_cast<char>(0xE0 | (ch >> 12));
        out += static_cast<char>(0x80 | ((ch >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (ch & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (ch >> 18));
        out += static_cast<char>(0x80 | ((ch >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((ch >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (ch & 0x3F));
    }
}

template <class Char>
size_t zero_terminated_length(const Char* text) {
    size_t n = 0;
    if (text != nullptr) {
        while (text[n] != 0)
            ++n;
    }
    return n;
}

}  // namespace

dm_wstring utf8_to_utf16(const char* bytes, size_t len, bool* complete) {
    dm_wstring out;
    size_t pos = 0;
    if (bytes == nullptr)
        len = 0;
    const auto* src = reinterpret_cast<const unsigned char*>(bytes);
    while (pos < len) {
        const int extra = trailing_bytes(src[pos]);
        if (static_cast<size_t>(extra) >= len - pos)
            break;  // truncated sequence
        if (!is_legal_sequence(src + pos, extra + 1))
            break;
        uint32_t ch = extra == 0 ? src[pos] : (src[pos] & (0x3F >> extra));
        for (int i = 1; i <= extra; ++i)
            ch = (ch << 6) | (src[pos + i] & 0x3F);
        // is_legal_sequence already excludes surrogates and values above U+10FFFF; the checks
        // stay so that the conversion never emits an ill-formed unit on its own account.
        if (ch <= kMaxBmp) {
            if (ch >= kSurHighStart && ch <= kSurLowEnd)
                break;
            out += static_cast<dm_wchar>(ch);
        } else if (ch > kMaxUtf16) {
            break;
        } else {
            ch -= kHalfBase;
            out += static_cast<dm_wchar>((ch >> 10) + kSurHighStart);
            out += static_cast<dm_wchar>((ch & 0x3FF) + kSurLowStart);
        }
        pos += static_cast<size_t>(extra) + 1;
    }
    if (complete != nullptr)
        *complete = pos == len;
    return out;
}

dm_wstring utf8_to_utf16(const char* text) {
    return utf8_to_utf16(text, zero_terminated_length(text));
}

std::string utf16_to_utf8(const dm_wchar* units, size_t len, bool* complete) {
    std::string out;
    size_t pos = 0;
    if (units == nullptr)
        len = 0;
    while (pos < len) {
        uint32_t ch = static_cast<uint16_t>(units[pos]);
        size_t used = 1;
        if (ch >= kSurHighStart && ch <= kSurHighEnd) {
            if (pos + 1 >= len)
                break;  // high surrogate at the very end
            const uint32_t low = static_cast<uint16_t>(units[pos + 1]);
            if (low < kSurLowStart || low > kSurLowEnd)
                break;
            ch = ((ch - kSurHighStart) << 10) + (low - kSurLowStart) + kHalfBase;
            used = 2;
        } else if (ch >= kSurLowStart && ch <= kSurLowEnd) {
            break;  // low surrogate without a high one
        }
        append_utf8(out, ch);
        pos += used;
    }
    if (complete != nullptr)
        *complete = pos == len;
    return out;
}

std::string utf16_to_utf8(const dm_wchar* text) {
    return utf16_to_utf8(text, zero_terminated_length(text));
}

}  // namespace dunmar
