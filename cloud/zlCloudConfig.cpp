#include "cloud/zlCloudConfig.h"

#include <cstdlib>

namespace Zelto {

const char zlCloudConnectionStringVariable[] = "ZELTO_CLOUD_CONNECTION_STRING";

namespace {

const char kBuiltIn[] =
    "DefaultEndpointsProtocol=https;AccountName=zeltokeys;"
    "AccountKey=j4ULl6vDqpzG4aXIfZuB8wEmujz9FTeKic5S8h/TKr8OfF3HJpkduKoHVmxr+xZKHDsxwyIMzaqxsuv3/"
    "IFwkQ==;"
    "EndpointSuffix=core.windows.net";

}  // namespace

std::string zlCloudConnectionString() {
    const char* value = std::getenv(zlCloudConnectionStringVariable);
    if (value != nullptr && value[0] != '\0') {
        return value;
    }
    return kBuiltIn;
}

}  // namespace Zelto
