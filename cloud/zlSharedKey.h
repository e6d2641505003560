#pragma once

#include <string>

#include "cloud/zlCloudResult.h"

namespace Zelto {

// Shared Key authorisation of the table service.

// "/" + account + the path exactly as sent, plus "?comp=..." when the query has a comp
// parameter; other query parameters take no part.
std::string zlCanonicalizedResource(const std::string& accountName,
                                    const std::string& pathAndQuery);

// VERB, Content-MD5 (empty), Content-Type, the x-ms-date value and the canonicalized
// resource, one a line.
std::string zlStringToSign(const std::string& verb, const std::string& contentType,
                           const std::string& date, const std::string& canonicalizedResource);

// "SharedKey account:base64(HMAC-SHA256(base64-decoded key, stringToSign))".
zlCloudResult zlSharedKeyAuthorization(const std::string& accountName,
                                       const std::string& accountKey,
                                       const std::string& stringToSign, std::string& header);

}  // namespace Zelto
