#pragma once

#include <string>

#include "cloud/zlCloudResult.h"
#include "cloud/zlUrl.h"

namespace Zelto {

// A storage account as far as the table service needs it.
struct zlStorageAccount {
    std::string accountName;
    std::string accountKey;     // base64, as in the connection string
    std::string tableEndpoint;  // absolute, without a trailing '/'
    zlUrlParts endpoint;        // tableEndpoint split up
};

// The account that UseDevelopmentStorage=true stands for: the local emulator's well-known
// name and key.
extern const char zlDevelopmentStorageConnectionString[];

// Parses "Key=value;Key=value;...": each pair is split at its first '=' (account keys end in
// '='), key names compare without regard to case, empty pairs are skipped. Knows the
// standard keys, TableEndpoint and UseDevelopmentStorage=true; the endpoints of other
// services are accepted and ignored. On failure `out` is unchanged and the reason quotes
// nothing of the text: a key misplaced anywhere in it must not be shown.
zlCloudResult zlParseConnectionString(const std::string& text, zlStorageAccount& out);

// True for standard base64 with padding and a length that is a multiple of four.
bool zlIsBase64(const std::string& text);

}  // namespace Zelto
