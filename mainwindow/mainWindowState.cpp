#include "mainwindow/mainWindowState.h"

#include "ui/uiColors.h"

namespace Zelto {

mainWindowState& mainWindowGlobals() {
    static mainWindowState state;
    return state;
}

namespace {
cursorReader cursorFunction = &GetCursorPos;
processEnder enderFunction = &ExitProcess;
}  // namespace

void setCursorReader(cursorReader reader) {
    cursorFunction = reader ? reader : &GetCursorPos;
}

void setProcessEnder(processEnder ender) {
    enderFunction = ender ? ender : &ExitProcess;
}

BOOL readCursor(POINT& position) {
    return cursorFunction(&position);
}

void endProcess(UINT exitCode) {
    enderFunction(exitCode);
}

HBRUSH mainWindowBrush() {
    static HBRUSH brush = CreateSolidBrush(dunmar::kBackgroundColor);
    return brush;
}

}  // namespace Zelto
