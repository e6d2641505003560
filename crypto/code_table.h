#pragma once

#include <cstdint>

namespace Zelto {

constexpr unsigned kCodeTableSize = 256;
constexpr unsigned kCodeSize = 3;  // two characters and a terminating NUL

// Entry i is the two-character code written for byte value i: a fixed permutation of the
// upper-case hexadecimal pairs "00".."FF". Every stored key file depends on this order.
extern const char kCodeTable[kCodeTableSize][kCodeSize];

// Reverse of a code table (kCodeTable, or plain hexadecimal) for reading texts back.
class zlCodeIndex {
  public:
    // Byte value whose code is the pair (first, second), or -1 when no entry is that pair
    // (case matters). Since the table holds each pair exactly once, this equals a scan from
    // entry 0.
    int find(char first, char second) const {
        const int high = digit_[static_cast<unsigned char>(first)];
        const int low = digit_[static_cast<unsigned char>(second)];
        if (high < 0 || low < 0) {
            return -1;
        }
        return byte_[high * 16 + low];
    }

  private:
    friend const zlCodeIndex& code_index();
    friend const zlCodeIndex& hex_index();
    explicit zlCodeIndex(const char (&table)[kCodeTableSize][kCodeSize]);

    int8_t digit_[256];  // value of '0'-'9', 'A'-'F'; -1 for every other character
    uint8_t byte_[256];  // hexadecimal value of a pair -> its entry in the table
};

// Built once from kCodeTable on first use.
const zlCodeIndex& code_index();

// The identity table: byte i is written as its upper-case hexadecimal pair. Files of the
// older format store their values this way.
const zlCodeIndex& hex_index();

}  // namespace Zelto
