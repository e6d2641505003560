#include "ui/messagePump.h"

namespace dunmar {

void pumpWindowMessages(HWND window) {
    if (!window || !IsWindow(window))
        return;
    MSG message;
    while (PeekMessageW(&message, window, 0, 0, PM_REMOVE)) {
        if (!IsDialogMessageW(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

}  // namespace dunmar
