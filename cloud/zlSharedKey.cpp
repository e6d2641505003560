#include "cloud/zlSharedKey.h"

#include "cloud/zlCloudCrypto.h"

namespace Zelto {

std::string zlCanonicalizedResource(const std::string& accountName,
                                    const std::string& pathAndQuery) {
    const size_t question = pathAndQuery.find('?');
    std::string resource = "/" + accountName + pathAndQuery.substr(0, question);
    if (question == std::string::npos) {
        return resource;
    }
    const std::string query = pathAndQuery.substr(question + 1);
    size_t start = 0;
    while (start <= query.size()) {
        size_t end = query.find('&', start);
        if (end == std::string::npos) {
            end = query.size();
        }
        const std::string pair = query.substr(start, end - start);
        if (pair.compare(0, 5, "comp=") == 0) {
            resource += "?" + pair;
            break;
        }
        start = end + 1;
    }
    return resource;
}

std::string zlStringToSign(const std::string& verb, const std::string& contentType,
                           const std::string& date, const std::string& canonicalizedResource) {
    return verb + "\n\n" + contentType + "\n" + date + "\n" + canonicalizedResource;
}

zlCloudResult zlSharedKeyAuthorization(const std::string& accountName,
                                       const std::string& accountKey,
                                       const std::string& stringToSign, std::string& header) {
    std::string key;
    if (!zlBase64Decode(accountKey, key)) {
        return zlCloudFailure(zlCloudSigningFailed, "the account key is not base64");
    }
    std::string mac;
    std::string signature;
    const bool signed_ = zlHmacSha256(key, stringToSign, mac) && zlBase64Encode(mac, signature);
    key.assign(key.size(), '\0');
    if (!signed_) {
        return zlCloudFailure(zlCloudSigningFailed, "the request could not be signed");
    }
    header = "SharedKey " + accountName + ":" + signature;
    return zlCloudSuccess();
}

}  // namespace Zelto
