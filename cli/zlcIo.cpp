#include "cli/zlcIo.h"

namespace Zelto {

int zlcFail(zlcIo& io, int code, const std::string& message) {
    io.err += "ERROR: " + message + "\n";
    return code;
}

}  // namespace Zelto
