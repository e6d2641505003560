#include "ui/mainFont.h"

namespace dunmar {

mainFont::~mainFont() {
    if (font_)
        DeleteObject(font_);
}

bool mainFont::create() {
    if (!font_)
        font_ = createTahomaFont();
    return font_ != nullptr;
}

HFONT createTahomaFont() {
    return CreateFontW(18, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_OUTLINE_PRECIS, CLIP_DEFAULT_PRECIS, CLEARTYPE_QUALITY, VARIABLE_PITCH,
                       L"Tahoma");
}

mainFont& sharedFont() {
    static mainFont font;
    return font;
}

}  // namespace dunmar
