#include "vector/SvgReader.h"

#include <algorithm>
#include <array>

#include "platform/RuntimeError.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "vector/SvgBody.h"
#include "vector/SvgDecoding.h"
#include "vector/SvgIds.h"
#include "vector/SvgNumbers.h"

namespace tamber {

namespace {

/// Reads one decoded drawing.
class SvgReader {
public:
    SvgReader(std::string_view text, StringView progressText, clsVector& vector)
        : vector_(vector),
          progress_(progressText, text.size()),
          body_(document_, progress_, *vector.inVector) {
        document_.Text = text;
    }
    ~SvgReader() { vector_.LeftOut = std::move(document_.LeftOut.Names); }
    SvgReader(const SvgReader&) = delete;
    SvgReader& operator=(const SvgReader&) = delete;

    bool Read() {
        const std::size_t root = FindRoot();
        if (root == std::string_view::npos) return false;
        SvgScanner scanner(document_.Text, root, document_.LeftOut);
        SvgStyleState state;
        ReadRoot(scanner, state);
        ScanSvgIds(document_, scanner.Position());
        body_.ParseSvgBody(scanner, state);
        SetSize();
        return !vector_.inVector->colShapeData.empty();
    }

private:
    /// Place behind the name of the root element.
    std::size_t FindRoot() {
        static constexpr std::string_view Mark = "<svg";
        const std::size_t prologEnd = std::min(document_.Text.find(Mark), document_.Text.size());
        const std::size_t declaration = document_.Text.substr(0, prologEnd).find("<?xml");
        const std::size_t behind = ReadSvgEntities(
            document_, declaration == std::string_view::npos ? 0 : declaration, prologEnd);
        const std::size_t found = document_.Text.find(Mark, behind);
        return found == std::string_view::npos ? found : found + Mark.size();
    }

    void ReadRoot(SvgScanner& scanner, SvgStyleState& state) {
        std::string_view width;
        std::string_view height;
        std::string_view transform;
        for (SvgAttribute attribute; scanner.NextAttribute(attribute);) {
            if (attribute.Name == "width")
                width = attribute.Value;
            else if (attribute.Name == "height")
                height = attribute.Value;
            else if (attribute.Name == "viewBox")
                ReadViewBox(attribute.Value);
            else if (attribute.Name == "transform")
                transform = attribute.Value;
            else
                state.Apply(attribute, document_);
        }
        width_ = SideOf(width, viewBox_[2]);
        height_ = SideOf(height, viewBox_[3]);
        if (HasViewBox()) FitViewBox();
        ParseTransformList(transform, body_.Matrices);
    }

    void ReadViewBox(std::string_view text) {
        const std::vector<Long> numbers = ParseSvgNumberList(text);
        if (numbers.size() < viewBox_.size() || numbers[2] <= 0 || numbers[3] <= 0) return;
        std::copy_n(numbers.begin(), viewBox_.size(), viewBox_.begin());
    }
    bool HasViewBox() const { return viewBox_[2] > 0; }

    static Long WholePixels(Long twips) { return twips / TwipsPerPixel * TwipsPerPixel; }

    /// A side in twips, 0 where it is not told.
    static Long SideOf(std::string_view text, Long viewBoxSide) {
        const Long twips =
            HasSvgPercent(text)
                ? ToSvgTwips(ParseSvgLengthPercent(text) * static_cast<Single>(viewBoxSide))
                : ParseSvgLength(text);
        return WholePixels(std::max(twips, 0));
    }

    void FitViewBox() {
        const auto boxWidth = static_cast<Single>(viewBox_[2]);
        const auto boxHeight = static_cast<Single>(viewBox_[3]);
        if (width_ == 0 && height_ == 0) {
            width_ = std::max(WholePixels(viewBox_[2]), TwipsPerPixel);
            height_ = std::max(WholePixels(viewBox_[3]), TwipsPerPixel);
        } else if (width_ == 0) {
            width_ = WholePixels(ToSvgTwips(static_cast<Single>(height_) * boxWidth / boxHeight));
        } else if (height_ == 0) {
            height_ = WholePixels(ToSvgTwips(static_cast<Single>(width_) * boxHeight / boxWidth));
        }
        clsSvgMatrixData fit;
        const auto width = static_cast<Single>(width_);
        const auto height = static_cast<Single>(height_);
        fit.ScaleX = fit.ScaleY = std::min(width / boxWidth, height / boxHeight);
        fit.sftX = Shift(width - boxWidth * fit.ScaleX, fit.ScaleX, viewBox_[0]);
        fit.sftY = Shift(height - boxHeight * fit.ScaleY, fit.ScaleY, viewBox_[1]);
        body_.Matrices.push_back(fit);
    }

    /// Half the room that is left over, less the scaled start of the box.
    static Long Shift(Single room, Single scale, Long from) {
        return ToSvgTwips(static_cast<Single>(ToSvgTwips(room / 2)) -
                          scale * static_cast<Single>(from));
    }

    /// Puts the size into the result; a missing side reaches as far as the shapes do.
    void SetSize() {
        Long right = 0;
        Long bottom = 0;
        for (const auto& shape : vector_.inVector->colShapeData) {
            const SwfRect bounds = shape->inSWFTShapeRecords->GetBounds(false);
            right = std::max(right, bounds.xMax);
            bottom = std::max(bottom, bounds.yMax);
        }
        vector_.Width = UpToPixels(width_ != 0 ? width_ : right);
        vector_.height = UpToPixels(height_ != 0 ? height_ : bottom);
    }
    static Long UpToPixels(Long twips) { return (twips + TwipsPerPixel - 1) / TwipsPerPixel; }

    clsVector& vector_;
    SvgDocument document_;
    SvgProgress progress_;
    SvgBody body_;
    /// Left, top, width and height, twips; empty when there is none.
    std::array<Long, 4> viewBox_{};
    Long width_ = 0;
    Long height_ = 0;
};

bool ReadUnpacked(ByteView bytes, StringView progressText, clsVector& vector) {
    if (bytes.size() > SvgBudget::MostText) return false;
    std::string decoded;
    const std::string_view text = DecodeSvg(bytes, decoded);
    try {
        return SvgReader(text, progressText, vector).Read();
    } catch (const RuntimeError&) {
        return false;
    }
}

bool ReadBytes(ByteView bytes, StringView extension, StringView progressText, clsVector& vector) {
    vector.inVector = std::make_shared<clsVectorData>();
    vector.LeftOut.clear();
    if (extension != u"svgz") return ReadUnpacked(bytes, progressText, vector);
    const std::optional<Bytes> unpacked = UnpackSvgz(bytes);
    return unpacked && ReadUnpacked(*unpacked, progressText, vector);
}

}  // namespace

bool ReadSvgFile(StringView path, StringView extension, clsVector& vector) {
    Bytes bytes;
    if (!ReadFileBytes(path, bytes)) return false;
    const String progressText = u"ベクタファイル読込中...[" + GetFileName(path) + u"]";
    return ReadBytes(bytes, extension, progressText, vector);
}

bool ReadSvgBytes(ByteView bytes, StringView extension, clsVector& vector) {
    return ReadBytes(bytes, extension, {}, vector);
}

}  // namespace tamber
