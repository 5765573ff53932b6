#include "document/records/clsButtonMatrix.h"

namespace tamber {

void clsButtonMatrix::Load(clsCSV& csv) {
    *this = clsButtonMatrix();
    if (csv.TakeBoolean()) LoadFields(*this, csv);
}

void clsButtonMatrix::Save(clsCSV& csv) const {
    csv.Put(!CkDefault());
    if (!CkDefault()) SaveFields(*this, csv);
}

}  // namespace tamber
