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

// The elements the reader knows. Worked out once per node from its name, so that the
// start and end handlers switch instead of comparing names one after another.
enum class Element {
    Other,
    Zelto,
    Settings,
    Keys,
    Key,
    Trash,
    Name,
    Label,
    User,
    Pw,
    Email,
    Url,
    Note,
    Verify,
    Autolock,
    AutoClearClipboard,
    ShowSelectedKey,
    Language,
    UserFirstName,
    UserLastName,
    UserEmail,
};

Element elementOf(const char* name) {
    struct Entry {
        const char* name;
        Element element;
    };
    static const Entry entries[] = {
        {"Zelto", Element::Zelto},
        {"settings", Element::Settings},
        {"keys", Element::Keys},
        {"key", Element::Key},
        {"trash", Element::Trash},
        {"name", Element::Name},
        {"label", Element::Label},
        {"user", Element::User},
        {"pw", Element::Pw},
        {"email", Element::Email},
        {"url", Element::Url},
        {"note", Element::Note},
        {"verify", Element::Verify},
        {"autolock", Element::Autolock},
        {"autoClearClipboard", Element::AutoClearClipboard},
        {"showSelectedKey", Element::ShowSelectedKey},
        {"language", Element::Language},
        {"userFirstName", Element::UserFirstName},
        {"userLastName", Element::UserLastName},
        {"userEmail", Element::UserEmail},
    };
    // Most names differ in their first character already; compare in full only then.
    for (const Entry& e : entries) {
        if (e.name[0] == name[0] && std::strcmp(e.name, name) == 0)
            return e.element;
    }
    return Element::Other;
}

int keyFieldType(Element element) {
    switch (element) {
        case Element::Name:
            return zlTypeKeyName;
        case Element::Label:
            return zlTypeKeyLabel;
        case Element::User:
            return zlTypeKeyUser;
        case Element::Email:
            return zlTypeKeyEmail;
        case Element::Url:
            return zlTypeKeyUrl;
        case Element::Note:
            return zlTypeKeyNote;
        default:
            return 0;
    }
}

void onStart(IrrXMLReaderHelper& h, zlFileItemRoot& root, Element element) {
    zlEncrypt* owner = root.owner();
    switch (element) {
        case Element::Zelto:
            // The tree holds only what this file says.
            root.clearChildren();
            h.openSettings = nullptr;
            h.openKeys = nullptr;
            h.openKey = nullptr;
            h.openTrash = nullptr;
            break;
        case Element::Settings:
            h.openSettings = new zlFileItemSettings(owner);
            root.appendChild(h.openSettings);
            break;
        case Element::Keys:
            h.openKeys = new zlFileItemKeys(owner);
            root.appendChild(h.openKeys);
            break;
        case Element::Key: {
            zlFileItem* container = h.openKeys ? static_cast<zlFileItem*>(h.openKeys)
                                               : static_cast<zlFileItem*>(h.openTrash);
            if (container) {
                h.openKey = new zlFileItemKey(owner);
                container->appendChild(h.openKey);
            }
            break;
        }
        case Element::Trash:
            h.openTrash = new zlFileItemTrash(owner);
            root.appendChild(h.openTrash);
            break;
        default:
            break;
    }
}

void onSettingsEnd(zlFileItemSettings& s, Element element, const dm_utf8_str& lastText) {
    switch (element) {
        case Element::Verify:
            s.verify = lastText;
            break;
        case Element::Autolock:
            s.autolock = zlClampSetting(lastText.c_str(), 5, 600);
            break;
        case Element::AutoClearClipboard:
            s.autoClearClipboard = zlClampSetting(lastText.c_str(), 5, 600);
            break;
        case Element::ShowSelectedKey:
            s.showSelectedKey = zlClampSetting(lastText.c_str(), 1, 30);
            break;
        case Element::Language:
            s.language = lastText;
            break;
        case Element::UserFirstName:
            s.setUserFirstName(lastText, false);
            break;
        case Element::UserLastName:
            s.setUserLastName(lastText, false);
            break;
        case Element::UserEmail:
            s.setUserEmail(lastText, false);
            break;
        default:
            break;
    }
}

void onEnd(IrrXMLReaderHelper& h, Element element, const dm_utf8_str& lastText) {
    switch (element) {
        case Element::Zelto:
            return;
        case Element::Settings:
            h.openSettings = nullptr;
            return;
        case Element::Keys:
            h.openKeys = nullptr;
            return;
        case Element::Key:
            h.openKey = nullptr;
            return;
        case Element::Pw:
            // "pw" is also the older name of the settings' verify value.
            if (h.openSettings) {
                h.openSettings->verify = lastText;
            } else if (h.openKey) {
                h.openKey->appendChild(zlMakeKeyField(zlTypeKeyPW, h.openKey->owner(), lastText));
            }
            return;
        default:
            break;
    }
    if (const int type = keyFieldType(element)) {
        if (h.openKey)
            h.openKey->appendChild(zlMakeKeyField(type, h.openKey->owner(), lastText));
        return;
    }
    if (h.openSettings)
        onSettingsEnd(*h.openSettings, element, lastText);
    if (element == Element::Trash)
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
                onStart(h, root_, elementOf(h.parser->getNodeName()));
                break;
            case irr::io::EXN_ELEMENT_END:
                onEnd(h, elementOf(h.parser->getNodeName()), lastText);
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
