// The HTTP transport on WinHTTP (Windows builds): one session per request, bounded waits,
// and the path sent exactly as it was signed.
#include "cloud/zlHttpTransport.h"

#include <string>

#include <windows.h>
#include <winhttp.h>

#include "core/dm_convert.h"

namespace Zelto {

namespace {

// An answer of the table service is small; a longer one is cut here.
constexpr size_t kMaxResponseBytes = 16u << 20;

class Handle {
  public:
    explicit Handle(HINTERNET handle = nullptr) : handle_(handle) {}
    ~Handle() {
        if (handle_ != nullptr) {
            WinHttpCloseHandle(handle_);
        }
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    HINTERNET get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }

  private:
    HINTERNET handle_;
};

// Socket errors that some WinHTTP versions hand on as they are.
constexpr DWORD kSocketTimedOut = 10060;  // WSAETIMEDOUT
constexpr DWORD kSocketRefused = 10061;   // WSAECONNREFUSED

std::wstring wide(const std::string& text) {
    const dunmar::dm_wstring converted = dunmar::utf8_to_utf16(text.data(), text.size());
    return std::wstring(converted.begin(), converted.end());
}

// The reasons name no server: its name is built from the connection string, whose parts
// are not shown, and a key pasted into the wrong place would show with it.
zlCloudResult networkFailure(const char* step) {
    const DWORD error = GetLastError();
    std::string reason;
    switch (error) {
        case ERROR_WINHTTP_NAME_NOT_RESOLVED:
            reason = "the table service's server name could not be resolved";
            break;
        case ERROR_WINHTTP_CANNOT_CONNECT:
        case kSocketRefused:
            reason = "no connection to the table service (refused or unreachable)";
            break;
        case ERROR_WINHTTP_TIMEOUT:
        case kSocketTimedOut:
            reason = "no answer from the table service in time";
            break;
        case ERROR_WINHTTP_CONNECTION_ERROR:
            reason = "the connection to the table service was broken off";
            break;
        case ERROR_WINHTTP_SECURE_FAILURE:
        case ERROR_WINHTTP_SECURE_CERT_CN_INVALID:
        case ERROR_WINHTTP_SECURE_CERT_DATE_INVALID:
        case ERROR_WINHTTP_SECURE_CERT_REV_FAILED:
        case ERROR_WINHTTP_SECURE_CERT_REVOKED:
        case ERROR_WINHTTP_SECURE_INVALID_CA:
        case ERROR_WINHTTP_SECURE_INVALID_CERT:
        case ERROR_WINHTTP_SECURE_CHANNEL_ERROR:
            reason =
                "the secure (TLS 1.2 or later) connection to the table service failed (error " +
                std::to_string(error) + ")";
            break;
        case ERROR_WINHTTP_INVALID_SERVER_RESPONSE:
            reason = "the answer of the table service was not HTTP";
            break;
        default:
            reason = std::string("the network request failed while ") + step + " (error " +
                     std::to_string(error) + ")";
            break;
    }
    return zlCloudFailure(zlCloudNetworkFailed, reason);
}

// TLS 1.2 or later only. A WinHTTP that does not know the 1.3 flag refuses the pair; it
// then gets 1.2 alone.
bool requireModernTls(HINTERNET session) {
    DWORD protocols = WINHTTP_FLAG_SECURE_PROTOCOL_TLS1_2 | WINHTTP_FLAG_SECURE_PROTOCOL_TLS1_3;
    if (WinHttpSetOption(session, WINHTTP_OPTION_SECURE_PROTOCOLS, &protocols, sizeof protocols)) {
        return true;
    }
    protocols = WINHTTP_FLAG_SECURE_PROTOCOL_TLS1_2;
    return WinHttpSetOption(session, WINHTTP_OPTION_SECURE_PROTOCOLS, &protocols,
                            sizeof protocols) != FALSE;
}

class zlWinHttpTransport : public zlHttpTransport {
  public:
    explicit zlWinHttpTransport(const zlHttpTimeouts& timeouts) : timeouts_(timeouts) {}

