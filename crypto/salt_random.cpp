#include "crypto/salt_random.h"

namespace Zelto {

zlSaltRandom& process_salt_random() {
    static zlSaltRandom generator;
    return generator;
}

}  // namespace Zelto
