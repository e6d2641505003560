#include "cli/zlcStdinLine.h"

#include <cstdio>

namespace Zelto {

bool zlcReadStdinLine(std::string& line) {
    line.clear();
    int c = std::getchar();
    if (c == EOF)
        return false;
    for (; c != EOF && c != '\n'; c = std::getchar())
        line.push_back(static_cast<char>(c));
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

}  // namespace Zelto
