#pragma once

#include <cstdlib>
#include <string>

#include "cloud/zlCloudConfig.h"
#include "cloud/zlConnectionString.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlTableRequests.h"
#include "cloudTestSupport.h"
#include "core/dm_guid.h"

namespace ztest {

// A fresh text for table keys, so that records of earlier runs do no harm.
inline std::string uniqueText() {
    dunmar::dm_string guid;
    dunmar::dm_new_guid_text(guid);
    return utf8(guid);
}

// The emulator that scripts/test.sh starts and names in the environment; empty when none.
// Under CI a missing one is an error; elsewhere tests that need it skip.
inline std::string tableServiceConnectionString() {
    const char* value = std::getenv(Zelto::zlCloudConnectionStringVariable);
    return value ? value : "";
}
inline bool underCi() {
    const char* ci = std::getenv("CI");
    return ci != nullptr && std::string(ci) == "true";
}

// One record read back with a signed GET, as a client other than the export would.
struct ReadBack {
    Zelto::zlCloudResult sent;
    int status = 0;
    nlohmann::json entity;  // discarded unless status is 200
    std::string joinedData() const { return ztest::joinedData(entity); }
};

inline ReadBack readEntity(Zelto::zlHttpTransport& transport,
                           const Zelto::zlStorageAccount& account, const std::string& partitionKey,
                           const std::string& rowKey) {
    ReadBack out;
    Zelto::zlHttpRequest request;
    Zelto::zlHttpResponse response;
    out.sent = Zelto::zlBuildTableRequest(account, "GET",
                                          Zelto::zlEntityPath("user", partitionKey, rowKey), "",
                                          Zelto::zlHttpDateNow(), request);
    if (out.sent.ok())
        out.sent = transport.send(request, response);
    out.status = response.status;
    out.entity = nlohmann::json::parse(response.body, nullptr, false);
    return out;
}

}  // namespace ztest
