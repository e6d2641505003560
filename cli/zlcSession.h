#pragma once

#include <string>

#include "app/zlFileSet.h"
#include "cli/zlcIo.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// One logged-in use of the key file: the master password asked, the file read (an older
// one converted first) and checked. The tree keeps the bytes it read, so that a write can
// make sure nobody changed the file in between.
class zlcSession {
  public:
    zlcSession(zlcIo& io, const zlFileSet& files) : io_(io), files_(files) {}

    // Exit status: zlcExitOk, or the failure's, with its message already given.
    int open();

    zlKeyFile& file() { return file_; }
    const zlFileSet& files() const { return files_; }
    const std::string& password() const { return password_; }

    // zlcExitFile with a message when the file on disk is no longer the one read.
    int checkUnchanged();
    // Writes the tree over the file when it is unchanged on disk.
    int save();

    // The message prefix of read failures: failed to read "PATH".
    std::string readFailure(const std::string& reason) const;

  private:
    int read();
    // Converts a file of the older format (the old one kept as the set's backup) and reads
    // the result.
    int readOlderFormat();

    zlcIo& io_;
    zlFileSet files_;
    zlKeyFile file_;
    std::string password_;
};

}  // namespace Zelto
