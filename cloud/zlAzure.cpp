#include "cloud/zlAzure.h"

#include "cloud/zlTableError.h"
#include "cloud/zlTableRequests.h"

namespace Zelto {

const char zlAzure::tableName[] = "user";

namespace {

zlCloudResult notOpen() {
    return zlCloudFailure(zlCloudBadConnectionString, "no storage account is open");
}

bool succeeded(int status) {
    return status >= 200 && status < 300;
}

}  // namespace

zlAzure::zlAzure(zlHttpTransport& transport, zlDateSource date)
    : transport_(transport), date_(date != nullptr ? date : zlHttpDateNow) {}

zlCloudResult zlAzure::open(const std::string& connectionString) {
    open_ = false;
    zlCloudResult result = zlParseConnectionString(connectionString, account_);
    open_ = result.ok();
    return result;
}

zlCloudResult zlAzure::send(const zlHttpRequest& request, zlHttpResponse& response) {
    response = zlHttpResponse();
    return transport_.send(request, response);
}

zlCloudResult zlAzure::createTableIfNotExists() {
    if (!open_) {
        return notOpen();
    }
    zlHttpRequest request;
    zlCloudResult result = zlBuildCreateTableRequest(account_, tableName, date_(), request);
    zlHttpResponse response;
    if (result.ok()) {
        result = send(request, response);
    }
    if (!result.ok()) {
        return result;
    }
    if (succeeded(response.status)) {
        return zlCloudSuccess();
    }
    if (response.status == 409 && zlServiceErrorCode(response.body) == "TableAlreadyExists") {
        return zlCloudSuccess();
    }
    return zlServiceFailure("creating the table", response);
}

zlCloudResult zlAzure::connect(const std::string& connectionString) {
    zlCloudResult result = open(connectionString);
    return result.ok() ? createTableIfNotExists() : result;
}

zlCloudResult zlAzure::write(const zlAzureTableEntity& entity) {
    if (!open_) {
        return notOpen();
    }
    std::string body;
    zlCloudResult result = entity.body(body);
    if (!result.ok()) {
        return result;
    }
    const std::string partitionKey = entity.lastName.to_utf8().str();
    const std::string rowKey = entity.email.to_utf8().str();
    zlHttpRequest request;
    result = zlBuildInsertOrReplaceRequest(account_, tableName, partitionKey, rowKey, body, date_(),
                                           request);
    zlHttpResponse response;
    if (result.ok()) {
        result = send(request, response);
    }
    if (!result.ok()) {
        return result;
    }
    return succeeded(response.status) ? zlCloudSuccess()
                                      : zlServiceFailure("writing the record", response);
}

}  // namespace Zelto
