#include "app/zlInstance.h"

namespace Zelto {

namespace {

void* g_instance = nullptr;

}  // namespace

void zlSetInstance(void* instance) {
    g_instance = instance;
}

void* zlInstance() {
    return g_instance;
}

}  // namespace Zelto
