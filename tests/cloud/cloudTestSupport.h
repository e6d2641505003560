#pragma once

#include <deque>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cloud/zlHttpTransport.h"
#include "core/dm_convert.h"
#include "model/zlKeyFile.h"
#include "model/zlVerify.h"
#include "support/test_util.h"

namespace ztest {

inline std::string utf8(const dunmar::dm_string& text) {
    return dunmar::utf16_to_utf8(text.c_str(), text.length());
}

// The emulator's well-known account, as UseDevelopmentStorage=true has it.
inline const char* kDevKey =
    "Eby8vdM02xNOcqFlqUwJPLlmEtlCDXJ1OUzFT50uSRZ6IFsuFq2UVErCz4I6tq/K1SZFPTOtr/KBHBeksoGMGw==";

inline std::string devConnectionString(const std::string& endpoint) {
    return std::string("DefaultEndpointsProtocol=http;AccountName=devstoreaccount1;AccountKey=") +
           kDevKey + ";TableEndpoint=" + endpoint;
}

// "Data", or "Data" + "Data2" + ... when the record holds DataParts parts.
inline std::string joinedData(const nlohmann::json& entity) {
    std::string joined = entity.value("Data", std::string("<none>"));
    for (int i = 2; i <= entity.value("DataParts", 1); ++i)
        joined += entity.value("Data" + std::to_string(i), std::string("<missing part>"));
    return joined;
}

// Records every request and answers from a script; an empty script answers 204.
struct FakeTransport : Zelto::zlHttpTransport {
    void answer(int status, const std::string& body = "", int code = Zelto::zlCloudOk,
                const std::string& reason = "") {
        script.push_back({{code, reason}, {status, body}});
    }
    Zelto::zlCloudResult send(const Zelto::zlHttpRequest& request,
                              Zelto::zlHttpResponse& response) override {
        requests.push_back(request);
        std::pair<Zelto::zlCloudResult, Zelto::zlHttpResponse> next{{}, {204, ""}};
        if (!script.empty()) {
            next = script.front();
            script.pop_front();
        }
        response = next.second;
        return next.first;
    }
    std::vector<Zelto::zlHttpRequest> requests;
    std::deque<std::pair<Zelto::zlCloudResult, Zelto::zlHttpResponse>> script;
};

// A key file under kLongPass with the three user fields, a verify value and `keys` keys with
// all seven fields filled ("pw-1-secret" the second one's password).
inline void fillKeyFile(Zelto::zlKeyFile& file, const std::string& first, const std::string& last,
                        const std::string& email, int keys) {
    file.set_pass_phrase(kLongPass);
    auto* settings = new Zelto::zlFileItemSettings(&file);
    settings->verify = Zelto::zlMakeVerifyValue(dunmar::dm_utf8_str(kLongPass));
    settings->setUserFirstName(dunmar::dm_utf8_str(first), true);
    settings->setUserLastName(dunmar::dm_utf8_str(last), true);
    settings->setUserEmail(dunmar::dm_utf8_str(email), true);
    file.root().appendChild(settings);
    file.root().appendChild(new Zelto::zlFileItemKeys(&file));
    for (int i = 0; i < keys; ++i) {
        auto* key = new Zelto::zlFileItemKey(&file);
        for (int f = 0; f < 7; ++f) {
            const std::string text = (f == 3 ? "pw-" : "field" + std::to_string(f) + "-") +
                                     std::to_string(i) + (f == 3 ? "-secret" : ".example");
            key->setField(Zelto::zlTypeKeyName + f, enc(file, text.c_str()));
        }
        file.keys()->appendChild(key);
    }
}

// Ten keys with a note of 40000 characters each: too large for one record.
inline void addHugeNotes(Zelto::zlKeyFile& file) {
    for (int i = 0; i < 10; ++i) {
        auto* key = new Zelto::zlFileItemKey(&file);
        key->setNote(enc(file, std::string(40000, 'n').c_str()));
        file.keys()->appendChild(key);
    }
}

}  // namespace ztest
