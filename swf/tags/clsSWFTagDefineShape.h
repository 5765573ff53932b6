#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"
#include "swf/tags/clsSWFTShapeRecords.h"

namespace tamber {

/// DefineShape to DefineShape4 (`Ver` 1 to 4), DefineMorphShape (-1) and DefineMorphShape2 (-2):
/// identifier, bounds, styles, records; a morph has both states and the offset of its end records.
class clsSWFTagDefineShape : public clsSWFTag {
public:
    Long Ver = 3;
    /// Placements counted. A shape that nothing places writes no bytes.
    Long PlaceCnt = 0;
    bool blUsesNonScalingStrokes = false;
    bool blUsesScalingStrokes = false;
    Long ID = 0;
    std::shared_ptr<FillStyleList> colFillStyles = std::make_shared<FillStyleList>();
    std::shared_ptr<LineStyleList> colLineStyles = std::make_shared<LineStyleList>();
    std::shared_ptr<FillStyleList> colFillStyles2;
    std::shared_ptr<LineStyleList> colLineStyles2;
    std::shared_ptr<clsSWFTShapeRecords> ShapeRecords = std::make_shared<clsSWFTShapeRecords>();
    std::shared_ptr<clsSWFTShapeRecords> ShapeRecords2;

    /// Each appends a style and returns its index, from 1.
    Long AddNewFillStyle(clsSWFTFillStyle fill);
    Long AddNewLineStyle(Long width, Long color);
    Long AddNewLineStyle2(clsSWFTLineStyle line);
    Long AddBitmapFill(Long bitmapID, Long width, Long height);

    Long TagNum() const override;
    bool IncPlaceCnt() override {
        ++PlaceCnt;
        return true;
    }
    void Save() override;

private:
    bool IsMorph() const { return Ver < 0; }
    void SaveStrokeFlags() const;
    void SaveShapeStyles() const;
    std::size_t SaveMorphStyles() const;
};

}  // namespace tamber
