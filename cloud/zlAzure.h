#pragma once

#include <string>

#include "cloud/zlAzureTableEntity.h"
#include "cloud/zlCloudResult.h"
#include "cloud/zlConnectionString.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlHttpTransport.h"

namespace Zelto {

// The connection to the table "user" of one storage account. Every call waits for its
// answer on the calling thread; the transport bounds the wait.
class zlAzure {
  public:
    static const char tableName[];  // "user"

    explicit zlAzure(zlHttpTransport& transport, zlDateSource date = zlHttpDateNow);

    // Parses the connection string and takes the table "user" of its account. Sends nothing.
    zlCloudResult open(const std::string& connectionString);

    // Creates the table when it does not exist; an existing table is a success.
    zlCloudResult createTableIfNotExists();

    // open, then createTableIfNotExists.
    zlCloudResult connect(const std::string& connectionString);

    // Writes the entity with one insert-or-replace: a record with the same last name and
    // e-mail is replaced whole. Nothing is sent for an entity that check() refuses.
    zlCloudResult write(const zlAzureTableEntity& entity);

    bool isOpen() const { return open_; }
    const zlStorageAccount& account() const { return account_; }

  private:
    zlCloudResult send(const zlHttpRequest& request, zlHttpResponse& response);

    zlHttpTransport& transport_;
    zlDateSource date_;
    zlStorageAccount account_;
    bool open_ = false;
};

}  // namespace Zelto
