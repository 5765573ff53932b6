#pragma once

#include <optional>
#include <unordered_map>

#include "swf/SwfBits.h"
#include "vector/clsVectorData.h"

namespace tamber {

/// A shape tag of a movie.
struct SwfShapeEntry {
    Long TagNum = 0;
    Long ID = 0;
    Long depth = 0;  ///< 0 until placed
    ByteView Body;   ///< behind the identifier
    /// Translation of the placement, twips.
    SwfPoint Placement;
};

/// Turns shape tags into pieces of an artwork: one piece for each set of styles that a shape uses.
/// Damage raises a RuntimeError.
class SwfShapeReader {
public:
    using BitmapTable = std::unordered_map<Long, std::shared_ptr<const clsVectorBitmap>>;

    SwfShapeReader(const BitmapTable& bitmaps, clsVectorData& artwork)
        : bitmaps_(bitmaps), artwork_(artwork) {}

    /// Appends the pieces of a shape to the artwork, moved by its placement.
    void Read(const SwfShapeEntry& entry);

private:
    Long UI(Long byteCount) { return static_cast<Long>(bits_.GetUI(byteCount)); }
    Long Bits(Long bitCount) { return static_cast<Long>(bits_.GetBits(bitCount)); }
    Long ReadCount();

    void StartPiece();
    void AddPlaceholderFill();
    void ClosePiece();
    bool HasStyles() const;

    void ReadStyles();
    void ReadFillStyles();
    void ReadLineStyles();
    /// Nothing for a bitmap that the file does not hold.
    std::optional<clsSWFTFillStyle> ReadSwfFillStyle();
    clsSWFTFillStyle ReadGradient(Long mode);
    std::optional<clsSWFTFillStyle> ReadBitmapFill(Long mode);
    clsSWFTLineStyle ReadSwfLineStyle();
    clsSWFTLineStyle ReadSwfLineStyles2();
    void ReadMatrix(FillMatrix& matrix);
    Long ReadColor();

    void ReadSwfShapeRecords();
    void ReadStyleChange(Long flags);
    void ReadStraightEdge(Long bits);
    void ReadCurveEdge(Long bits);
    void StartPath();
    void SelectLine(Long index);
    Long FillIndex(Long index) const;
    Long LineIndex(Long index) const;
    clsSWFTShapeRecords& Records() { return *piece_->inSWFTShapeRecords; }
    void Charge(Long cost);

    const BitmapTable& bitmaps_;
    clsVectorData& artwork_;
    /// What may still be stored, in about the room of an edge. Far beyond any real drawing; it
    /// keeps a file of a few bytes from growing without end.
    Long budget_ = 1 << 22;
    const SwfShapeEntry* entry_ = nullptr;
    /// What is left of the entry's body.
    SwfBits bits_{{}};
    Long strokeFlags_ = 0;
    std::shared_ptr<clsVectorData2> piece_;
    /// Where each fill index of the file stands in the piece's table.
    std::vector<Long> fillIndexes_;
    Long fillBits_ = 0;
    Long lineBits_ = 0;
    SwfPoint pen_;
    /// The piece's pen stands at pen_.
    bool penDown_ = false;
};

}  // namespace tamber
