#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cloud/zlCloudResult.h"
#include "cloud/zlUrl.h"

namespace Zelto {

// One HTTP request, signed and ready: the transport sends the path and the headers exactly
// as they are.
struct zlHttpRequest {
    std::string verb;
    zlUrlParts server;         // scheme, host and port; its path is not used
    std::string pathAndQuery;  // percent-encoded, as signed
    std::vector<std::pair<std::string, std::string>> headers;
    std::string body;

    // The value of the first header of that name (compared without regard to case), or "".
    std::string header(const std::string& name) const;
};

struct zlHttpResponse {
    int status = 0;
    std::string body;
};

// Sends one request and waits, within bounded times, for the whole answer. A status that the
// server sent is a success of the transport, whatever it says; failures to get one
// (name resolution, connection, TLS, time-out) are zlCloudNetworkFailed with the reason.
class zlHttpTransport {
  public:
    virtual ~zlHttpTransport() = default;
    virtual zlCloudResult send(const zlHttpRequest& request, zlHttpResponse& response) = 0;
};

// Longest waits of one request, in milliseconds.
struct zlHttpTimeouts {
    int resolve = 15000;
    int connect = 15000;
    int send = 60000;
    int receive = 60000;
};

// WinHTTP on Windows; elsewhere a transport that answers every request with
// zlCloudTransportUnavailable.
std::unique_ptr<zlHttpTransport> zlNewPlatformTransport(const zlHttpTimeouts& timeouts = {});

}  // namespace Zelto
