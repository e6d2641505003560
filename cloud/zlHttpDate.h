#pragma once

#include <cstdint>
#include <string>

namespace Zelto {

// RFC 1123 date in GMT, e.g. "Sun, 11 Oct 2009 19:52:39 GMT", of seconds since 1970.
std::string zlHttpDate(int64_t unixSeconds);

// The current time in that form.
std::string zlHttpDateNow();

// Where the requests' date comes from; replaceable so that tests sign with a fixed one.
using zlDateSource = std::string (*)();

}  // namespace Zelto
