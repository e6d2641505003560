#include "cloud/zlUrl.h"

namespace Zelto {

namespace {

bool startsWith(const std::string& text, const char* prefix, size_t& length) {
    length = std::char_traits<char>::length(prefix);
    return text.compare(0, length, prefix) == 0;
}

bool parsePort(const std::string& digits, unsigned& port) {
    if (digits.empty() || digits.size() > 5) {
        return false;
    }
    unsigned value = 0;
    for (char c : digits) {
        if (c < '0' || c > '9') {
            return false;
        }
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    if (value == 0 || value > 65535) {
        return false;
    }
    port = value;
    return true;
}

bool isUnreserved(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

}  // namespace

bool zlSplitUrl(const std::string& url, zlUrlParts& out) {
    zlUrlParts parts;
    size_t rest = 0;
    if (startsWith(url, "https://", rest)) {
        parts.https = true;
        parts.port = 443;
    } else if (startsWith(url, "http://", rest)) {
        parts.https = false;
        parts.port = 80;
    } else {
        return false;
    }
    if (url.find_first_of("?#", rest) != std::string::npos) {
        return false;
    }
    const size_t slash = url.find('/', rest);
    const std::string authority =
        url.substr(rest, slash == std::string::npos ? std::string::npos : slash - rest);
    std::string portText;
    bool hasPort = false;
    if (!authority.empty() && authority[0] == '[') {
        const size_t close = authority.find(']');
        if (close == std::string::npos) {
            return false;
        }
        parts.host = authority.substr(1, close - 1);
        if (close + 1 < authority.size()) {
            if (authority[close + 1] != ':') {
                return false;
            }
            hasPort = true;
            portText = authority.substr(close + 2);
        }
    } else {
        const size_t colon = authority.find(':');
        parts.host = authority.substr(0, colon);
        if (colon != std::string::npos) {
            hasPort = true;
            portText = authority.substr(colon + 1);
        }
    }
    if (parts.host.empty() || parts.host.find_first_of("@ \t") != std::string::npos) {
        return false;
    }
    if (hasPort && !parsePort(portText, parts.port)) {
        return false;
    }
    if (slash != std::string::npos) {
        parts.path = url.substr(slash);
        while (!parts.path.empty() && parts.path.back() == '/') {
            parts.path.pop_back();
        }
    }
    out = parts;
    return true;
}

std::string zlPercentEncode(const std::string& utf8) {
    static const char hex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(utf8.size());
    for (char ch : utf8) {
        const auto c = static_cast<unsigned char>(ch);
        if (isUnreserved(c) || c == '\'') {
            out.push_back(ch);
        } else {
            out.push_back('%');
            out.push_back(hex[c >> 4]);
            out.push_back(hex[c & 0x0F]);
        }
    }
    return out;
}

}  // namespace Zelto
