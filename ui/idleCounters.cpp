#include "ui/idleCounters.h"

namespace dunmar {

idleCounters& idleTime() {
    static idleCounters counters;
    return counters;
}

}  // namespace dunmar
