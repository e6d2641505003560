// The HTTP transport where there is none: the export is a Windows feature.
#include "cloud/zlHttpTransport.h"

namespace Zelto {

namespace {

class zlUnavailableTransport : public zlHttpTransport {
  public:
    zlCloudResult send(const zlHttpRequest&, zlHttpResponse& response) override {
        response = zlHttpResponse();
        return zlCloudFailure(zlCloudTransportUnavailable,
                              "the cloud export is not available on this platform");
    }
};

}  // namespace

std::unique_ptr<zlHttpTransport> zlNewPlatformTransport(const zlHttpTimeouts&) {
    return std::unique_ptr<zlHttpTransport>(new zlUnavailableTransport());
}

}  // namespace Zelto
