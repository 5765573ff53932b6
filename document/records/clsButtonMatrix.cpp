#include "document/records/clsButtonMatrix.h"

namespace tamber {

void clsButtonMatrix::Load(clsCSV& csv) {
    *this = clsButtonMatrix();
    if (!csv.TakeBoolean()) return;
    TranslatePosX = csv.TakeLong();
    TranslatePosY = csv.TakeLong();
    EditColor.Load(csv);
}

void clsButtonMatrix::Save(clsCSV& csv) const {
    csv.Put(!CkDefault());
    if (CkDefault()) return;
    csv.Put(TranslatePosX);
    csv.Put(TranslatePosY);
    EditColor.Save(csv);
}

}  // namespace tamber
