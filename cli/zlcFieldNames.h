#pragma once

#include <string>

namespace Zelto {

// The type code of a field named as in the key file (name, label, user, pw, email, url,
// note), or 0 when there is no such field.
int zlcFieldType(const std::string& name);

}  // namespace Zelto
