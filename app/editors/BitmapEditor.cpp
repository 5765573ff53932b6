#include "app/editors/BitmapEditor.h"

#include <algorithm>

#include "media/JpegWriter.h"

namespace tamber {

namespace {

/// A blur of more is told from none only by its time.
constexpr Long StrongestBlur = 20;
/// Between black and white: the root of 3 times 255 squared.
constexpr Long WidestRange = 442;

/// The colours as a JPEG of that quality brings them back.
void Compress(clsDib& dib, Long quality) {
    Bytes stream;
    clsDib compressed;
    if (!WriteJpeg(dib, quality, JpegColour::Halved, stream) ||
        !compressed.LoadFromMemory(std::move(stream)))
        return;
    compressed.ChangeTo32();
    compressed.ADib = std::move(dib.ADib);
    dib = std::move(compressed);
}

}  // namespace

void BitmapEditor::Transparent(bool on) {
    Set(options_.blToumei, on);
}

bool BitmapEditor::PickColor(Long x, Long y) {
    if (x < 0 || y < 0 || x >= picture_.Width() || y >= picture_.Height()) return false;
    clsDib deep = picture_;
    deep.ChangeTo32();
    const RgbQuad color = deep.Pixel(x, y);
    Color(color.rgbRed, color.rgbGreen, color.rgbBlue);
    return true;
}

void BitmapEditor::Color(Byte red, Byte green, Byte blue) {
    Set(options_.ToumeiColorRed, red);
    Set(options_.ToumeiColorGreen, green);
    Set(options_.ToumeiColorBlue, blue);
}

BitmapEditor::Edges BitmapEditor::EdgeTreatment() const {
    if (!options_.blShading) return Edges::None;
    return options_.ShadingType == ShadingBlur ? Edges::Blur : Edges::ColorRange;
}

void BitmapEditor::EdgeTreatment(Edges edges) {
    Set(options_.blShading, edges != Edges::None);
    if (edges == Edges::None) return;
    Set(options_.ShadingType, edges == Edges::Blur ? ShadingBlur : ShadingColorRange);
    Number(options_.ShadingNum);
}

StringView BitmapEditor::NumberLabel() const {
    switch (EdgeTreatment()) {
        case Edges::Blur:
            return u"強度：";
        case Edges::ColorRange:
            return u"範囲：";
        default:
            return u"";
    }
}

Long BitmapEditor::NumberLimit() const {
    return EdgeTreatment() == Edges::Blur ? StrongestBlur : WidestRange;
}

void BitmapEditor::Number(Long value) {
    Set(options_.ShadingNum, std::clamp(value, 0, NumberLimit()));
}

void BitmapEditor::JpegComp(bool on) {
    Set(options_.blJpegComp, on);
}

void BitmapEditor::JpegQuality(Long value) {
    Set(options_.JpegQuality, std::clamp(value, 1, 100));
}

const clsDib& BitmapEditor::Preview() {
    if (preview_) return *preview_;
    clsDib shown = picture_;
    TreatAlpha(shown, options_);
    if (options_.blJpegComp) Compress(shown, options_.JpegQuality);
    preview_ = std::move(shown);
    return *preview_;
}

std::size_t BitmapEditor::MovieSize() const {
    BitmapBuffers buffers;
    if (!PrepareBitmap(picture_, options_, buffers)) return 0;
    return buffers.bufBmp.size() + buffers.bufAlpha.size();
}

}  // namespace tamber
