#include "vector/clsVectorData2.h"

#include "vector/FreeTransformation.h"

namespace tamber {

namespace {

/// Half the width of a line, by which a stroke reaches beyond its path.
Long ReachOfLine(const LineStyleList& lines, Long index) {
    if (index < 1 || index > static_cast<Long>(lines.size())) return 0;
    return lines[static_cast<std::size_t>(index - 1)].Width / 2;
}

clsSWFTFillStyle MapFill(const clsSWFTFillStyle& fill, const FreeTransformation& mapping) {
    clsSWFTFillStyle mapped = fill.Copy();
    FillMatrix* matrix = mapped.StyleObject() ? mapped.StyleObject()->Matrix() : nullptr;
    if (matrix == nullptr) return mapped;
    if (matrix->blMatrix2) {
        const SwfPoint point =
            mapping.MapPoint({matrix->Matrix2.TranslateX, matrix->Matrix2.TranslateY});
        matrix->Matrix2.TranslateX = point.X;
        matrix->Matrix2.TranslateY = point.Y;
        return mapped;
    }
    Single angle = 0;
    const SwfPoint centre = mapping.MapPoint({matrix->GradCenterX, matrix->GradCenterY}, &angle);
    matrix->GradCenterX = centre.X;
    matrix->GradCenterY = centre.Y;
    matrix->GradAngle += angle;
    return mapped;
}

/// Replays records through a mapping.
class RecordMapper {
public:
    RecordMapper(const clsVectorData2& source, const FreeTransformation& mapping,
                 clsSWFTShapeRecords& out)
        : source_(source), mapping_(mapping), out_(out) {}

    void operator()(const std::shared_ptr<clsSWFTShapeStyleChange>& change) {
        auto mapped = std::make_shared<clsSWFTShapeStyleChange>(*change);
        if (mapped->blLineStyle)
            out_.LineWidth = ReachOfLine(*source_.colLineStyles, mapped->LineStyle);
        if (mapped->blMove) {
            const SwfPoint point = mapping_.MapPoint({mapped->MoveX, mapped->MoveY});
            mapped->MoveX = point.X;
            mapped->MoveY = point.Y;
            out_.SetXY(point.X, point.Y);
        }
        out_.colShapeRecords.emplace_back(std::move(mapped));
    }
    void operator()(const clsSWFTShapeStraightEdge& edge) {
        const SwfPoint point = mapping_.MapPoint({edge.DrawX, edge.DrawY});
        out_.DrawLineTo(point.X, point.Y);
    }
    void operator()(const clsSWFTShapeCurveEdge& edge) {
        const SwfPoint control = mapping_.MapPoint({edge.ControlX, edge.ControlY});
        const SwfPoint anchor = mapping_.MapPoint({edge.AnchorX, edge.AnchorY});
        out_.DrawCurveTo(control.X, control.Y, anchor.X, anchor.Y);
    }

private:
    const clsVectorData2& source_;
    const FreeTransformation& mapping_;
    clsSWFTShapeRecords& out_;
};

}  // namespace

std::shared_ptr<clsVectorData2> clsVectorData2::FreeTransform(Long width, Long height,
                                                              const CornerPoints& corners) const {
    const FreeTransformation mapping(width, height, corners);
    auto result = std::make_shared<clsVectorData2>();
    result->Ver = Ver;
    result->blUsesNonScalingStrokes = blUsesNonScalingStrokes;
    result->blUsesScalingStrokes = blUsesScalingStrokes;
    result->colLineStyles = colLineStyles;
    result->colFillStyles->reserve(colFillStyles->size());
    for (const clsSWFTFillStyle& fill : *colFillStyles)
        result->colFillStyles->push_back(MapFill(fill, mapping));
    result->inSWFTShapeRecords->colShapeRecords.reserve(inSWFTShapeRecords->colShapeRecords.size());
    RecordMapper mapper(*this, mapping, *result->inSWFTShapeRecords);
    for (const clsSWFTShapeRecord& record : inSWFTShapeRecords->colShapeRecords)
        std::visit(mapper, record);
    return result;
}

}  // namespace tamber
