#include "swf/authoring/SpriteDefinition.h"

#include "platform/twips.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/clsSWFTagDefineSprite.h"

namespace tamber {

TimelineOrigin OriginOf(const clsPropertySprite& sprite) {
    return {static_cast<Single>(sprite.baseX), static_cast<Single>(sprite.baseY)};
}

std::shared_ptr<clsSWFAdmin> NewInner(const clsSWFAdmin& admin, Long width, Long height,
                                      Long frameCount) {
    auto inner = std::make_shared<clsSWFAdmin>();
    inner->SetDimension(0, width, 0, height, 0);
    inner->FrameCount(frameCount);
    inner->Ver = admin.Ver;
    inner->FrameRate = admin.FrameRate;
    inner->colDefineObj(admin.colDefineObj());
    return inner;
}

Long AddSprite(clsSWFAdmin& admin, const std::shared_ptr<clsSWFAdmin>& inner, Long frame) {
    auto tag = std::make_shared<clsSWFTagDefineSprite>();
    tag->FrameCount = inner->FrameCount();
    tag->SaveTimeline = [inner] { inner->FramesSave(); };
    const Long id = inner->AddDefinition(tag);
    tag->ID = admin.DefineID = id;
    // The list holds the tag, which holds the timeline: it must not hold the list too.
    inner->colDefineObj(std::make_shared<clsSWFAdmin::DefinitionList>());
    for (auto& action : inner->colInitAction) {
        if (action->SpriteID < 0) action->SpriteID = id;
        admin.colInitAction.push_back(action);
    }
    inner->colInitAction.clear();
    admin.AddTag(frame, std::move(tag), true);
    admin.AddColInitAction(frame);
    return id;
}

void AddScalingGrid(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long id, Long frame) {
    if (!sprite.bl9Scale || admin.Ver < ScalingGridVersion) return;
    const auto side = [](Long grid, Long base) {
        return mdlSWFTag::ToField(static_cast<double>(grid) -
                                  static_cast<double>(base) * TwipsPerPixel);
    };
    admin.AddTag(frame,
                 admin.GetNewScalingGrid(
                     id, side(sprite.GridLeft, sprite.baseX), side(sprite.GridRight, sprite.baseX),
                     side(sprite.GridTop, sprite.baseY), side(sprite.GridBottom, sprite.baseY)),
                 true);
}

}  // namespace tamber
