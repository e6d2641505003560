#pragma once

// Resource and control identifiers, shared by the resource script and the C++ code. Plain
// defines only: windres reads this file too.

// Icons, menu, accelerators, strings, raw data.
#define IDI_ZELTO 107
#define IDI_SMALL 108
#define IDC_ZELTO 109  // menu and accelerator table
#define IDS_WINDOW_CLASS 103
#define IDR_CONVERTER 137

// Dialog templates.
#define IDD_BASE_SIZEABLE 140
#define IDD_SET_MASTER_PW 142
#define IDD_SETTINGS 1026

// Top-level menu items (plain commands; their popups are built at run time).
#define IDM_FILE 32777
#define IDM_SETTINGS 32782
#define IDM_HELP 32780
#define IDM_LANGUAGE 32779
// Popup items.
#define IDM_BACKUP 32776
#define IDM_EXIT 106
#define IDM_OPTIONS 32771
#define IDM_SET_MASTER_PW 32773
#define IDM_ABOUT 105
#define IDM_ENGLISH 32774
#define IDM_DEUTSCH 32775
#define IDM_EXPORT_CLOUD 32778

// Every hyperlink has this identifier; a window holds at most one.
#define IDC_HYPERLINK 1010

// Login dialog.
#define IDC_LOGIN_LANGUAGE 1001
#define IDC_LOGIN_PROMPT 1005
#define IDC_LOGIN_PASSWORD 1006
#define IDC_LOGIN_BUTTON 1

// Set master password dialog (template 142).
#define IDC_SETPW_PASSWORD_LABEL 1011
#define IDC_SETPW_PASSWORD 124
#define IDC_SETPW_VERIFY_LABEL 1014
#define IDC_SETPW_VERIFY 1015
#define IDC_SETPW_WARNING 1016
#define IDC_SETPW_MESSAGE 1019

// Edit key dialog: a label and an edit per field, and the proposal button.
#define IDC_EDITKEY_NAME_LABEL 115
#define IDC_EDITKEY_NAME 122
#define IDC_EDITKEY_LABEL_LABEL 150
#define IDC_EDITKEY_LABEL 151
#define IDC_EDITKEY_USER_LABEL 116
#define IDC_EDITKEY_USER 123
#define IDC_EDITKEY_PW_LABEL 117
#define IDC_EDITKEY_PW 124
#define IDC_EDITKEY_EMAIL_LABEL 118
#define IDC_EDITKEY_EMAIL 125
#define IDC_EDITKEY_URL_LABEL 119
#define IDC_EDITKEY_URL 126
#define IDC_EDITKEY_NOTE_LABEL 120
#define IDC_EDITKEY_NOTE 127
#define IDC_EDITKEY_PROPOSE 145

// Settings dialog (template 1026).
#define IDC_SETTINGS_AUTOLOCK_LABEL 1027
#define IDC_SETTINGS_AUTOLOCK 1021
#define IDC_SETTINGS_CLIPBOARD_LABEL 1030
#define IDC_SETTINGS_CLIPBOARD 1029
#define IDC_SETTINGS_SHOWKEY_LABEL 1038
#define IDC_SETTINGS_SHOWKEY 1039

// About dialog.
#define IDC_ABOUT_VERSION 1001
#define IDC_ABOUT_NOTICE 1002

// File-created dialog.
#define IDC_FILECREATED_HEADING 1001
#define IDC_FILECREATED_PATH 1002
#define IDC_FILECREATED_OPEN_FOLDER 1003