    zlCloudResult send(const zlHttpRequest& request, zlHttpResponse& response) override {
        response = zlHttpResponse();
        if (request.body.size() > MAXDWORD) {
            return zlCloudFailure(zlCloudNetworkFailed, "the request is too large to send");
        }
        Handle session(WinHttpOpen(L"Zelto", WINHTTP_ACCESS_TYPE_DEFAULT_PROXY,
                                   WINHTTP_NO_PROXY_NAME, WINHTTP_NO_PROXY_BYPASS, 0));
        if (!session) {
            return networkFailure("opening a session");
        }
        if (!WinHttpSetTimeouts(session.get(), timeouts_.resolve, timeouts_.connect, timeouts_.send,
                                timeouts_.receive)) {
            return networkFailure("setting the time limits");
        }
        // Waiting for the answer's headers has its own limit, unbounded in some versions.
        DWORD responseWait = static_cast<DWORD>(timeouts_.receive);
        if (!WinHttpSetOption(session.get(), WINHTTP_OPTION_RECEIVE_RESPONSE_TIMEOUT, &responseWait,
                              sizeof responseWait)) {
            return networkFailure("setting the time limits");
        }
        if (!requireModernTls(session.get())) {
            return networkFailure("requiring TLS 1.2 or later");
        }
        Handle connection(WinHttpConnect(session.get(), wide(request.server.host).c_str(),
                                         static_cast<INTERNET_PORT>(request.server.port), 0));
        if (!connection) {
            return networkFailure("connecting");
        }
        // The path goes out as it was signed: no escaping of its own.
        DWORD flags = WINHTTP_FLAG_ESCAPE_DISABLE | WINHTTP_FLAG_ESCAPE_DISABLE_QUERY;
        if (request.server.https) {
            flags |= WINHTTP_FLAG_SECURE;
        }
        Handle call(WinHttpOpenRequest(connection.get(), wide(request.verb).c_str(),
                                       wide(request.pathAndQuery).c_str(), nullptr,
                                       WINHTTP_NO_REFERER, WINHTTP_DEFAULT_ACCEPT_TYPES, flags));
        if (!call) {
            return networkFailure("opening the request");
        }
        // The signed Authorization header must never reach a host that a redirect names.
        DWORD redirects = WINHTTP_OPTION_REDIRECT_POLICY_NEVER;
        if (!WinHttpSetOption(call.get(), WINHTTP_OPTION_REDIRECT_POLICY, &redirects,
                              sizeof redirects)) {
            return networkFailure("turning off redirects");
        }
        // One header a call: with the replace flag that is all the call takes.
        for (const auto& field : request.headers) {
            const std::wstring line = wide(field.first + ": " + field.second);
            if (!WinHttpAddRequestHeaders(call.get(), line.c_str(), static_cast<DWORD>(line.size()),
                                          WINHTTP_ADDREQ_FLAG_ADD | WINHTTP_ADDREQ_FLAG_REPLACE)) {
                return networkFailure("adding the headers");
            }
        }
        const auto length = static_cast<DWORD>(request.body.size());
        LPVOID body =
            length == 0 ? WINHTTP_NO_REQUEST_DATA : const_cast<char*>(request.body.data());
        if (!WinHttpSendRequest(call.get(), WINHTTP_NO_ADDITIONAL_HEADERS, 0, body, length, length,
                                0)) {
            return networkFailure("sending");
        }
        if (!WinHttpReceiveResponse(call.get(), nullptr)) {
            return networkFailure("waiting for the answer");
        }
        DWORD status = 0;
        DWORD size = sizeof status;
        if (!WinHttpQueryHeaders(call.get(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER,
                                 WINHTTP_HEADER_NAME_BY_INDEX, &status, &size,
                                 WINHTTP_NO_HEADER_INDEX)) {
            return networkFailure("reading the status");
        }
        std::string answer;
        for (;;) {
            DWORD available = 0;
            if (!WinHttpQueryDataAvailable(call.get(), &available)) {
                return networkFailure("reading the answer");
            }
            if (available == 0 || answer.size() >= kMaxResponseBytes) {
                break;
            }
            const size_t start = answer.size();
            answer.resize(start + available);
            DWORD read = 0;
            if (!WinHttpReadData(call.get(), &answer[start], available, &read)) {
                return networkFailure("reading the answer");
            }
            answer.resize(start + read);
            if (read == 0) {
                break;
            }
        }
        response.status = static_cast<int>(status);
        response.body.swap(answer);
        return zlCloudSuccess();
    }

  private:
    zlHttpTimeouts timeouts_;
};

}  // namespace

std::unique_ptr<zlHttpTransport> zlNewPlatformTransport(const zlHttpTimeouts& timeouts) {
    return std::unique_ptr<zlHttpTransport>(new zlWinHttpTransport(timeouts));
}

}  // namespace Zelto
