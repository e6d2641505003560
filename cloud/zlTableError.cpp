#include "cloud/zlTableError.h"

#include <nlohmann/json.hpp>

namespace Zelto {

namespace {

std::string textBetween(const std::string& body, const char* open, const char* close) {
    const size_t start = body.find(open);
    if (start == std::string::npos) {
        return std::string();
    }
    const size_t from = start + std::char_traits<char>::length(open);
    const size_t end = body.find(close, from);
    return end == std::string::npos ? std::string() : body.substr(from, end - from);
}

std::string hint(int status) {
    switch (status) {
        case 400:
            return "the service did not accept the record";
        case 403:
            return "the account key was refused";
        case 404:
            return "the account or the table was not found";
        case 409:
            return "the table is in a conflicting state";
        case 413:
            return "the record is too large";
        default:
            return status >= 500 ? "the service has a problem" : std::string();
    }
}

}  // namespace

std::string zlServiceErrorCode(const std::string& body) {
    const nlohmann::json parsed = nlohmann::json::parse(body, nullptr, false);
    if (!parsed.is_discarded() && parsed.is_object()) {
        const auto error = parsed.find("odata.error");
        if (error != parsed.end() && error->is_object()) {
            const auto code = error->find("code");
            if (code != error->end() && code->is_string()) {
                return code->get<std::string>();
            }
        }
        return std::string();
    }
    std::string code = textBetween(body, "<code>", "</code>");
    if (code.empty()) {
        code = textBetween(body, "<Code>", "</Code>");
    }
    return code;
}

zlCloudResult zlServiceFailure(const std::string& doing, const zlHttpResponse& response) {
    std::string reason = doing + ": the table service answered " + std::to_string(response.status);
    const std::string code = zlServiceErrorCode(response.body);
    if (!code.empty()) {
        reason += " " + code;
    }
    const std::string meaning = hint(response.status);
    if (!meaning.empty()) {
        reason += " (" + meaning + ")";
    }
    return zlCloudFailure(zlCloudServiceRefused, reason);
}

}  // namespace Zelto
