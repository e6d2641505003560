// The parser's number conversion refers to this list, which the rest of its engine normally
// defines; building the parser alone needs it once.
#include "irrString.h"

namespace irr {
namespace core {
irr::core::stringc LOCALE_DECIMAL_POINTS(".");
}  // namespace core
}  // namespace irr
