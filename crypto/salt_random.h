#pragma once

#include <cstdint>

namespace Zelto {

// The C runtime's rand as Microsoft's runtime computes it, kept in the program so that Windows
// and host builds draw the same salt. Values are 0..32767.
class zlSaltRandom {
  public:
    zlSaltRandom() = default;

    int next_value() {
        state_ = state_ * 214013u + 2531011u;
        return static_cast<int>((state_ >> 16) & 0x7fffu);
    }

    uint8_t next_byte() { return static_cast<uint8_t>(next_value() & 0xff); }

  private:
    uint32_t state_ = 1;  // the runtime's state before any seeding
};

// The one generator of the process. It is never reseeded, so every run draws the same salt
// sequence. The program uses it from its one thread only.
zlSaltRandom& process_salt_random();

}  // namespace Zelto
