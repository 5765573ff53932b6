#pragma once

#include <functional>

#include "vector/SvgPen.h"
#include "vector/SvgProgress.h"
#include "vector/SvgScanner.h"
#include "vector/SvgStyleState.h"
#include "vector/clsVectorData.h"

namespace tamber {

/// Turns the drawing elements of a text into the shapes of an artwork.
class SvgBody {
public:
    SvgBody(SvgDocument& document, SvgProgress& progress, clsVectorData& artwork)
        : document_(document), progress_(progress), artwork_(artwork) {}

    /// Transformations around what is read next, the outermost first.
    SvgMatrixList Matrices;

    /// Reads up to the end of the root element or of the text.
    void ParseSvgBody(SvgScanner& scanner, const SvgStyleState& state);

private:
    struct Level {
        SvgStyleState State;
        /// Transformations in force outside.
        std::size_t Matrices;
    };
    using Levels = std::vector<Level>;
    using Draw = std::function<void(SvgPen&)>;
    /// Takes an attribute that is no part of the style; false when it means nothing to the element.
    using TakeAttribute = std::function<bool(const SvgAttribute&)>;

    void ReadTag(SvgScanner& scanner, std::string_view name, Levels& levels);
    void OpenLevel(SvgScanner& scanner, Levels& levels);
    void CloseLevel(Levels& levels);
    bool ReadShape(SvgScanner& scanner, std::string_view name, const SvgStyleState& state);
    void ReadSvgPathElement(SvgScanner& scanner, std::string_view name, SvgStyleState state);
    void ReadSvgRectElement(SvgScanner& scanner, SvgStyleState state);
    void ReadSvgLineElement(SvgScanner& scanner, SvgStyleState state);
    void ReadSvgUseElement(SvgScanner& scanner, SvgStyleState state);
    /// Draws what a reuse at `place` of the text refers to, unless it would contain itself.
    void DrawUse(std::string_view id, std::size_t place, const SvgStyleState& state);
    /// Reads attributes into the state, transformations onto the list, the rest through `take`.
    void ParseSvgAttributes(SvgScanner& scanner, SvgStyleState& state, SvgMatrixList& matrices,
                            const TakeAttribute& take);
    void AddShape(const SvgStyleState& state, const SvgMatrixList& own, bool fill,
                  const Draw& draw);
    clsSWFTFillStyle MakeFill(const SvgStyleState& state, const SvgTransformation& transformation,
                              const Draw& draw);
    SwfRect ExtentOf(const Draw& draw);

    SvgDocument& document_;
    SvgProgress& progress_;
    clsVectorData& artwork_;
    /// Places of the elements that are being reused.
    std::vector<std::size_t> uses_;
};

}  // namespace tamber
