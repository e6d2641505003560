#include "core/dm_utf8_strlist.h"

namespace dunmar {

std::unique_ptr<dm_object> dm_utf8_strlist::clone() const {
    return std::make_unique<dm_utf8_strlist>(*this);
}

const char* dm_utf8_strlist::class_name() const {
    return "dm_utf8_strlist";
}

}  // namespace dunmar
