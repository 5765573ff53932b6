#include "document/clsPropertyVector.h"

#include "document/clsSymbolData.h"

namespace tamber {

void clsPropertyVector::Load(clsCSV& csv) {
    blDivide = csv.TakeBoolean();
    if (csv.Value().empty()) return;
    blFreeTrans = csv.TakeBoolean();
    for (Long& value : FreeTransPoints) value = csv.TakeLong();
    if (csv.Value().empty()) return;
    blLineOption = csv.TakeBoolean();
    blNoLineScale = csv.TakeBoolean();
    blPixelHinting = csv.TakeBoolean();
    CapStyle = csv.TakeLong();
    JoinStyle = csv.TakeLong();
    MiterLimit = csv.TakeLong();
}

void clsPropertyVector::Save(clsCSV& csv) const {
    csv.Put(blDivide);
    csv.Put(blFreeTrans);
    for (const Long value : FreeTransPoints) csv.Put(value);
    csv.Put(blLineOption);
    csv.Put(blNoLineScale);
    csv.Put(blPixelHinting);
    csv.Put(CapStyle);
    csv.Put(JoinStyle);
    csv.Put(MiterLimit);
}

Long clsPropertyVector::MorphIndex() const {
    const auto symbol = MorphSymbol();
    return symbol ? symbol->Index : 0;
}

Long clsPropertyVector::MorphID() const {
    const auto symbol = MorphSymbol();
    return symbol ? symbol->ID : 0;
}

}  // namespace tamber
