#pragma once

#include <windows.h>

#include "core/dm_string.h"
#include "core/dm_utf8_str.h"
#include "mainwindow/mainWindow.h"
#include "model/zlKeyFile.h"

namespace Zelto {

// The program: makes sure a key file exists, asks for the master password, checks it,
// shows the main window and runs the message loop. Every failure before the main window
// is told once in a message box and ends the program with 0.
class zlApp {
  public:
    zlApp();
    virtual ~zlApp();

    // The whole run; the exit code.
    int start(HINSTANCE instance, int showCommand);

    HINSTANCE instance() const { return instance_; }
    zlKeyFile& keyFile() { return file_; }
    mainWindow& window() { return window_; }
    // The key file beside the program, worked out on first use.
    const dunmar::dm_string& keyFilePath();

    zlApp(const zlApp&) = delete;
    zlApp& operator=(const zlApp&) = delete;

  private:
    bool makeFirstKeyFile();
    void readFirstTime();
    // Empty when cancelled; convertible false for a text that is no UTF-8 password.
    dunmar::dm_utf8_str askPassword(bool& convertible);
    bool readWithConversion(const dunmar::dm_utf8_str& password);
    int runMessageLoop();

    HINSTANCE instance_ = nullptr;
    zlKeyFile file_;
    dunmar::dm_string path_;
    bool pathKnown_ = false;
    bool firstReadDone_ = false;
    mainWindow window_;
};

// A message box without owner, titled with the program's name.
void zlShowMessage(const dunmar::dm_string& text, UINT flags = MB_OK);

}  // namespace Zelto
