#pragma once

#include <string>

#include "app/zlFileSet.h"

namespace Zelto {

// The files a run works on. Without a path: the set beside the program. With one: the
// set of the path's folder (the current folder when it names none), with the key file
// replaced by the path itself, so that backups and working copies land beside it.
zlFileSet zlcFileSetFor(const std::string* path);

// A wide path as UTF-8, for messages.
std::string zlcPathText(const dunmar::dm_string& path);

}  // namespace Zelto
