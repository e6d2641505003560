#include "app/zlKeyFields.h"
#include "app/zlPasswordRules.h"
#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcOpenKey.h"
#include "cli/zlcSession.h"

namespace Zelto {

namespace {

// The options that set a field's text directly.
struct TextOption {
    const char* option;
    int type;
};
const TextOption kTextOptions[] = {
    {"name", zlTypeKeyName},   {"label", zlTypeKeyLabel}, {"user", zlTypeKeyUser},
    {"email", zlTypeKeyEmail}, {"url", zlTypeKeyUrl},     {"note", zlTypeKeyNote},
};

// Checks what can be checked before the master password is asked.
int checkOptions(zlcContext& c) {
    if (c.args.flag("generate") && c.args.flag("password-stdin"))
        return zlcFail(c.io, zlcExitUsage, "--generate and --password-stdin exclude each other");
    const std::string* name = c.args.value("name");
    if (name && name->empty())
        return zlcFail(c.io, zlcExitUsage, "a key needs a name");
    return zlcExitOk;
}

// Puts the options' texts and the new password into fields.
int applyOptions(zlcContext& c, zlKeyFields& fields) {
    for (const TextOption& o : kTextOptions) {
        if (const std::string* text = c.args.value(o.option))
            *fields.of(o.type) = dunmar::dm_utf8_str(*text);
    }
    if (c.args.flag("generate")) {
        dunmar::dm_string proposal;
        if (!zlNewPasswordProposal(proposal))
            return zlcFail(c.io, zlcExitFile, "no password could be proposed; nothing was written");
        *fields.of(zlTypeKeyPW) = proposal.to_utf8();
    } else if (c.args.flag("password-stdin")) {
        std::string password;
        if (!c.io.readSecret("Password of the key: ", password))
            return zlcFail(c.io, zlcExitUsage, "no password for the key was given");
        *fields.of(zlTypeKeyPW) = dunmar::dm_utf8_str(password);
    }
    return zlcExitOk;
}

std::string described(size_t position, const std::string& name) {
    return "#" + std::to_string(position) + " \"" + name + "\"";
}

}  // namespace

int zlcAdd(zlcContext& c) {
    const std::string& name = c.args.arguments[0];
    if (name.empty())
        return zlcFail(c.io, zlcExitUsage, "a key needs a name");
    const int checked = checkOptions(c);
    if (checked != zlcExitOk)
        return checked;
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;

    zlKeyFields fields;
    *fields.of(zlTypeKeyName) = dunmar::dm_utf8_str(name);
    const int applied = applyOptions(c, fields);
    if (applied != zlcExitOk)
        return applied;
    if (!zlAddKey(session.file(), fields))
        return zlcFail(c.io, zlcExitFile, "the key could not be enciphered; nothing was written");
    const int saved = session.save();
    if (saved != zlcExitOk)
        return saved;

    const zlcKeyMatch same = zlcFindKey(session.file().keys(), name);
    const size_t position = same.candidates.empty() ? 0 : same.candidates.back();
    c.io.out += "added " + described(position, name) + "\n";
    if (same.result == zlcKeyMatch::ambiguous)
        c.io.err += "WARNING: " + zlcKeyMatchMessage(same, name) + "\n";
    return zlcExitOk;
}

int zlcEdit(zlcContext& c) {
    const int checked = checkOptions(c);
    if (checked != zlcExitOk)
        return checked;
    zlcSession session(c.io, c.files);
    zlcKeyMatch match;
    const int opened = zlcOpenKey(c, session, match);
    if (opened != zlcExitOk)
        return opened;

    zlKeyFields before;
    if (!zlReadKeyFields(*match.key, before))
        return zlcFail(c.io, zlcExitFile,
                       "the fields of key " + c.args.arguments[0] + " do not decipher");
    zlKeyFields after = before;
    const int applied = applyOptions(c, after);
    if (applied != zlcExitOk)
        return applied;
    const std::string name = after.of(zlTypeKeyName)->str();
    if (after.equals(before)) {
        c.io.out += "nothing changed in " + described(match.position, name) + "\n";
        return zlcExitOk;
    }
    if (!zlStoreKeyFields(*match.key, after))
        return zlcFail(c.io, zlcExitFile, "the key could not be enciphered; nothing was written");
    const int saved = session.save();
    if (saved != zlcExitOk)
        return saved;
    c.io.out += "changed " + described(match.position, name) + "\n";
    return zlcExitOk;
}

}  // namespace Zelto
