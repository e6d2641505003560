#pragma once

namespace Zelto {

// The program's instance handle (an HINSTANCE on Windows), kept as an opaque pointer so that
// portable code can hand it on. Set first thing at start-up; null until then.
void zlSetInstance(void* instance);
void* zlInstance();

}  // namespace Zelto
