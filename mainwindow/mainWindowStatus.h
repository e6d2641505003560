#pragma once

#include <cstdint>
#include <initializer_list>

#include "core/dm_string.h"

namespace Zelto {

class mainWindow;

// The status line at the bottom of the main window: a message that stays for a number of
// one-second ticks, then gives way to " Ready" again.
class mainWindowStatus {
  public:
    static constexpr size_t kMaxParts = 10;

    explicit mainWindowStatus(mainWindow* owner) : owner_(owner) {}
    virtual ~mainWindowStatus();

    // Shows a blank followed by the parts (null ones skipped, at most ten), or " Ready" when
    // that leaves less than two characters. Below one tick the message never expires.
    void show(int32_t ticks, std::initializer_list<const wchar_t*> parts);

    // One tick: a message whose time is up gives way to " Ready".
    void countDown();

    // Ticks left, -1 when idle.
    int32_t ticksLeft() const { return countdown_; }
    const dunmar::dm_string& message() const { return message_; }

    mainWindowStatus(const mainWindowStatus&) = delete;
    mainWindowStatus& operator=(const mainWindowStatus&) = delete;

  private:
    void showText(const dunmar::dm_string& text);

    mainWindow* owner_;
    int32_t countdown_ = -1;
    dunmar::dm_string message_;
};

}  // namespace Zelto
