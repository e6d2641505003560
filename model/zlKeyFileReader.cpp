#include "model/zlKeyFileReader.h"

#include <cstdlib>
#include <cstring>
#include <memory>

#include "crypto/zlEncrypt.h"
#include "model/IStringReadCallBack.h"
#include "model/zlFileItemContainers.h"
#include "model/zlFileItemKey.h"
#include "model/zlFileItemSettings.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

// The parser and the items currently open while one file is walked. The open pointers do
// not own: every item belongs to the tree as soon as it is made.
struct IrrXMLReaderHelper {
    int status = 1;
    std::unique_ptr<IStringReadCallBack> callback;
    std::unique_ptr<irr::io::IrrXMLReader> parser;
    zlFileItemSettings* openSettings = nullptr;
    zlFileItemKeys* openKeys = nullptr;
    zlFileItemKey* openKey = nullptr;
    zlFileItemTrash* openTrash = nullptr;
};

bool is(const char* a, const char* b) {
    return std::strcmp(a, b) == 0;
}

int keyFieldType(const char* name) {
    if (is(name, "name"))
        return zlTypeKeyName;
    if (is(name, "label"))
        return zlTypeKeyLabel;
    if (is(name, "user"))
        return zlTypeKeyUser;
    if (is(name, "email"))
        return zlTypeKeyEmail;
    if (is(name, "url"))
        return zlTypeKeyUrl;
    if (is(name, "note"))
        return zlTypeKeyNote;
    return 0;
}

void onStart(IrrXMLReaderHelper& h, zlFileItemRoot& root, const char* name) {
    zlEncrypt* owner = root.owner();
    if (is(name, "Zelto")) {
        // The tree holds only what this file says.
        root.clearChildren();
        h.openSettings = nullptr;
        h.openKeys = nullptr;
        h.openKey = nullptr;
        h.openTrash = nullptr;
    } else if (is(name, "settings")) {
        h.openSettings = new zlFileItemSettings(owner);
        root.appendChild(h.openSettings);
    } else if (is(name, "keys")) {
        h.openKeys = new zlFileItemKeys(owner);
        root.appendChild(h.openKeys);
    } else if (is(name, "key")) {
        zlFileItem* container = h.openKeys ? static_cast<zlFileItem*>(h.openKeys)
                                           : static_cast<zlFileItem*>(h.openTrash);
        if (container) {
            h.openKey = new zlFileItemKey(owner);
            container->appendChild(h.openKey);
        }
    } else if (is(name, "trash")) {
        h.openTrash = new zlFileItemTrash(owner);
        root.appendChild(h.openTrash);
    }
}

void onEnd(IrrXMLReaderHelper& h, const char* name, const dm_utf8_str& lastText) {
    if (is(name, "Zelto"))
        return;
    if (is(name, "settings")) {
        h.openSettings = nullptr;
        return;
    }
    if (is(name, "keys")) {
        h.openKeys = nullptr;
        return;
    }
    if (is(name, "key")) {
        h.openKey = nullptr;
        return;
    }
    if (const int type = keyFieldType(name)) {
        if (h.openKey)
            h.openKey->appendChild(zlMakeKeyField(type, h.openKey->owner(), lastText));
        return;
    }
    if (is(name, "pw")) {
        // "pw" is also the older name of the settings' verify value.
        if (h.openSettings) {
            h.openSettings->verify = lastText;
        } else if (h.openKey) {
            h.openKey->appendChild(zlMakeKeyField(zlTypeKeyPW, h.openKey->owner(), lastText));
        }
        return;
    }
    if (zlFileItemSettings* s = h.openSettings) {
        if (is(name, "verify")) {
            s->verify = lastText;
        } else if (is(name, "autolock")) {
            s->autolock = zlClampSetting(lastText.c_str(), 5, 600);
        } else if (is(name, "autoClearClipboard")) {
            s->autoClearClipboard = zlClampSetting(lastText.c_str(), 5, 600);
        } else if (is(name, "showSelectedKey")) {
            s->showSelectedKey = zlClampSetting(lastText.c_str(), 1, 30);
        } else if (is(name, "language")) {
            s->language = lastText;
        } else if (is(name, "userFirstName")) {
            s->setUserFirstName(lastText, false);
        } else if (is(name, "userLastName")) {
            s->setUserLastName(lastText, false);
        } else if (is(name, "userEmail")) {
            s->setUserEmail(lastText, false);
        }
    }
    if (is(name, "trash"))
        h.openTrash = nullptr;
}

}  // namespace

int zlClampSetting(const char* text, int low, int high) {
    const long value = std::strtol(text ? text : "", nullptr, 10);
    if (value < low)
        return 0;
    if (value > high)
        return high;
    return static_cast<int>(value);
}

int zlKeyFileReader::readText(dm_utf8_str&& text) {
    IrrXMLReaderHelper h;
    std::string bytes;
    text.swap_bytes(bytes);
    h.callback = std::make_unique<IStringReadCallBack>(std::move(bytes));
    h.parser.reset(irr::io::createIrrXMLReader(h.callback.get(), false));
    if (!h.parser) {
        h.status = -7;
        return h.status;
    }
    h.callback->release();

    dm_utf8_str lastText;
    while (h.parser->read()) {
        switch (h.parser->getNodeType()) {
            case irr::io::EXN_ELEMENT:
                onStart(h, root_, h.parser->getNodeName());
                break;
            case irr::io::EXN_ELEMENT_END:
                onEnd(h, h.parser->getNodeName(), lastText);
                break;
            case irr::io::EXN_TEXT: {
                const char* data = h.parser->getNodeData();
                lastText.assign(data, std::strlen(data));
                break;
            }
            default:
                break;
        }
    }
    return h.status;
}

}  // namespace Zelto
