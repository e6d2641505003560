#include "core/dm_stringlist.h"

namespace dunmar {

std::unique_ptr<dm_object> dm_stringlist::clone() const {
    return std::make_unique<dm_stringlist>(*this);
}

const char* dm_stringlist::class_name() const {
    return "dm_stringlist";
}

}  // namespace dunmar
