#include "cloud/zlHttpTransport.h"

namespace Zelto {

namespace {

bool sameName(const std::string& a, const std::string& b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (size_t i = 0; i < a.size(); ++i) {
        char x = a[i];
        char y = b[i];
        if (x >= 'A' && x <= 'Z') {
            x = static_cast<char>(x - 'A' + 'a');
        }
        if (y >= 'A' && y <= 'Z') {
            y = static_cast<char>(y - 'A' + 'a');
        }
        if (x != y) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::string zlHttpRequest::header(const std::string& name) const {
    for (const auto& field : headers) {
        if (sameName(field.first, name)) {
            return field.second;
        }
    }
    return std::string();
}

}  // namespace Zelto
