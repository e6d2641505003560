#include "model/IStringReadCallBack.h"

#include <cstring>

namespace Zelto {

int IStringReadCallBack::read(void* buffer, int sizeToRead) {
    if (!buffer || sizeToRead <= 0 || position_ >= text_.size())
        return 0;
    size_t count = text_.size() - position_;
    if (count > static_cast<size_t>(sizeToRead))
        count = static_cast<size_t>(sizeToRead);
    std::memcpy(buffer, text_.data() + position_, count);
    position_ += count;
    return static_cast<int>(count);
}

}  // namespace Zelto
