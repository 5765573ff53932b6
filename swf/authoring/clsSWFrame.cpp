#include "swf/authoring/clsSWFrame.h"

#include <algorithm>

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
    (blDefine ? colDefine_ : colPlace_).push_back(std::move(tag));
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

void clsSWFrame::Save() {
    for (const LabelName& label : labels_) {
        clsSWFTagFrameLabel tag;
        tag.Label = label.Name;
        tag.blAnchor = label.blAnchor;
        tag.Save();
    }
    for (const auto& tag : colDefine_) tag->Save();
    for (const auto& tag : colPlace_) tag->Save();
    for (const auto& tag : colInitAction_) tag->Save();
    mdlSWFTag::SetTagHeader(TagCode::ShowFrame, 0, false);
    if (soundBlock_) soundBlock_->Save();
}

}  // namespace tamber
