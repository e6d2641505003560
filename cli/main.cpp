#include "cli/zlcPlatform.h"
#include "cli/zlcRun.h"

int main(int argc, char** argv) {
    Zelto::zlcPrepareProcess();
    Zelto::zlcIo io;
    io.readSecret = Zelto::zlcReadSecret;
    io.outIsTerminal = Zelto::zlcStdoutIsTerminal();
    const int status = Zelto::zlcRun(Zelto::zlcArguments(argc, argv), io);
    Zelto::zlcWriteOut(io.out);
    Zelto::zlcWriteErr(io.err);
    return status;
}
