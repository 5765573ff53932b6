#include "document/records/clsPropertyMovie.h"

namespace tamber {

void clsPropertyMovie::Load(clsCSV& csv) {
    StartFrame = csv.TakeLong();
    blSound = csv.TakeBoolean();
    blSmoothing = csv.TakeBoolean();
}

void clsPropertyMovie::Save(clsCSV& csv) const {
    csv.Put(StartFrame);
    csv.Put(blSound);
    csv.Put(blSmoothing);
}

}  // namespace tamber
