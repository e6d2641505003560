#include "cli/zlcFieldNames.h"

#include "model/zlFileItemKeyItem.h"

namespace Zelto {

int zlcFieldType(const std::string& name) {
    for (int type = zlTypeKeyName; type <= zlTypeKeyNote; ++type) {
        if (name == zlKeyFieldElement(type))
            return type;
    }
    return 0;
}

}  // namespace Zelto
