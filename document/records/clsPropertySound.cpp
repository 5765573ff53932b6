#include "document/records/clsPropertySound.h"

namespace tamber {

void clsPropertySound::Load(clsCSV& csv) {
    if (!csv.Value().empty()) blWavRead = csv.TakeBoolean();
}

void clsPropertySound::Save(clsCSV& csv) const {
    csv.Put(blWavRead);
}

}  // namespace tamber
