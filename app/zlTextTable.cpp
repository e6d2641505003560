#include "app/zlTextTable.h"

namespace Zelto {

// One row per text identifier: English, German, French. Rows the program does not use
// hold no texts at all, so they fall back to "???".
const zlTextRow zlTextTable[zlTextTableSize] = {
    /*  0 */ {DM_W("Zelto"), DM_W("Zelto"), DM_W("")},
    /*  1 */ {DM_W("Keys"), DM_W("Keys"), DM_W("")},
    /*  2 */ {DM_W("Key"), DM_W("Key"), DM_W("")},
    /*  3 */ {DM_W("Label"), DM_W("Label"), DM_W("")},
    /*  4 */ {DM_W("User"), DM_W("Benutzer"), DM_W("")},
    /*  5 */ {DM_W("Password"), DM_W("Passwort"), DM_W("")},
    /*  6 */ {DM_W("Email"), DM_W("E-Mail"), DM_W("")},
    /*  7 */ {DM_W("Internet address"), DM_W("Internet-Adresse"), DM_W("")},
    /*  8 */ {DM_W("Note"), DM_W("Notiz"), DM_W("")},
    /*  9 */ {DM_W("New"), DM_W("Neu"), DM_W("")},
    /* 10 */ {DM_W("Edit"), DM_W("Bearbeiten"), DM_W("")},
    /* 11 */ {DM_W("Copy"), DM_W("Kopieren"), DM_W("")},
    /* 12 */ {DM_W("Open"), DM_W("\u00D6ffnen"), DM_W("")},
    /* 13 */ {DM_W("LogIn"), DM_W("LogIn"), DM_W("")},
    /* 14 */ {DM_W("OK"), DM_W("OK"), DM_W("")},
    /* 15 */ {DM_W("Cancel"), DM_W("Abbruch"), DM_W("")},
    /* 16 */ {DM_W("Please type your password"), DM_W("Bitte Passwort eingeben"), DM_W("")},
    /* 17 */ {DM_W("About"), DM_W("\u00DCber"), DM_W("")},
    /* 18 */ {DM_W("selected"), DM_W("selektiert"), DM_W("")},
    /* 19 */
    {DM_W("Copied '%s' to clipboard"), DM_W("'%s' in die Zwischenablage kopiert"), DM_W("")},
    /* 20 */ {DM_W("Opened 'Url'"), DM_W("'Url' ge\u00F6ffnet"), DM_W("")},
    /* 21 */
    {DM_W("Failed to open 'Url'"), DM_W("'Url' konnte nicht ge\u00F6ffnet werden"), DM_W("")},
    /* 22 */ {DM_W("Lock"), DM_W("Sperren"), DM_W("")},
    /* 23 */ {DM_W("File"), DM_W("Datei"), DM_W("")},
    /* 24 */ {DM_W("Settings"), DM_W("Einstellungen"), DM_W("")},
    /* 25 */ {DM_W("Help"), DM_W("Hilfe"), DM_W("")},
    /* 26 */ {DM_W("Language"), DM_W("Sprache"), DM_W("")},
    /* 27 */ {DM_W("Exit"), DM_W("Beenden"), DM_W("")},
    /* 28 */ {DM_W("Options"), DM_W("Optionen"), DM_W("")},
    /* 29 */ {nullptr, nullptr, nullptr},  // not used
    /* 30 */ {DM_W("English"), DM_W("English"), DM_W("")},
    /* 31 */ {DM_W("Deutsch"), DM_W("Deutsch"), DM_W("")},
    /* 32 */ {DM_W("Quit Applikation ?"), DM_W("Das Programm beenden ?"), DM_W("")},
    /* 33 */ {DM_W("Set Master Password"), DM_W("Master Passwort setzen"), DM_W("")},
    /* 34 */ {DM_W("Password"), DM_W("Passwort"), DM_W("")},
    /* 35 */ {DM_W("Verify"), DM_W("Verifizieren"), DM_W("")},
    /* 36 */
    {DM_W(" This is very important !!! \r\n Please ensure you will never forget your master "
          "password. \r\n Without this password all your data is lost forever. \r\n Nobody (we "
          "included) can restore your data without this password ! "),
     DM_W(" Dies ist sehr wichtig !!! \r\n Bitte stellen Sie sicher dass Sie ihr Master-Passwort "
          "nie vergessen. \r\n Ohne dieses Passwort sind alle Ihre Daten f\u00FCr immer verloren. "
          "\r\n Niemand (wir eingeschlossen) kann Ihre Daten ohne dieses Passwort wiederherstellen "
          "! "),
     DM_W("")},
    /* 37 */ {DM_W("Hide"), DM_W("Verstecken"), DM_W("")},
    /* 38 */ {DM_W("Show"), DM_W("Zeigen"), DM_W("")},
    /* 39 */ {DM_W("Delete"), DM_W("L\u00F6schen"), DM_W("")},
    /* 40 */ {DM_W("Auto Lock"), DM_W("Auto Lock"), DM_W("")},
    /* 41 */ {DM_W("Auto Clear Clipboard"), DM_W("Auto Zwischenablage leeren"), DM_W("")},
    /* 42 */ {DM_W("Seconds"), DM_W("Sekunden"), DM_W("")},
    /* 43 */ {DM_W("Ready"), DM_W("Bereit"), DM_W("")},
    /* 44 */ {DM_W("stay top"), DM_W("vorne bleiben"), DM_W("")},
    /* 45 */ {DM_W("Open Internet address"), DM_W("Internet-Adresse \u00F6ffnen"), DM_W("")},
    /* 46 */ {DM_W("Copy User"), DM_W("Benutzer kopieren"), DM_W("")},
    /* 47 */ {DM_W("Copy Password"), DM_W("Passwort kopieren"), DM_W("")},
    /* 48 */ {DM_W("Copy Email"), DM_W("E-Mail kopieren"), DM_W("")},
    /* 49 */ {DM_W("First name"), DM_W("Vorname"), DM_W("")},
    /* 50 */ {DM_W("Last name"), DM_W("Nachname"), DM_W("")},
    /* 51 */ {DM_W("Email"), DM_W("E-Mail"), DM_W("")},
    /* 52 */ {nullptr, nullptr, nullptr},  // not used
    /* 53 */ {nullptr, nullptr, nullptr},  // not used
    /* 54 */ {nullptr, nullptr, nullptr},  // not used
    /* 55 */ {nullptr, nullptr, nullptr},  // not used
    /* 56 */ {nullptr, nullptr, nullptr},  // not used
    /* 57 */ {nullptr, nullptr, nullptr},  // not used
    /* 58 */ {nullptr, nullptr, nullptr},  // not used
    /* 59 */ {DM_W("Backup"), DM_W("Backup"), DM_W("")},
    /* 60 */
    {DM_W("Failed to backup 'Zelto.xml'"), DM_W("Backup konnte nicht erstellt werden"), DM_W("")},
    /* 61 */ {DM_W("Backup of 'Zelto.xml' done"), DM_W("Backup wurde erstellt"), DM_W("")},
    /* 62 */ {nullptr, nullptr, nullptr},  // not used
    /* 63 */ {DM_W("Show selected Key"), DM_W("Selektierten Key anzeigen"), DM_W("")},
    /* 64 */ {nullptr, nullptr, nullptr},  // not used
    /* 65 */ {DM_W("Export to Cloud (Azure)"), DM_W("Export in die Cloud (Azure)"), DM_W("")},
    /* 66 */ {DM_W("File created"), DM_W("Datei erzeugt"), DM_W("")},
    /* 67 */ {DM_W("Open Folder"), DM_W("Ordner \u00F6ffnen"), DM_W("")},
    /* 68 */
    {DM_W("Replace current password ?"), DM_W("Das aktuelle Passwort ersetzen ?"), DM_W("")},
    /* 69 */ {DM_W("Filter:"), DM_W("Filter:"), DM_W("")},
    /* 70 */ {DM_W("Clear"), DM_W("Aus"), DM_W("")},
    /* 71 */ {DM_W("Edit"), DM_W("Edit"), DM_W("")},
    /* 72 */
    {DM_W("For security, hould we create a backup first"),
     DM_W("M\u00F6chten Sie sicherheitshalber zuerst ein Backup erstellen ?"), DM_W("")},
    /* 73 */
    {DM_W("ERROR: failed to change the master password !"),
     DM_W("FEHLER: Master Passwort konnte nicht ge\u00E4ndert werden !"), DM_W("")},
    /* 74 */
    {DM_W("SUCCESS: master password was changed !"),
     DM_W("Master Passwort erfolgreich ge\u00E4ndert !"), DM_W("")},
    /* 75 */ {DM_W(""), DM_W(""), DM_W("")},
};

}  // namespace Zelto
