#include "cloud/zlConnectionString.h"

#include <cstddef>
#include <map>

namespace Zelto {

const char zlDevelopmentStorageConnectionString[] =
    "DefaultEndpointsProtocol=http;AccountName=devstoreaccount1;"
    "AccountKey=Eby8vdM02xNOcqFlqUwJPLlmEtlCDXJ1OUzFT50uSRZ6IFsuFq2UVErCz4I6tq/"
    "K1SZFPTOtr/KBHBeksoGMGw==;"
    "TableEndpoint=http://127.0.0.1:10002/devstoreaccount1";

namespace {

const char* const kKnownKeys[] = {
    "DefaultEndpointsProtocol",
    "AccountName",
    "AccountKey",
    "EndpointSuffix",
    "TableEndpoint",
    "UseDevelopmentStorage",
    // Other services of the same account: allowed in the text, not used here.
    "BlobEndpoint",
    "QueueEndpoint",
    "FileEndpoint",
};

std::string lower(const std::string& text) {
    std::string out = text;
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return out;
}

// The canonical spelling of a known key, or null.
const char* knownKey(const std::string& key) {
    const std::string wanted = lower(key);
    for (const char* known : kKnownKeys) {
        if (lower(known) == wanted) {
            return known;
        }
    }
    return nullptr;
}

std::string trimmed(const std::string& text) {
    const char* space = " \t\r\n";
    const size_t first = text.find_first_not_of(space);
    if (first == std::string::npos) {
        return std::string();
    }
    const size_t last = text.find_last_not_of(space);
    return text.substr(first, last - first + 1);
}

zlCloudResult malformed(const std::string& why) {
    return zlCloudFailure(zlCloudBadConnectionString, "malformed connection string: " + why);
}

using Settings = std::map<std::string, std::string>;

zlCloudResult splitPairs(const std::string& text, Settings& settings) {
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find(';', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        const std::string pair = trimmed(text.substr(start, end - start));
        start = end + 1;
        if (pair.empty()) {
            continue;
        }
        const size_t equals = pair.find('=');
        if (equals == std::string::npos || equals == 0) {
            // The pair may be an account key that lost its name: do not quote it.
            return malformed("a part is not of the form Key=value");
        }
        const std::string key = trimmed(pair.substr(0, equals));
        const char* known = knownKey(key);
        if (known == nullptr) {
            if (lower(key) == "sharedaccesssignature") {
                return malformed("shared access signatures are not supported");
            }
            // Not quoted: a key that lost its name stands here.
            return malformed("a part has an unknown name");
        }
        if (settings.count(known) != 0) {
            return malformed(std::string("key '") + known + "' given twice");
        }
        settings[known] = trimmed(pair.substr(equals + 1));
    }
    return zlCloudSuccess();
}

bool isAccountName(const std::string& name) {
    if (name.empty() || name.size() > 63) {
        return false;
    }
    for (char c : name) {
        const bool letterOrDigit =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (!letterOrDigit) {
            return false;
        }
    }
    return true;
}

// Letters, digits, '-' and '.': no base64 key, which has '+', '/' or '=', passes as one.
bool isHostName(const std::string& text) {
    if (text.empty()) {
        return false;
    }
    for (char c : text) {
        const bool allowed = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                             (c >= '0' && c <= '9') || c == '-' || c == '.';
        if (!allowed) {
            return false;
        }
    }
    return true;
}

zlCloudResult accountFrom(const Settings& settings, zlStorageAccount& account) {
    auto value = [&settings](const char* key, const char* fallback) {
        const auto it = settings.find(key);
        return it == settings.end() ? std::string(fallback) : it->second;
    };
    const std::string protocol = lower(value("DefaultEndpointsProtocol", "https"));
    if (protocol != "https" && protocol != "http") {
        return malformed("DefaultEndpointsProtocol must be http or https");
    }
    account.accountName = value("AccountName", "");
    if (account.accountName.empty()) {
        return malformed("AccountName is missing");
    }
    if (!isAccountName(account.accountName)) {
        return malformed("AccountName is not a storage account name");
    }
    account.accountKey = value("AccountKey", "");
    if (account.accountKey.empty()) {
        return malformed("AccountKey is missing");
    }
    if (!zlIsBase64(account.accountKey)) {
        return malformed("AccountKey is not base64");
    }
    if (settings.count("TableEndpoint") != 0) {
        account.tableEndpoint = value("TableEndpoint", "");
    } else {
        const std::string suffix = value("EndpointSuffix", "core.windows.net");
        if (!isHostName(suffix)) {
            return malformed("EndpointSuffix is not a host name");
        }
        account.tableEndpoint = protocol + "://" + account.accountName + ".table." + suffix;
    }
    if (!zlSplitUrl(account.tableEndpoint, account.endpoint)) {
        return malformed("the table endpoint is not an http or https address");
    }
    while (!account.tableEndpoint.empty() && account.tableEndpoint.back() == '/') {
        account.tableEndpoint.pop_back();
    }
    return zlCloudSuccess();
}

}  // namespace

bool zlIsBase64(const std::string& text) {
    if (text.empty() || text.size() % 4 != 0) {
        return false;
    }
    size_t padding = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '=') {
            ++padding;
            continue;
        }
        const bool alphabet = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                              (c >= '0' && c <= '9') || c == '+' || c == '/';
        if (!alphabet || padding != 0) {
            return false;
        }
    }
    return padding <= 2;
}

zlCloudResult zlParseConnectionString(const std::string& text, zlStorageAccount& out) {
    Settings settings;
    zlCloudResult result = splitPairs(text, settings);
    if (!result.ok()) {
        return result;
    }
    if (settings.empty()) {
        return malformed("it is empty");
    }
    const auto development = settings.find("UseDevelopmentStorage");
    if (development != settings.end()) {
        if (lower(development->second) != "true") {
            return malformed("UseDevelopmentStorage may only be true");
        }
        if (settings.size() != 1) {
            return malformed("UseDevelopmentStorage=true stands alone");
        }
        settings.clear();
        result = splitPairs(zlDevelopmentStorageConnectionString, settings);
        if (!result.ok()) {
            return result;
        }
    }
    zlStorageAccount account;
    result = accountFrom(settings, account);
    if (result.ok()) {
        out = account;
    }
    return result;
}

}  // namespace Zelto
