#include <windows.h>
#include <rpc.h>

#include "core/dm_format.h"
#include "core/dm_guid.h"

namespace dunmar {

bool dm_new_guid_text(dm_string& out) {
    out.clear();
    UUID uuid = {};
    // A local-only GUID is still unique on this machine, which is all its users need.
    const RPC_STATUS status = UuidCreate(&uuid);
    if (status != RPC_S_OK && status != RPC_S_UUID_LOCAL_ONLY)
        return false;
    dm_guid_fields fields;
    fields.data1 = uuid.Data1;
    fields.data2 = uuid.Data2;
    fields.data3 = uuid.Data3;
    for (int i = 0; i < 8; ++i)
        fields.data4[i] = uuid.Data4[i];
    out = dm_string(dm_format_guid(fields));
    return true;
}

}  // namespace dunmar
