#include "document/records/clsPropertyBmp.h"

namespace tamber {

void clsPropertyBmp::Load(clsCSV& csv) {
    blToumei = csv.TakeBoolean();
    ToumeiColorRed = csv.TakeByte();
    ToumeiColorGreen = csv.TakeByte();
    ToumeiColorBlue = csv.TakeByte();
    blShading = csv.TakeBoolean();
    ShadingType = csv.TakeText() == u"BL" ? 2 : 1;
    ShadingNum = csv.TakeLong();
    blJpegComp = csv.TakeBoolean();
    JpegQuality = csv.TakeLong();
}

void clsPropertyBmp::Save(clsCSV& csv) const {
    csv.Put(blToumei);
    csv.Put(Long{ToumeiColorRed});
    csv.Put(Long{ToumeiColorGreen});
    csv.Put(Long{ToumeiColorBlue});
    csv.Put(blShading);
    csv.Put(ShadingType == 2 ? StringView(u"BL") : StringView(u"CR"));
    csv.Put(ShadingNum);
    csv.Put(blJpegComp);
    csv.Put(JpegQuality);
}

}  // namespace tamber
