#include "swf/authoring/clsSWFrame.h"

#include <algorithm>

#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"
#include "swf/tags/clsSWFTagFrameLabel.h"

namespace tamber {

void clsSWFrame::SetLabelName(StringView name, bool blAnchor) {
    if (name.empty()) return;
    const bool known = std::any_of(labels_.begin(), labels_.end(),
                                   [name](const LabelName& label) { return label.Name == name; });
    if (!known) labels_.push_back({String(name), blAnchor});
}

void clsSWFrame::AddTag(SWFTagReference tag, bool blDefine) {
    if (blDefine)
        colDefine_.push_back(std::move(tag));
    else
        colPlace_.push_back({std::move(tag), written_.size()});
}

bool clsSWFrame::AddTagSoundBlock(SWFTagReference block) {
    if (soundBlock_) return false;
    soundBlock_ = std::move(block);
    return true;
}

void clsSWFrame::AddColInitAction(const std::vector<std::shared_ptr<clsSWFTagDoAction>>& actions) {
    for (const auto& action : actions) {
        auto place = colInitAction_.end();
        if (action->OrderNum >= 0)
            place =
                std::find_if(colInitAction_.begin(), colInitAction_.end(),
                             [&](const auto& other) { return other->OrderNum > action->OrderNum; });
        colInitAction_.insert(place, action);
    }
}

void clsSWFrame::SavePlaced() {
    ByteView rest(written_);
    std::size_t done = 0;
    for (const PlacedTag& placed : colPlace_) {
        mdlSWFTag::SetByteArray(rest.first(placed.Behind - done));
        rest = rest.subspan(placed.Behind - done);
        done = placed.Behind;
        placed.Tag->Save();
    }
    mdlSWFTag::SetByteArray(rest);
}

void clsSWFrame::Save() {
    for (const LabelName& label : labels_) {
        clsSWFTagFrameLabel tag;
        tag.Label = label.Name;
        tag.blAnchor = label.blAnchor;
        tag.Save();
    }
    for (const auto& tag : colDefine_) tag->Save();
    SavePlaced();
    for (const auto& tag : colInitAction_) tag->Save();
    mdlSWFTag::SetTagHeader(TagCode::ShowFrame, 0, false);
    if (soundBlock_) soundBlock_->Save();
}

}  // namespace tamber
