#include <windows.h>

#include "zelto/zlApp.h"

// One application object for the whole run: the key file, the cipher and the main window
// live in it until the program ends.
int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int showCommand) {
    static Zelto::zlApp app;
    return app.start(instance, showCommand);
}
