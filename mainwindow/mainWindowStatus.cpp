#include "mainwindow/mainWindowStatus.h"

#include "app/zlTexts.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowTexts.h"

namespace Zelto {

using dunmar::dm_string;

mainWindowStatus::~mainWindowStatus() = default;

void mainWindowStatus::show(int32_t ticks, std::initializer_list<const wchar_t*> parts) {
    dm_string text(L" ");
    size_t taken = 0;
    for (const wchar_t* part : parts) {
        if (taken++ == kMaxParts)
            break;
        text.append(part);
    }
    if (text.length() < 2)
        text.append(zlText(textReady));
    countdown_ = ticks < 1 ? -1 : ticks;
    showText(text);
}

void mainWindowStatus::countDown() {
    if (countdown_ < 0)
        return;
    if (--countdown_ > 0)
        return;
    countdown_ = -1;
    showText(readyText());
}

void mainWindowStatus::showText(const dm_string& text) {
    message_ = text;
    if (owner_)
        owner_->controls().status.setText(text);
}

}  // namespace Zelto
