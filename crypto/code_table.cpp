#include "crypto/code_table.h"

namespace Zelto {

// Frozen: files written with one order can only be read with the same order. Never edit.
const char kCodeTable[kCodeTableSize][kCodeSize] = {
    "6E", "A6", "AB", "2D", "68", "06", "B2", "1C", "D9", "71", "91", "9D", "67", "82", "60", "11",
    "F2", "01", "50", "B0", "28", "A3", "E5", "69", "24", "A4", "ED", "A5", "61", "56", "04", "C4",
    "26", "D6", "CA", "83", "74", "C9", "77", "F7", "D2", "F0", "87", "15", "CB", "D7", "C8", "AA",
    "BA", "3B", "EF", "95", "C5", "12", "0A", "7C", "C3", "EB", "B7", "E0", "2A", "E8", "9C", "FA",
    "A1", "46", "40", "DD", "09", "F4", "20", "BF", "29", "F5", "C6", "DB", "0F", "E7", "3D", "42",
    "7A", "0B", "4D", "8A", "B8", "86", "FF", "25", "FE", "93", "0C", "6D", "4E", "A7", "CE", "8F",
    "8C", "37", "1E", "5C", "FB", "8D", "5B", "75", "C1", "14", "A9", "0E", "16", "94", "1D", "85",
    "BD", "52", "73", "47", "CC", "A8", "3E", "6A", "76", "5E", "72", "2E", "E1", "AE", "A2", "02",
    "4A", "3A", "F3", "DC", "49", "6B", "D3", "C0", "7E", "8B", "62", "00", "4C", "9A", "BC", "59",
    "13", "98", "B3", "F6", "7D", "07", "E9", "9E", "9F", "38", "08", "E2", "E6", "43", "1B", "39",
    "88", "FD", "AD", "8E", "63", "2C", "F9", "97", "48", "32", "B9", "E3", "41", "4F", "54", "22",
    "23", "66", "CD", "44", "F1", "84", "E4", "B4", "57", "C7", "90", "05", "18", "B6", "DF", "EA",
    "D8", "34", "99", "58", "80", "33", "31", "C2", "7F", "65", "DE", "70", "0D", "45", "5D", "F8",
    "27", "EC", "9B", "55", "64", "FC", "1A", "1F", "89", "3F", "21", "AF", "7B", "19", "D0", "B1",
    "D1", "78", "CF", "81", "96", "B5", "5A", "30", "6C", "03", "BE", "79", "2F", "D4", "36", "D5",
    "5F", "92", "17", "2B", "A0", "53", "3C", "35", "BB", "6F", "AC", "DA", "4B", "EE", "10", "51",
};

namespace {

int hex_digit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

// Byte i written as its upper-case hexadecimal pair.
struct HexTable {
    char codes[kCodeTableSize][kCodeSize];
    HexTable() {
        const char* digits = "0123456789ABCDEF";
        for (unsigned i = 0; i < kCodeTableSize; ++i) {
            codes[i][0] = digits[i / 16];
            codes[i][1] = digits[i % 16];
            codes[i][2] = '\0';
        }
    }
};

}  // namespace

zlCodeIndex::zlCodeIndex(const char (&table)[kCodeTableSize][kCodeSize]) {
    for (unsigned c = 0; c < 256; ++c) {
        digit_[c] = static_cast<int8_t>(hex_digit(static_cast<char>(c)));
    }
    for (unsigned i = 0; i < kCodeTableSize; ++i) {
        const int value = hex_digit(table[i][0]) * 16 + hex_digit(table[i][1]);
        byte_[value] = static_cast<uint8_t>(i);
    }
}

const zlCodeIndex& code_index() {
    static const zlCodeIndex index(kCodeTable);
    return index;
}

const zlCodeIndex& hex_index() {
    static const HexTable table;
    static const zlCodeIndex index(table.codes);
    return index;
}

}  // namespace Zelto
