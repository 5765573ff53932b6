#include "output/VectorPreview.h"

#include <algorithm>
#include <filesystem>

#include "platform/codepage.h"
#include "platform/paths.h"
#include "platform/rounding.h"
#include "platform/twips.h"
#include "swf/authoring/VectorDefinition.h"

namespace tamber {

namespace {

constexpr Long PreviewDepth = 256;
constexpr Long FullRatio = 65535;

SwfRect Union(const SwfRect& a, const SwfRect& b) {
    return {std::min(a.xMin, b.xMin), std::min(a.yMin, b.yMin), std::max(a.xMax, b.xMax),
            std::max(a.yMax, b.yMax)};
}

SwfRect StageOf(const clsPropertyVector& record, const clsPropertyVector* end, Long version) {
    if (end == nullptr) return {0, 0, record.Width * TwipsPerPixel, record.height * TwipsPerPixel};
    return Union(record.inVector2(false, version)->inSWFTShapeRecords->GetBounds(false),
                 end->inVector2(false, version)->inSWFTShapeRecords->GetBounds(false));
}

/// The record that a record can morph into, else null.
const clsPropertyVector* MorphTarget(const clsPropertyVector& record, Long version) {
    const auto target = record.MorphSymbol();
    const auto* end = target ? target->Property<clsPropertyVector>() : nullptr;
    return end != nullptr && record.CheckMorph(*end, version) == 0 ? end : nullptr;
}

void PlaceMorph(clsSWFAdmin& admin, const clsSWFTagPlaceObject& first, Long frames) {
    for (Long i = 1; i < frames; ++i) {
        auto tag = std::make_shared<clsSWFTagPlaceObject>();
        tag->depth = first.depth;
        tag->PlaceCnt = first.PlaceCnt;
        tag->Ratio(RoundToLong(static_cast<double>(i) * FullRatio / (frames - 1)));
        admin.AddPlaceObj(i + 1, std::move(tag));
    }
}

}  // namespace

String VectorPreviewPath() {
    std::error_code error;
    const auto folder = std::filesystem::temp_directory_path(error);
    return JoinPath(FromNarrow(folder.string()), u"SyblPrev.swf");
}

bool PreView(const clsPropertyVector& record, Long version, Long morphFrames, StringView path) {
    clsSymbolData symbol(KindVector);
    record.CopyTo(*symbol.PropertyData());
    const clsPropertyVector* end = MorphTarget(record, version);
    clsSWFAdmin admin;
    admin.Ver = version;
    // A pair that cannot morph is shown as it stands.
    if (end == nullptr) symbol.Property<clsPropertyVector>()->MorphSymbol(nullptr);
    Notices told;
    const Long last = DefineVector({admin, admin, 1, told}, symbol, VectorForm::Plain);
    if (last == 0) return false;

    const SwfRect stage = StageOf(record, end, version);
    admin.SetDimension(stage.xMin, stage.xMax, stage.yMin, stage.yMax, 0);
    auto tag = std::make_shared<clsSWFTagPlaceObject>();
    tag->depth = PreviewDepth;
    tag->PlaceCnt = record.blDivide ? record.ShapeCount() : 1;
    tag->PlaceID = last + 1 - tag->PlaceCnt;
    if (end != nullptr) tag->Ratio(0);
    admin.AddPlaceObj(1, tag);
    if (end != nullptr) PlaceMorph(admin, *tag, morphFrames);
    return admin.Save(path, told);
}

}  // namespace tamber
