#include "converter/zlLegacyReader.h"

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "model/IStringReadCallBack.h"
#include "model/zlTypeCodes.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

bool is(const char* a, const char* b) {
    return std::strcmp(a, b) == 0;
}

int fieldType(const char* name) {
    static const struct {
        const char* name;
        int type;
    } fields[] = {{"name", zlTypeKeyName}, {"label", zlTypeKeyLabel}, {"user", zlTypeKeyUser},
                  {"pw", zlTypeKeyPW},     {"email", zlTypeKeyEmail}, {"url", zlTypeKeyUrl},
                  {"note", zlTypeKeyNote}};
    for (const auto& f : fields) {
        if (is(name, f.name))
            return f.type;
    }
    return 0;
}

bool isBlank(const char* text) {
    for (; *text; ++text) {
        if (!std::strchr(" \t\r\n", *text))
            return false;
    }
    return true;
}

// The walk through one file. Depth counts the open elements: the root is 1, settings and
// the key list 2, a setting and a key 3, a key field 4.
class LegacyWalk {
  public:
    explicit LegacyWalk(zlLegacyFile& file) : file_(file) {}

    bool start(const char* name, const char* encrypted) {
        const size_t depth = open_.size();
        if (depth == 0) {
            if (!is(name, "Zelto") || rootSeen_)
                return false;
            rootSeen_ = true;
        } else if (depth == 1) {
            if (!startContainer(name))
                return false;
        } else if (depth == 2 && inKeys()) {
            if (!is(name, "key"))
                return false;
            file_.keys.emplace_back();
        } else if (depth == 3 && inKeys()) {
            if (!startField(name, encrypted))
                return false;
        } else if (depth != 2) {
            return false;  // nothing nests inside a setting or a field
        }
        open_.push_back(name);
        text_.clear();
        return true;
    }

    bool end(const char* name) {
        if (open_.empty() || open_.back() != name)
            return false;
        bool ok = true;
        if (open_.size() == 4) {
            field_.value = text_;
            file_.keys.back().fields.push_back(field_);
        } else if (open_.size() == 3 && !inKeys()) {
            ok = keepSetting(name);
        }
        open_.pop_back();
        return ok;
    }

    bool text(const char* data) {
        const bool holdsValue = open_.size() == 4 || (open_.size() == 3 && !inKeys());
        if (holdsValue)
            text_.append(data);
        return holdsValue || isBlank(data);
    }

    bool complete() const { return rootSeen_ && open_.empty() && verifySeen_; }

  private:
    bool inKeys() const { return open_.size() >= 2 && open_[1] == "keys"; }

    bool startContainer(const char* name) {
        bool* seen = is(name, "settings") ? &settingsSeen_
                     : is(name, "keys")   ? &keysSeen_
                                          : nullptr;
        if (seen == nullptr || *seen)
            return false;
        *seen = true;
        return true;
    }

    bool startField(const char* name, const char* encrypted) {
        field_ = zlLegacyField();
        field_.typeCode = fieldType(name);
        if (field_.typeCode == 0 || encrypted == nullptr)
            return false;
        field_.encrypted = is(encrypted, "true");
        return field_.encrypted || is(encrypted, "false");
    }

    bool keepSetting(const char* name) {
        if (is(name, "pw")) {
            if (verifySeen_)
                return false;
            verifySeen_ = true;
            file_.verify = text_;
        } else if (is(name, "autoClearClipboard")) {
            file_.hasAutoClearClipboard = true;
            file_.autoClearClipboard = text_;
        } else if (is(name, "language")) {
            file_.language = text_;
        }
        return true;  // other settings take their defaults
    }

    zlLegacyFile& file_;
    std::vector<std::string> open_;
    dm_utf8_str text_;
    zlLegacyField field_;
    bool rootSeen_ = false;
    bool settingsSeen_ = false;
    bool keysSeen_ = false;
    bool verifySeen_ = false;
};

bool walk(irr::io::IrrXMLReader& parser, LegacyWalk& w) {
    while (parser.read()) {
        bool ok = true;
        switch (parser.getNodeType()) {
            case irr::io::EXN_ELEMENT:
                ok = w.start(parser.getNodeName(), parser.getAttributeValue("encrypted"));
                if (ok && parser.isEmptyElement())
                    ok = w.end(parser.getNodeName());
                break;
            case irr::io::EXN_ELEMENT_END:
                ok = w.end(parser.getNodeName());
                break;
            case irr::io::EXN_TEXT:
            case irr::io::EXN_CDATA:
                ok = w.text(parser.getNodeData());
                break;
            default:
                break;
        }
        if (!ok)
            return false;
    }
    return w.complete();
}

}  // namespace

bool zlReadLegacyText(const dm_utf8_str& text, zlLegacyFile& out) {
    out = zlLegacyFile();
    IStringReadCallBack callback(text.str());
    std::unique_ptr<irr::io::IrrXMLReader> parser(irr::io::createIrrXMLReader(&callback, false));
    if (!parser)
        return false;
    callback.release();
    LegacyWalk w(out);
    return walk(*parser, w);
}

}  // namespace Zelto
