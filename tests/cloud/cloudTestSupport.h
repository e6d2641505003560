#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <cstdlib>

#include "cloud/zlCloudConfig.h"
#include "cloud/zlHttpTransport.h"
#include "core/dm_convert.h"
#include "core/dm_guid.h"
#include "model/zlKeyFile.h"
#include "model/zlVerify.h"
#include "support/test_util.h"

namespace ztest {

inline std::string utf8(const dunmar::dm_string& text) {
    return dunmar::utf16_to_utf8(text.c_str(), text.length());
}

// A fresh text for table keys, so that records of earlier runs do no harm.
inline std::string uniqueText() {
    dunmar::dm_string guid;
    dunmar::dm_new_guid_text(guid);
    return utf8(guid);
}

// The emulator that scripts/test.sh starts and names in the environment; empty when none.
// Under CI a missing one is an error; elsewhere tests that need it skip.
inline std::string tableServiceConnectionString() {
    const char* value = std::getenv(Zelto::zlCloudConnectionStringVariable);
    return value ? value : "";
}
inline bool underCi() {
    const char* ci = std::getenv("CI");
    return ci != nullptr && std::string(ci) == "true";
}

// The emulator's well-known account, as UseDevelopmentStorage=true has it.
inline const char* kDevKey =
    "Eby8vdM02xNOcqFlqUwJPLlmEtlCDXJ1OUzFT50uSRZ6IFsuFq2UVErCz4I6tq/K1SZFPTOtr/KBHBeksoGMGw==";

inline std::string devConnectionString(const std::string& endpoint) {
    return std::string("DefaultEndpointsProtocol=http;AccountName=devstoreaccount1;AccountKey=") +
           kDevKey + ";TableEndpoint=" + endpoint;
}

// Records every request and answers from a script; an empty script answers 204.
class FakeTransport : public Zelto::zlHttpTransport {
  public:
    struct Answer {
        Zelto::zlCloudResult result;
        Zelto::zlHttpResponse response;
    };

    void answer(int status, const std::string& body = std::string()) {
        Answer a;
        a.response.status = status;
        a.response.body = body;
        script.push_back(a);
    }
    void failWith(int code, const std::string& reason) {
        Answer a;
        a.result = Zelto::zlCloudFailure(code, reason);
        script.push_back(a);
    }

    Zelto::zlCloudResult send(const Zelto::zlHttpRequest& request,
                              Zelto::zlHttpResponse& response) override {
        requests.push_back(request);
        if (onSend)
            onSend(request);
        Answer a;
        a.response.status = 204;
        if (!script.empty()) {
            a = script.front();
            script.pop_front();
        }
        response = a.response;
        return a.result;
    }

    std::vector<Zelto::zlHttpRequest> requests;
    std::deque<Answer> script;
    std::function<void(const Zelto::zlHttpRequest&)> onSend;
};

// A key file under kLongPass with the three user fields, a verify value and `keys` keys with
// all seven fields filled.
inline void fillKeyFile(Zelto::zlKeyFile& file, const char* first, const char* last,
                        const char* email, int keys) {
    file.set_pass_phrase(kLongPass);
    auto* settings = new Zelto::zlFileItemSettings(&file);
    settings->verify = Zelto::zlMakeVerifyValue(dunmar::dm_utf8_str(kLongPass));
    settings->setUserFirstName(dunmar::dm_utf8_str(first), true);
    settings->setUserLastName(dunmar::dm_utf8_str(last), true);
    settings->setUserEmail(dunmar::dm_utf8_str(email), true);
    file.root().appendChild(settings);
    auto* list = new Zelto::zlFileItemKeys(&file);
    file.root().appendChild(list);
    for (int i = 0; i < keys; ++i) {
        auto* key = new Zelto::zlFileItemKey(&file);
        const std::string n = std::to_string(i);
        const std::string fields[] = {"account " + n,
                                      "label",
                                      "user" + n,
                                      "pw-" + n + "-secret",
                                      "u" + n + "@mail.example",
                                      "https://site" + n + ".example",
                                      "note " + n};
        for (int f = 0; f < 7; ++f)
            key->setField(Zelto::zlTypeKeyName + f, enc(file, fields[f].c_str()));
        list->appendChild(key);
    }
}

}  // namespace ztest
