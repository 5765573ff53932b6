#include "vector/PdrReader.h"

#include <limits>
#include <memory>
#include <unordered_map>

#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "swf/tags/clsSWFTagDefineShape.h"
#include "vector/LoadProgress.h"
#include "vector/PdrObject.h"

namespace tamber {

namespace {

constexpr Long FirstUnknownVersion = 31;
/// Pixels; in twips it still fits a Long.
constexpr Long MaxSize = std::numeric_limits<Long>::max() / 20;
constexpr std::uint32_t AlphaMask = 0xFF000000;

Long TakeSize(clsCSV& cells) {
    const Long size = cells.TakeLong();
    if (size < 0 || size > MaxSize) throw RuntimeError(ErrorOverflow, u"ReadPdrFile", u"");
    return size;
}

/// Calls `visit` with each colour of a shape.
template <class Visit>
void VisitColors(clsSWFTagDefineShape& shape, const Visit& visit) {
    for (const clsSWFTFillStyle& fill : *shape.colFillStyles) {
        if (auto* solid = fill.StyleAs<clsSWFTFillSolid>()) visit(solid->SolidColor);
        if (auto* gradient = fill.StyleAs<clsSWFTFillLinearRadial>())
            for (Long& color : gradient->ColorTbl) visit(color);
    }
    for (clsSWFTLineStyle& line : *shape.colLineStyles) visit(line.Color);
}

class PdrFile {
public:
    PdrFile(clsCSV& cells, LoadProgress& progress) : cells_(cells), progress_(progress) {}

    bool Read(clsVector& vector) {
        const StringView tag = cells_.Value();
        if (!Like(tag, u"PDR###")) return false;
        version_ = ToLong(tag.substr(3));
        if (version_ >= FirstUnknownVersion) {
            ShowMessage(u"非対応のバージョンです。", ProgramTitle, MessageIcon::Warning);
            return false;
        }
        cells_.CrLf();
        vector.Width = TakeSize(cells_);
        vector.height = TakeSize(cells_);
        cells_.SetPosition(0, ObjectCountRow);
        const Long count = cells_.TakeLong();
        cells_.CrLf();
        for (Long i = 0; i < count; ++i) {
            progress_.Update(i, count);
            ReadObject();
        }
        MakeOpaque();
        vector.inVector = TakeArtwork();
        return true;
    }

private:
    static constexpr Long ObjectCountRow = 3;

    void ReadObject() {
        PdrObject object;
        object.Read(cells_, version_);
        clsSWFTagDefineShape& shape = object.blShared ? FindShapeByID(object.shapeID) : AddShape();
        SetFill(shape, object);
        SetLine(shape, object);
        PdrContour(object.Points, object.blClosed, *shape.ShapeRecords).Draw();
    }

    clsSWFTagDefineShape& AddShape() {
        shapes_.push_back(std::make_unique<clsSWFTagDefineShape>());
        return *shapes_.back();
    }

    clsSWFTagDefineShape& FindShapeByID(Long id) {
        clsSWFTagDefineShape*& shape = shapesByID_[id];
        if (shape == nullptr) {
            shape = &AddShape();
            shape->ID = id;
        }
        return *shape;
    }

    /// The first contour of a shape decides on its fill.
    static void SetFill(clsSWFTagDefineShape& shape, const PdrObject& object) {
        clsSWFTShapeRecords& records = *shape.ShapeRecords;
        if (object.fillKind == PdrObject::NoFill || !object.blClosed) {
            if (records.FillStyle0 != 0) records.SetFill0(0);
        } else if (records.colShapeRecords.empty()) {
            records.SetFill0(shape.AddNewFillStyle(object.MakeFill()));
        }
    }

    static void SetLine(clsSWFTagDefineShape& shape, const PdrObject& object) {
        clsSWFTShapeRecords& records = *shape.ShapeRecords;
        if (object.lineVisible) {
            records.SetLine(shape.AddNewLineStyle(object.lineWidth, object.lineColor));
            records.LineWidth = object.lineWidth / 2;
        } else if (records.LineStyle != 0) {
            records.SetLine(0);
            records.LineWidth = 0;
        }
    }

    /// Files whose colours are plain RGB leave every high byte 0; one with alpha uses it somewhere.
    void MakeOpaque() {
        std::uint32_t alphas = 0;
        for (const auto& shape : shapes_)
            VisitColors(*shape, [&](Long color) { alphas |= static_cast<std::uint32_t>(color); });
        if ((alphas & AlphaMask) != 0) return;
        for (const auto& shape : shapes_)
            VisitColors(*shape, [](Long& color) {
                color = static_cast<Long>(static_cast<std::uint32_t>(color) | AlphaMask);
            });
    }

    std::shared_ptr<clsVectorData> TakeArtwork() {
        auto artwork = std::make_shared<clsVectorData>();
        artwork->colShapeData.reserve(shapes_.size());
        for (const auto& shape : shapes_) {
            auto piece = std::make_shared<clsVectorData2>();
            piece->colFillStyles = shape->colFillStyles;
            piece->colLineStyles = shape->colLineStyles;
            piece->inSWFTShapeRecords = shape->ShapeRecords;
            artwork->colShapeData.push_back(std::move(piece));
        }
        return artwork;
    }

    clsCSV& cells_;
    LoadProgress& progress_;
    Long version_ = 0;
    /// In the order of first use.
    std::vector<std::unique_ptr<clsSWFTagDefineShape>> shapes_;
    std::unordered_map<Long, clsSWFTagDefineShape*> shapesByID_;
};

/// `load` fills the cells and tells whether it could.
template <class Load>
bool ReadCells(StringView fileName, clsVector& vector, const Load& load) {
    try {
        LoadProgress progress(fileName);
        clsCSV cells;
        return load(cells) && PdrFile(cells, progress).Read(vector);
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

bool ReadPdrFile(StringView path, clsVector& vector) {
    return ReadCells(GetFileName(path), vector,
                     [&](clsCSV& cells) { return cells.LoadFromFile(path); });
}

bool ReadPdrBytes(ByteView bytes, clsVector& vector) {
    return ReadCells({}, vector, [&](clsCSV& cells) {
        cells.Text(DecodeAnsi(bytes));
        return true;
    });
}

}  // namespace tamber
