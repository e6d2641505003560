#pragma once

#include <string>

namespace Zelto {

// An absolute http or https address split into what a connection needs.
struct zlUrlParts {
    bool https = true;
    std::string host;  // without brackets for an IPv6 literal
    unsigned port = 0;
    std::string path;  // "" or beginning with '/', never ending with '/'
};

// Splits "scheme://host[:port][/path]". False for another scheme, an empty host, a bad
// port, or a query or fragment.
bool zlSplitUrl(const std::string& url, zlUrlParts& out);

// Percent-encodes every byte but the unreserved characters and the apostrophe, which the
// key syntax needs as it is.
std::string zlPercentEncode(const std::string& utf8);

}  // namespace Zelto
