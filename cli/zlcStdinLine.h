#pragma once

#include <string>

namespace Zelto {

// The next line of standard input without its line end ("\n" or "\r\n"). False at the end
// of the input when no character was left.
bool zlcReadStdinLine(std::string& line);

}  // namespace Zelto
