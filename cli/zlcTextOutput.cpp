#include "cli/zlcOutput.h"

#include "model/zlFileItemKeyItem.h"

namespace Zelto {

namespace {

const char* const kMask = "********";

std::string oneLine(const std::string& text) {
    std::string line = text;
    for (char& c : line) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            c = ' ';
    }
    return line;
}

// The lines of a note after its first are indented under the first; "\r\n" counts as
// one line end.
std::string indentedLines(const std::string& text, size_t indent) {
    std::string out;
    size_t start = 0;
    for (;;) {
        size_t end = text.find('\n', start);
        std::string line = text.substr(start, end == std::string::npos ? end : end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (start > 0)
            out += "\n" + std::string(indent, ' ');
        out += oneLine(line);
        if (end == std::string::npos)
            return out;
        start = end + 1;
    }
}

}  // namespace

std::string zlcKeyListText(const std::vector<zlcListedKey>& keys) {
    std::string text;
    for (const zlcListedKey& k : keys) {
        text += "#" + std::to_string(k.position) + " " + oneLine(k.name);
        if (!k.label.empty())
            text += " (" + oneLine(k.label) + ")";
        text += "\n";
    }
    return text;
}

std::string zlcLabelsText(const dunmar::dm_stringlist& labels) {
    std::string text;
    for (const dunmar::dm_string& label : labels)
        text += oneLine(label.to_utf8().str()) + "\n";
    return text;
}

std::string zlcKeyText(size_t position, const zlKeyFields& fields, bool reveal) {
    std::string text = "#" + std::to_string(position) + "\n";
    const size_t width = 7;  // "email: "
    for (size_t i = 0; i < zlKeyFieldCount; ++i) {
        const int type = zlKeyFieldTypes[i];
        std::string label = std::string(zlKeyFieldElement(type)) + ":";
        label.resize(width, ' ');
        std::string value = fields.value[i].str();
        if (type == zlTypeKeyPW && !reveal && !value.empty())
            value = kMask;
        text += label + indentedLines(value, width) + "\n";
    }
    return text;
}

}  // namespace Zelto
