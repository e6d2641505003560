#pragma once

#include <string>

#include "cloud/zlCloudResult.h"
#include "cloud/zlHttpTransport.h"

namespace Zelto {

// The error code of a refusal ("TableAlreadyExists"), from the JSON or XML error body that
// the service sends; empty when the body has none.
std::string zlServiceErrorCode(const std::string& body);

// zlCloudServiceRefused with a reason naming what was being done, the status, the error code
// and, for the usual statuses, what it most likely means.
zlCloudResult zlServiceFailure(const std::string& doing, const zlHttpResponse& response);

}  // namespace Zelto
