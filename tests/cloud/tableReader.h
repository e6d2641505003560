#pragma once

#include <string>

#include <nlohmann/json.hpp>

#include "cloud/zlConnectionString.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlTableRequests.h"

namespace ztest {

// Reads one entity back with a signed GET, as a client other than the export would.
struct ReadBack {
    Zelto::zlCloudResult sent;
    int status = 0;
    nlohmann::json entity;  // discarded unless status is 200

    // "Data", or "Data" + "Data2" + ... when the record holds DataParts parts.
    std::string joinedData() const {
        if (!entity.contains("DataParts"))
            return entity.value("Data", std::string("<none>"));
        std::string joined;
        const int parts = entity["DataParts"].get<int>();
        for (int i = 0; i < parts; ++i)
            joined += entity.value(i == 0 ? std::string("Data") : "Data" + std::to_string(i + 1),
                                   std::string("<missing part>"));
        return joined;
    }
};

inline ReadBack readEntity(Zelto::zlHttpTransport& transport,
                           const Zelto::zlStorageAccount& account, const std::string& partitionKey,
                           const std::string& rowKey) {
    ReadBack out;
    Zelto::zlHttpRequest request;
    out.sent = Zelto::zlBuildTableRequest(account, "GET",
                                          Zelto::zlEntityPath("user", partitionKey, rowKey), "",
                                          Zelto::zlHttpDateNow(), request);
    if (!out.sent.ok())
        return out;
    Zelto::zlHttpResponse response;
    out.sent = transport.send(request, response);
    out.status = response.status;
    out.entity = nlohmann::json::parse(response.body, nullptr, false);
    return out;
}

}  // namespace ztest
