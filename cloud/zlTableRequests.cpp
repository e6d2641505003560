#include "cloud/zlTableRequests.h"

#include <nlohmann/json.hpp>

#include "cloud/zlSharedKey.h"
#include "cloud/zlUrl.h"

namespace Zelto {

namespace {

const char kContentType[] = "application/json";

std::string doubledApostrophes(const std::string& key) {
    std::string out;
    out.reserve(key.size());
    for (char c : key) {
        out.push_back(c);
        if (c == '\'') {
            out.push_back('\'');
        }
    }
    return out;
}

}  // namespace

zlCloudResult zlBuildTableRequest(const zlStorageAccount& account, const std::string& verb,
                                  const std::string& resourcePath, const std::string& body,
                                  const std::string& date, zlHttpRequest& out) {
    zlHttpRequest request;
    request.verb = verb;
    request.server = account.endpoint;
    request.pathAndQuery = account.endpoint.path + resourcePath;
    request.body = body;
    request.headers = {
        {"x-ms-date", date},
        {"x-ms-version", "2019-02-02"},
        {"DataServiceVersion", "3.0;NetFx"},
        {"MaxDataServiceVersion", "3.0;NetFx"},
        {"Content-Type", kContentType},
        // Without it the emulator answers 415; with it answers carry no metadata.
        {"Accept", "application/json;odata=nometadata"},
        {"Content-Length", std::to_string(body.size())},
    };
    const std::string toSign =
        zlStringToSign(verb, kContentType, date,
                       zlCanonicalizedResource(account.accountName, request.pathAndQuery));
    std::string authorization;
    zlCloudResult result =
        zlSharedKeyAuthorization(account.accountName, account.accountKey, toSign, authorization);
    if (!result.ok()) {
        return result;
    }
    request.headers.emplace_back("Authorization", authorization);
    out = std::move(request);
    return result;
}

zlCloudResult zlBuildCreateTableRequest(const zlStorageAccount& account, const std::string& table,
                                        const std::string& date, zlHttpRequest& out) {
    nlohmann::ordered_json body;
    body["TableName"] = table;
    zlCloudResult result = zlBuildTableRequest(
        account, "POST", "/Tables",
        body.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace), date, out);
    if (result.ok()) {
        out.headers.emplace_back("Prefer", "return-no-content");
    }
    return result;
}

std::string zlEntityPath(const std::string& table, const std::string& partitionKey,
                         const std::string& rowKey) {
    return "/" + zlPercentEncode(table) + "(PartitionKey='" +
           zlPercentEncode(doubledApostrophes(partitionKey)) + "',RowKey='" +
           zlPercentEncode(doubledApostrophes(rowKey)) + "')";
}

zlCloudResult zlBuildInsertOrReplaceRequest(const zlStorageAccount& account,
                                            const std::string& table,
                                            const std::string& partitionKey,
                                            const std::string& rowKey, const std::string& body,
                                            const std::string& date, zlHttpRequest& out) {
    return zlBuildTableRequest(account, "PUT", zlEntityPath(table, partitionKey, rowKey), body,
                               date, out);
}

}  // namespace Zelto
