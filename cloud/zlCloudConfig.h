#pragma once

#include <string>

namespace Zelto {

// The environment variable that names another storage account (tests, self-hosting).
extern const char zlCloudConnectionStringVariable[];  // "ZELTO_CLOUD_CONNECTION_STRING"

// The connection string of the export: the variable's value when it is set and not empty,
// else the one built into the program. Never shown to the user: it holds the account key.
std::string zlCloudConnectionString();

}  // namespace Zelto
