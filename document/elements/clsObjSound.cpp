#include "document/elements/clsObjSound.h"

namespace tamber {

void clsObjSound::Load(clsCSV& csv) {
    eEvent = csv.TakeLong();
    Loops = csv.TakeLong();
    VolumeL = csv.TakeLong();
    VolumeR = csv.TakeLong();
    StartTime = csv.TakeLong();
    StopTime = csv.TakeLong();
    if (!csv.Value().empty()) FadeInTime = csv.TakeLong();
    if (!csv.Value().empty()) FadeOutTime = csv.TakeLong();
}

void clsObjSound::Save(clsCSV& csv) const {
    csv.Put(eEvent);
    csv.Put(Loops);
    csv.Put(VolumeL);
    csv.Put(VolumeR);
    csv.Put(StartTime);
    csv.Put(StopTime);
    csv.Put(FadeInTime);
    csv.Put(FadeOutTime);
}

void clsObjSound::CopyTo(clsElement& target, bool) const {
    if (auto* other = dynamic_cast<clsObjSound*>(&target)) *other = *this;
}

bool clsObjSound::Compare(const clsElement& other) const {
    const auto* same = dynamic_cast<const clsObjSound*>(&other);
    return same != nullptr && eEvent == same->eEvent && Loops == same->Loops &&
           VolumeL == same->VolumeL && VolumeR == same->VolumeR && StartTime == same->StartTime &&
           StopTime == same->StopTime && FadeInTime == same->FadeInTime &&
           FadeOutTime == same->FadeOutTime;
}

}  // namespace tamber
