#include "vector/ShapeFlattening.h"

#include <algorithm>

namespace tamber {

namespace {

/// Appends the records of one piece after another to a new shape.
class Flattening {
public:
    Flattening(const LineOptions* options, bool keepStyles)
        : options_(options), keepStyles_(keepStyles) {}

    std::shared_ptr<clsVectorData2> Run(const clsVectorData& artwork) {
        SetKind(artwork);
        for (const auto& piece : artwork.colShapeData) AddPiece(*piece);
        return result_;
    }

    void operator()(const std::shared_ptr<clsSWFTShapeStyleChange>& change) {
        auto copy = std::make_shared<clsSWFTShapeStyleChange>(*change);
        if (options_ != nullptr && !copy->colLineStyles.empty())
            copy->colLineStyles = options_->Apply(copy->colLineStyles);
        if (!keepStyles_) ShiftStyles(*copy);
        if (first_) BeginPiece(*copy);
        first_ = false;
        FollowPen(*copy);
        Out().colShapeRecords.emplace_back(std::move(copy));
    }
    void operator()(const clsSWFTShapeStraightEdge& edge) {
        Out().DrawLineTo(edge.DrawX, edge.DrawY);
    }
    void operator()(const clsSWFTShapeCurveEdge& edge) {
        Out().DrawCurveTo(edge.ControlX, edge.ControlY, edge.AnchorX, edge.AnchorY);
    }

private:
    clsSWFTShapeRecords& Out() { return *result_->inSWFTShapeRecords; }

    void SetKind(const clsVectorData& artwork) {
        std::size_t records = 0;
        for (const auto& piece : artwork.colShapeData) {
            result_->Ver = std::max(result_->Ver, piece->Ver);
            records += piece->inSWFTShapeRecords->colShapeRecords.size();
        }
        Out().colShapeRecords.reserve(records);
        const auto any = [&artwork](auto flag) {
            return std::any_of(artwork.colShapeData.begin(), artwork.colShapeData.end(), flag);
        };
        result_->blUsesNonScalingStrokes =
            any([](const auto& piece) { return piece->blUsesNonScalingStrokes; });
        result_->blUsesScalingStrokes =
            any([](const auto& piece) { return piece->blUsesScalingStrokes; });
        if (options_ == nullptr) return;
        result_->Ver = 4;
        result_->blUsesNonScalingStrokes = options_->blNoLineScale;
        result_->blUsesScalingStrokes = !options_->blNoLineScale;
    }

    void AddPiece(const clsVectorData2& piece) {
        piece_ = &piece;
        first_ = true;
        lines_ = options_ != nullptr ? options_->Apply(*piece.colLineStyles) : *piece.colLineStyles;
        for (const clsSWFTShapeRecord& record : piece.inSWFTShapeRecords->colShapeRecords)
            std::visit(*this, record);
        if (keepStyles_) return;
        Append(*result_->colFillStyles, *piece.colFillStyles);
        Append(*result_->colLineStyles, lines_);
    }

    template <class List>
    static void Append(List& list, const List& more) {
        list.insert(list.end(), more.begin(), more.end());
    }

    void ShiftStyles(clsSWFTShapeStyleChange& change) const {
        const auto fills = static_cast<Long>(result_->colFillStyles->size());
        const auto lines = static_cast<Long>(result_->colLineStyles->size());
        if (change.FillStyle0 != 0) change.FillStyle0 += fills;
        if (change.FillStyle1 != 0) change.FillStyle1 += fills;
        if (change.LineStyle != 0) change.LineStyle += lines;
    }

    /// The styles of the piece before end here, and its own tables come in.
    void BeginPiece(clsSWFTShapeStyleChange& change) const {
        change.blFillStyle0 = change.blFillStyle1 = change.blLineStyle = true;
        if (!keepStyles_ || change.hasNewStyles()) return;
        change.colFillStyles = *piece_->colFillStyles;
        change.colLineStyles = lines_;
    }

    /// Bounds depend on the line's width and on where the pen goes.
    void FollowPen(const clsSWFTShapeStyleChange& change) {
        if (change.blLineStyle) Out().LineWidth = ReachOf(change);
        if (change.blMove) Out().SetXY(change.MoveX, change.MoveY);
    }

    Long ReachOf(const clsSWFTShapeStyleChange& change) const {
        const Long before = keepStyles_ ? 0 : static_cast<Long>(result_->colLineStyles->size());
        const Long index = change.LineStyle - before;
        if (change.LineStyle == 0 || index < 1 || index > static_cast<Long>(lines_.size()))
            return 0;
        return lines_[static_cast<std::size_t>(index - 1)].Width / 2;
    }

    const LineOptions* options_;
    bool keepStyles_;
    std::shared_ptr<clsVectorData2> result_ = std::make_shared<clsVectorData2>();
    const clsVectorData2* piece_ = nullptr;
    LineStyleList lines_;
    bool first_ = false;
};

}  // namespace

std::shared_ptr<clsVectorData2> FlattenKeepingStyles(const clsVectorData& artwork,
                                                     const LineOptions* options) {
    return Flattening(options, true).Run(artwork);
}

std::shared_ptr<clsVectorData2> FlattenIntoOneTable(const clsVectorData& artwork,
                                                    const LineOptions* options) {
    return Flattening(options, false).Run(artwork);
}

}  // namespace tamber
