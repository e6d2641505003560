#pragma once

#include <string>
#include <utility>

namespace Zelto {

// Results of the cloud export and its parts: 1 done, 0 nothing to do, negative a failure
// whose reason says why in English.
enum : int {
    zlCloudOk = 1,
    zlCloudNothingToExport = 0,         // the key file has no settings item
    zlCloudBadConnectionString = -61,   // malformed or incomplete connection string
    zlCloudBadKey = -62,                // last name or e-mail unusable as a table key
    zlCloudEntityTooLarge = -63,        // the key file does not fit into one entity
    zlCloudBadText = -64,               // a value is not well-formed text
    zlCloudSigningFailed = -65,         // the platform's HMAC or base64 failed
    zlCloudNetworkFailed = -66,         // name resolution, connection, TLS, time-out
    zlCloudServiceRefused = -67,        // the service answered with an error status
    zlCloudTransportUnavailable = -68,  // no HTTP transport on this platform
};

struct zlCloudResult {
    int code = zlCloudOk;
    std::string reason;  // UTF-8, empty on success

    bool ok() const { return code == zlCloudOk; }
};

inline zlCloudResult zlCloudSuccess() {
    return zlCloudResult{};
}

inline zlCloudResult zlCloudFailure(int code, std::string reason) {
    zlCloudResult result;
    result.code = code;
    result.reason = std::move(reason);
    return result;
}

}  // namespace Zelto
