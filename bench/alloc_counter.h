#pragma once

#include <cstddef>

namespace zelto_bench {

// Heap bytes handed out through operator new and not yet returned, and the highest such
// figure since the last reset. Counted by the replacement operators of alloc_counter.cpp.
size_t heap_in_use();
size_t heap_peak();
void reset_heap_peak();

}  // namespace zelto_bench
