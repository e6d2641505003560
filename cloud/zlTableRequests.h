#pragma once

#include <string>

#include "cloud/zlCloudResult.h"
#include "cloud/zlConnectionString.h"
#include "cloud/zlHttpTransport.h"

namespace Zelto {

// Requests of the table service's REST interface, with every header it needs and signed with
// Shared Key. `date` is the x-ms-date value (see zlHttpDate).

// Any request: resourcePath ("/Tables", "/user(...)") is appended to the endpoint's path and
// must already be percent-encoded.
zlCloudResult zlBuildTableRequest(const zlStorageAccount& account, const std::string& verb,
                                  const std::string& resourcePath, const std::string& body,
                                  const std::string& date, zlHttpRequest& out);

// POST /Tables {"TableName": table}, answered without content.
zlCloudResult zlBuildCreateTableRequest(const zlStorageAccount& account, const std::string& table,
                                        const std::string& date, zlHttpRequest& out);

// "/table(PartitionKey='..',RowKey='..')": apostrophes doubled, then percent-encoded. The
// keys are UTF-8.
std::string zlEntityPath(const std::string& table, const std::string& partitionKey,
                         const std::string& rowKey);

// PUT of the entity at its keys without If-Match: creates it or replaces it whole.
zlCloudResult zlBuildInsertOrReplaceRequest(const zlStorageAccount& account,
                                            const std::string& table,
                                            const std::string& partitionKey,
                                            const std::string& rowKey, const std::string& body,
                                            const std::string& date, zlHttpRequest& out);

}  // namespace Zelto
