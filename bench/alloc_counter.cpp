// Replacement allocation operators that keep count of live heap bytes, so that a benchmark
// can report the peak memory of one operation. A size header in front of every block lets
// the sized and unsized deletes both find the size.
#include "alloc_counter.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<size_t> g_in_use{0};
std::atomic<size_t> g_peak{0};
constexpr size_t kHeader = alignof(std::max_align_t);

void* allocate(size_t size) {
    void* raw = std::malloc(size + kHeader);
    if (!raw)
        throw std::bad_alloc();
    *static_cast<size_t*>(raw) = size;
    const size_t now = g_in_use.fetch_add(size) + size;
    size_t peak = g_peak.load();
    while (now > peak && !g_peak.compare_exchange_weak(peak, now)) {
    }
    return static_cast<char*>(raw) + kHeader;
}

void release(void* p) {
    if (!p)
        return;
    void* raw = static_cast<char*>(p) - kHeader;
    g_in_use.fetch_sub(*static_cast<size_t*>(raw));
    std::free(raw);
}

}  // namespace

void* operator new(size_t size) {
    return allocate(size);
}
void* operator new[](size_t size) {
    return allocate(size);
}
void operator delete(void* p) noexcept {
    release(p);
}
void operator delete[](void* p) noexcept {
    release(p);
}
void operator delete(void* p, size_t) noexcept {
    release(p);
}
void operator delete[](void* p, size_t) noexcept {
    release(p);
}

namespace zelto_bench {

size_t heap_in_use() {
    return g_in_use.load();
}
size_t heap_peak() {
    return g_peak.load();
}
void reset_heap_peak() {
    g_peak.store(g_in_use.load());
}

}  // namespace zelto_bench
