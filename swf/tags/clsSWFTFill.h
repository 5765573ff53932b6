#pragma once

#include <memory>
#include <vector>

#include "swf/SwfTypes.h"

namespace tamber {

/// Matrix of a gradient or bitmap fill: held as parts, or as the record read from a file.
struct FillMatrix {
    Single GradScaleX = 1;
    Single GradScaleY = 1;
    Single GradAngle = 0;  ///< degrees
    Long GradCenterX = 0;  ///< twips
    Long GradCenterY = 0;
    Single skewX2 = 0;  ///< tangents
    Single skewY2 = 0;
    bool blMatrix2 = false;  ///< Matrix2 is in force
    SwfMatrix Matrix2;

    void Save() const;
};

/// What a fill style paints with. `other` is the end state in a morph pair, else null.
class clsSWFTFill {
public:
    virtual ~clsSWFTFill() = default;
    virtual void Save(const clsSWFTFill* other) const = 0;
    virtual std::shared_ptr<clsSWFTFill> Copy() const = 0;
    /// The matrix of a gradient or bitmap fill that is held here, else null.
    virtual FillMatrix* Matrix() { return nullptr; }
};

/// One colour: red, green, blue, alpha.
class clsSWFTFillSolid : public clsSWFTFill {
public:
    Long SolidColor = 0;  ///< red in the low byte, alpha in the high one

    void Save(const clsSWFTFill* other) const override;
    std::shared_ptr<clsSWFTFill> Copy() const override {
        return std::make_shared<clsSWFTFillSolid>(*this);
    }
};

/// Linear or radial gradient: matrix, count (from version 8 on with spread and interpolation
/// modes), then ratio and RGBA of each colour.
class clsSWFTFillLinearRadial : public clsSWFTFill {
public:
    FillMatrix inMatrix;
    std::vector<Long> ColorTbl;
    std::vector<Byte> ColorPosTbl;
    Long spreadMode = 0;
    Long interpolationMode = 0;

    void Save(const clsSWFTFill* other) const override;
    std::shared_ptr<clsSWFTFill> Copy() const override {
        return std::make_shared<clsSWFTFillLinearRadial>(*this);
    }
    FillMatrix* Matrix() override { return &inMatrix; }

private:
    std::size_t EntryCount() const;
    void SaveEntry(std::size_t index) const;
    void SaveMorph(const clsSWFTFillLinearRadial& other) const;
};

/// Radial gradient with a focal point, 8.8 fixed point behind the colours.
class clsSWFTFillFocalRadial : public clsSWFTFillLinearRadial {
public:
    Long FocalPoint = 0;

    void Save(const clsSWFTFill* other) const override;
    std::shared_ptr<clsSWFTFill> Copy() const override {
        return std::make_shared<clsSWFTFillFocalRadial>(*this);
    }
};

/// A bitmap definition that fills refer to before its identifier is known.
struct BitmapReference {
    Long ID = 0;
};

/// Repeating or clipped bitmap: identifier, matrix.
class clsSWFTFillBmpClippedTiled : public clsSWFTFill {
public:
    std::shared_ptr<const BitmapReference> Bitmap;
    FillMatrix inMatrix;

    void Save(const clsSWFTFill* other) const override;
    std::shared_ptr<clsSWFTFill> Copy() const override {
        return std::make_shared<clsSWFTFillBmpClippedTiled>(*this);
    }
    FillMatrix* Matrix() override { return &inMatrix; }
};

/// Clipped bitmap at 20 twips a pixel, for the shape of a bitmap symbol.
class clsSWFTFillStyleBitmap : public clsSWFTFill {
public:
    static constexpr Long FillType = 65;

    Long BitmapID = 0;
    Long Width = 0;  ///< offset to the left, pixels
    Long height = 0;

    void Save(const clsSWFTFill* other) const override;
    std::shared_ptr<clsSWFTFill> Copy() const override {
        return std::make_shared<clsSWFTFillStyleBitmap>(*this);
    }
};

}  // namespace tamber
