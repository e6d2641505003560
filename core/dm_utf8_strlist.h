#pragma once

#include <memory>

#include "core/dm_basic_list.h"
#include "core/dm_utf8_str.h"

namespace dunmar {

// Ordered list of byte texts.
class dm_utf8_strlist : public dm_basic_list<dm_utf8_str> {
  public:
    std::unique_ptr<dm_object> clone() const override;
    const char* class_name() const override;
};

}  // namespace dunmar
