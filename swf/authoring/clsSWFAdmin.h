#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/Notice.h"
#include "script/ScriptCompiler.h"
#include "swf/authoring/clsSWFrame.h"
#include "swf/clsSWFTag.h"
#include "swf/tags/clsFontAdmin.h"
#include "swf/tags/clsSWFTagDefineBitsJPEG.h"
#include "swf/tags/clsSWFTagDefineBitsLossless.h"
#include "swf/tags/clsSWFTagDefineScalingGrid.h"
#include "swf/tags/clsSWFTagDefineShape.h"
#include "swf/tags/clsSWFTagDefineVideoStream.h"
#include "swf/tags/clsSWFTagImport.h"
#include "swf/tags/clsSWFTagPlaceObject.h"
#include "vector/clsVectorData2.h"

namespace tamber {

/// A movie, or one sprite's timeline, under construction: tags by frame, definitions by identifier.
class clsSWFAdmin {
public:
    using DefinitionList = std::vector<SWFTagReference>;

    Long Ver = 6;
    Single FrameRate = 12.0f;
    bool blCompress = false;
    /// Red in the low byte; negative: no background tag is written.
    Long BackGroundColor = -1;
    /// Fonts of the movie, whose identifiers are the first ones; null for a sprite's own timeline
    /// and a movie without text. Set before InitSWF.
    std::shared_ptr<clsFontAdmin> inFontAdmin;
    /// The last identifier handed out.
    Long DefineID = 0;
    std::vector<std::shared_ptr<clsSWFTagDoAction>> colInitAction;

    clsSWFAdmin() { InitSWF(); }

    /// Empties the movie.
    void InitSWF();
    void SetDimension(Long x1, Long x2, Long y1, Long y2, Long margin);

    const std::shared_ptr<DefinitionList>& colDefineObj() const { return colDefineObj_; }
    /// Shares another movie's definitions and continues its numbering.
    void colDefineObj(std::shared_ptr<DefinitionList> definitions);
    /// Definition of an identifier, or null.
    clsSWFTag* DefineObj(Long id) const;

    Long FrameCount() const { return static_cast<Long>(frames_.size()); }
    /// A count below 1 becomes 1; frames that stay keep their tags.
    void FrameCount(Long count);

    void SetFrameLabel(Long frame, StringView name, bool blAnchor);
    /// False for a frame below 1 or no tag. The frame table grows as needed. The definition of a
    /// text brings its font into the frame.
    bool AddTag(Long frame, SWFTagReference tag, bool blDefine);
    bool AddPlaceObj(Long frame, std::shared_ptr<clsSWFTagPlaceObject> tag);
    /// As AddPlaceObj, for a placement that nothing changes any more: its bytes are kept, not it.
    bool AddWrittenPlace(Long frame, clsSWFTagPlaceObject& tag);
    /// Counts a placement of `count` definitions from `id` on.
    void IncPlaceCount(Long id, Long count);
    /// As AddTag. A frame that has a block already refuses, with a warning once a movie.
    bool AddTagSoundBlock(Long frame, SWFTagReference block, Notices& told);
    void AddInitAction(std::shared_ptr<clsSWFTagDoAction> action, Long orderNum, Long spriteID);
    /// Actions of a script; null when it has none. An empty text leaves `ok` as it is, any other
    /// sets it to whether the text compiled.
    std::shared_ptr<clsSWFTagDoAction> GetNewDoAction(StringView text, bool& ok,
                                                      ScriptCompiler& compiler) const;
    /// Hands the waiting init actions to a frame.
    void AddColInitAction(Long frame);
    void AddTagEnd(SWFTagReference tag) { colTailTag_.push_back(std::move(tag)); }

    /// Appends a definition and gives it the next identifier, which is the result.
    Long AddDefinition(SWFTagReference tag);
    std::shared_ptr<clsSWFTagDefineBitsLossless> GetNewBitmap(Bytes stream, Long bitCount,
                                                              Long width, Long height);
    std::shared_ptr<clsSWFTagDefineBitsJPEG> GetNewJpeg(Bytes stream, Bytes alpha);
    std::shared_ptr<clsSWFTagDefineShape> GetNewBitmapShape(Long bitmapID, Long width, Long height);
    std::shared_ptr<clsSWFTagDefineShape> GetNewShape(Long ver);
    /// A shape of an artwork: of the artwork's version from version 8 of the movie on, else of
    /// `ver`. Its lists are shared.
    std::shared_ptr<clsSWFTagDefineShape> GetNewShape(Long ver, const clsVectorData2& data);
    /// A morph from one shape to another of the same structure.
    std::shared_ptr<clsSWFTagDefineShape> GetNewMorphShape(const clsVectorData2& start,
                                                           const clsVectorData2& end);
    std::shared_ptr<clsSWFTagImport> GetNewImport(StringView url, StringView name);
    std::shared_ptr<clsSWFTagDefineScalingGrid> GetNewScalingGrid(Long id, Long xMin, Long xMax,
                                                                  Long yMin, Long yMax);

    /// The place of a video that a script attaches; pixels.
    std::shared_ptr<clsSWFTagDefineVideoStream> GetNewVideoStreamEmp(Long width, Long height);

    /// Writes background, fonts, frames and tail into the stream: fonts of frame 1 before it,
    /// others behind it.
    void FramesSave();
    /// Writes the whole file. False when it could not be written; an earlier file then stays.
    bool Save(StringView path, Notices& told);
    /// Hands the bytes of the whole file over; the result is that of `take`.
    bool SaveTo(const std::function<bool(ByteView)>& take, Notices& told);

private:
    void SaveHeader();
    void SaveFonts(bool first) const;
    void ReserveFonts();
    void NoteFont(Long frame, const clsSWFTag& tag);

    std::shared_ptr<DefinitionList> colDefineObj_;
    std::vector<clsSWFrame> frames_;
    std::vector<SWFTagReference> colTailTag_;
    SwfRect dimension_;
    bool blStreamWarning_ = true;
};

}  // namespace tamber
