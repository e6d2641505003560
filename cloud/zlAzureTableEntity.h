#pragma once

#include <string>
#include <vector>

#include "cloud/zlCloudResult.h"
#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "model/zlFileItemSettings.h"

namespace Zelto {

// The record that the export writes: partition key the last name, row key the e-mail, then
// "FirstName", "Verify" and "Data". A key file text longer than one string property takes
// is cut into "Data", "Data2", ... with "DataParts" giving their number; a text that fits is
// sent as "Data" alone.
class zlAzureTableEntity {
  public:
    static constexpr size_t maxPropertyUnits = 32768;  // UTF-16 units of one string property
    static constexpr size_t maxEntityBytes = 1048576;
    static constexpr size_t maxProperties = 255;  // the three system properties included

    dunmar::dm_string firstName;
    dunmar::dm_string lastName;
    dunmar::dm_string email;
    dunmar::dm_string data;    // the complete key file text
    dunmar::dm_string verify;  // the verify value as stored

    // Takes the user fields deciphered, the verify value as stored and the file's text.
    // zlCloudBadText, with the entity unchanged, when one of them is not well-formed UTF-8.
    zlCloudResult fill(const zlFileItemSettings& settings, const dunmar::dm_utf8_str& fileText);

    // Everything that the service would refuse, found before anything is sent: the keys,
    // text that is not well-formed, an entity over 1 MiB or 255 properties.
    zlCloudResult check() const;

    // The data cut into parts of at most maxPropertyUnits, never inside a surrogate pair;
    // one part (perhaps empty) for a text that fits.
    std::vector<dunmar::dm_wstring> dataParts() const;

    // The size the service counts for this entity, in bytes.
    size_t entityBytes() const;

    // check(), then the JSON body of the write. The key values go into the address too.
    zlCloudResult body(std::string& json) const;

    static std::string dataPropertyName(size_t index);  // "Data", "Data2", ...
};

}  // namespace Zelto
