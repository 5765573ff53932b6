#include "app/operations/Placeholder.h"

#include <utility>

#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyVector.h"
#include "media/BitmapTreatment.h"
#include "platform/twips.h"

namespace tamber {

namespace {

constexpr Byte FrameGrey = 128;
constexpr Byte Opaque = 255;

clsDib FramePicture() {
    clsDib dib;
    dib.Create(PlaceholderSize, PlaceholderSize, 32);
    dib.blHasBlend = true;
    constexpr Long last = PlaceholderSize - 1;
    for (Long y = 0; y <= last; ++y) {
        for (Long x = 0; x <= last; ++x) {
            if (x > 0 && x < last && y > 0 && y < last) continue;
            Byte* pixel = dib.Row(y) + 4 * x;
            pixel[0] = pixel[1] = pixel[2] = FrameGrey;
            pixel[3] = Opaque;
        }
    }
    return dib;
}

std::shared_ptr<clsVectorData> FrameDrawing() {
    clsSWFTLineStyle line;
    line.Width = TwipsPerPixel;
    line.Color = FrameGrey | FrameGrey << 8 | FrameGrey << 16 | static_cast<Long>(0xFF000000);
    auto shape = std::make_shared<clsVectorData2>();
    shape->colLineStyles->push_back(line);
    // The middle of the line, so that its outer edge is the placeholder's.
    constexpr Long near = TwipsPerPixel / 2;
    constexpr Long far = PlaceholderSize * TwipsPerPixel - near;
    clsSWFTShapeRecords& records = *shape->inSWFTShapeRecords;
    records.SetLine(1);
    records.MovePenTo(near, near);
    records.DrawLineHTo(far);
    records.DrawLineVTo(far);
    records.DrawLineHTo(near);
    records.DrawLineVTo(near);
    auto drawing = std::make_shared<clsVectorData>();
    drawing->colShapeData.push_back(std::move(shape));
    return drawing;
}

void SetPicture(clsPropertyBmp& record) {
    BitmapBuffers buffers;
    PrepareBitmap(FramePicture(), {}, buffers);
    record.blJpeg = false;
    record.bufBmp = std::move(buffers.bufBmp);
    record.bufAlpha.clear();
    record.BitCount = buffers.BitCount;
    record.Width = buffers.Width;
    record.height = buffers.height;
}

}  // namespace

void SetPlaceholder(clsSymbolData& symbol) {
    if (auto* picture = symbol.Property<clsPropertyBmp>()) SetPicture(*picture);
    if (auto* drawing = symbol.Property<clsPropertyVector>())
        drawing->SetArtwork(FrameDrawing(), PlaceholderSize, PlaceholderSize);
}

}  // namespace tamber
