#pragma once

#include <memory>

#include "core/dm_basic_list.h"
#include "core/dm_string.h"

namespace dunmar {

// Ordered list of wide texts.
class dm_stringlist : public dm_basic_list<dm_string> {
  public:
    std::unique_ptr<dm_object> clone() const override;
    const char* class_name() const override;
};

}  // namespace dunmar
