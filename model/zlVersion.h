#pragma once

namespace Zelto {

// The program's own version, written into every saved key file.
constexpr long zlVersionMajor = 2;
constexpr long zlVersionMinor = 2;
constexpr long zlVersionPatch = 1;

}  // namespace Zelto
