#include "document/elements/clsObjBackGround.h"

namespace tamber {

void clsObjBackGround::BackColor(Long color) {
    BackColorRed = static_cast<Byte>(color & 255);
    BackColorGreen = static_cast<Byte>(color >> 8 & 255);
    BackColorBlue = static_cast<Byte>(color >> 16 & 255);
}

}  // namespace tamber
