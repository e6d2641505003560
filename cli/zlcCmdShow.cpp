#include "app/zlKeyFields.h"
#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcFieldNames.h"
#include "cli/zlcOpenKey.h"
#include "cli/zlcOutput.h"
#include "cli/zlcSession.h"

namespace Zelto {

namespace {

// Opens the file and deciphers the fields of the key that the first argument names.
int openKey(zlcContext& c, zlcSession& session, zlcKeyMatch& match, zlKeyFields& fields) {
    const int opened = zlcOpenKey(c, session, match);
    if (opened != zlcExitOk)
        return opened;
    const std::string& key = c.args.arguments[0];
    if (!zlReadKeyFields(*match.key, fields))
        return zlcFail(c.io, zlcExitFile, "the fields of key " + key + " do not decipher");
    return zlcExitOk;
}

}  // namespace

int zlcShow(zlcContext& c) {
    zlcSession session(c.io, c.files);
    zlcKeyMatch match;
    zlKeyFields fields;
    const int opened = openKey(c, session, match, fields);
    if (opened != zlcExitOk)
        return opened;
    const bool reveal = c.args.flag("reveal");
    c.io.out += c.args.flag("json") ? zlcKeyJson(match.position, fields, reveal)
                                    : zlcKeyText(match.position, fields, reveal);
    return zlcExitOk;
}

int zlcGet(zlcContext& c) {
    const int type = zlcFieldType(c.args.arguments[1]);
    if (type == 0)
        return zlcFail(c.io, zlcExitUsage,
                       "unknown field '" + c.args.arguments[1] +
                           "' (one of name, label, user, pw, email, url, note)");
    zlcSession session(c.io, c.files);
    zlcKeyMatch match;
    zlKeyFields fields;
    const int opened = openKey(c, session, match, fields);
    if (opened != zlcExitOk)
        return opened;
    c.io.out += fields.of(type)->str();
    if (c.io.outIsTerminal)
        c.io.out += "\n";
    return zlcExitOk;
}

}  // namespace Zelto
