#include "app/zlSettingsRules.h"
#include "app/zlTexts.h"
#include "cli/zlcCommands.h"
#include "cli/zlcExitCodes.h"
#include "cli/zlcSession.h"

namespace Zelto {

using dunmar::dm_utf8_str;

namespace {

// The seconds an option gives, read and clamped as the settings dialog does; the current
// value when the option is absent.
int32_t seconds(const zlcArgs& args, const char* option, int32_t current, int32_t (*clamp)(long)) {
    const std::string* text = args.value(option);
    return text ? clamp(zlSecondsFromText(dm_utf8_str(*text).to_wide())) : current;
}

std::string settingsText(const zlFileItemSettings& s) {
    return "autolock: " + std::to_string(s.autolock) + "\n" +
           "clear-clipboard: " + std::to_string(s.autoClearClipboard) + "\n" +
           "show-selected: " + std::to_string(s.showSelectedKey) + "\n" +
           "language: " + zlLanguageNameForFile().str() + "\n" +
           "first-name: " + s.userFirstName(true).str() + "\n" +
           "last-name: " + s.userLastName(true).str() + "\n" + "email: " + s.userEmail(true).str() +
           "\n";
}

// Sets one enciphered user field from its option; false when enciphering failed.
bool userField(const zlcArgs& args, const char* option, const dm_utf8_str& current,
               bool (zlFileItemSettings::*set)(const dm_utf8_str&, bool), zlFileItemSettings& s,
               bool& changed) {
    const std::string* text = args.value(option);
    if (!text || *text == current.str())
        return true;
    changed = true;
    return (s.*set)(dm_utf8_str(*text), true);
}

}  // namespace

int zlcSettings(zlcContext& c) {
    const std::string* language = c.args.value("language");
    const dm_utf8_str english(dunmar::dm_string(zlText(zlTextEnglish)).to_utf8());
    const dm_utf8_str deutsch(dunmar::dm_string(zlText(zlTextDeutsch)).to_utf8());
    if (language && *language != english.str() && *language != deutsch.str())
        return zlcFail(c.io, zlcExitUsage,
                       "--language takes " + english.str() + " or " + deutsch.str());
    zlcSession session(c.io, c.files);
    const int opened = session.open();
    if (opened != zlcExitOk)
        return opened;
    zlFileItemSettings& s = *session.file().settings();

    const int32_t autolock = seconds(c.args, "autolock", s.autolock, zlClampAutoSeconds);
    const int32_t clipboard =
        seconds(c.args, "clear-clipboard", s.autoClearClipboard, zlClampAutoSeconds);
    const int32_t shown =
        seconds(c.args, "show-selected", s.showSelectedKey, zlClampShowSelectedSeconds);
    bool changed = autolock != s.autolock || clipboard != s.autoClearClipboard ||
                   shown != s.showSelectedKey || (language && *language != s.language.str());
    if (!userField(c.args, "first-name", s.userFirstName(true),
                   &zlFileItemSettings::setUserFirstName, s, changed) ||
        !userField(c.args, "last-name", s.userLastName(true), &zlFileItemSettings::setUserLastName,
                   s, changed) ||
        !userField(c.args, "email", s.userEmail(true), &zlFileItemSettings::setUserEmail, s,
                   changed))
        return zlcFail(c.io, zlcExitFile,
                       "a user field could not be enciphered; nothing was written");
    if (changed) {
        s.autolock = autolock;
        s.autoClearClipboard = clipboard;
        s.showSelectedKey = shown;
        if (language)
            zlSetLanguageFromSettings(dm_utf8_str(*language));
        const int saved = session.save();
        if (saved != zlcExitOk)
            return saved;
    }
    c.io.out += settingsText(s);
    return zlcExitOk;
}

}  // namespace Zelto
