#pragma once

#include <memory>
#include <vector>

#include "swf/clsSWFTag.h"
#include "swf/tags/clsSWFTagDoAction.h"

namespace tamber {

/// The tags of one frame.
class clsSWFrame {
public:
    /// An empty name, or one that the frame has already, is passed over.
    void SetLabelName(StringView name, bool blAnchor);
    /// Definitions stand before all other tags of the frame.
    void AddTag(SWFTagReference tag, bool blDefine);
    /// Bytes of a tag that is no definition, and that nothing changes any more.
    void AddWritten(ByteView tag) { written_.insert(written_.end(), tag.begin(), tag.end()); }
    /// False when the frame has a sound block already; the first stays.
    bool AddTagSoundBlock(SWFTagReference block);
    bool HasSoundBlock() const { return soundBlock_ != nullptr; }
    /// Merges by OrderNum: before the first with a greater one; a negative one goes last.
    void AddColInitAction(const std::vector<std::shared_ptr<clsSWFTagDoAction>>& actions);
    /// Labels, definitions, placements, init actions, ShowFrame, and only then the sound block,
    /// where streaming players look for it.
    void Save();

private:
    void SavePlaced();

    struct LabelName {
        String Name;
        bool blAnchor;
    };

    std::vector<LabelName> labels_;
    std::vector<SWFTagReference> colDefine_;
    /// A tag that is written when the frame is.
    struct PlacedTag {
        SWFTagReference Tag;
        std::size_t Behind;  ///< bytes of `written_` that stand before it
    };
    std::vector<PlacedTag> colPlace_;
    Bytes written_;
    std::vector<std::shared_ptr<clsSWFTagDoAction>> colInitAction_;
    SWFTagReference soundBlock_;
};

}  // namespace tamber
