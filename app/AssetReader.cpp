#include "app/AssetReader.h"

#include "app/mdlPrivateProfile.h"
#include "document/clsPropertyBmp.h"
#include "document/clsSymbolData.h"
#include "media/BitmapTreatment.h"

namespace tamber {

namespace {

BitmapOptions OptionsOf(const clsPropertyBmp& record) {
    BitmapOptions options;
    options.blToumei = record.blToumei;
    options.ToumeiColorRed = record.ToumeiColorRed;
    options.ToumeiColorGreen = record.ToumeiColorGreen;
    options.ToumeiColorBlue = record.ToumeiColorBlue;
    options.blShading = record.blShading;
    options.ShadingType = record.ShadingType;
    options.ShadingNum = record.ShadingNum;
    options.blJpegComp = record.blJpegComp;
    options.JpegQuality = record.JpegQuality;
    return options;
}

}  // namespace

bool AssetReader::LoadBitmap(clsSymbolData& symbol) const {
    clsPropertyBmp& record = *symbol.Property<clsPropertyBmp>();
    BitmapBuffers buffers;
    if (!SetBitmapData(symbol.FilePathName, OptionsOf(record), buffers)) return false;
    record.blJpeg = buffers.blJpeg;
    record.bufBmp = std::move(buffers.bufBmp);
    record.bufAlpha = std::move(buffers.bufAlpha);
    record.BitCount = buffers.BitCount;
    record.Width = buffers.Width;
    record.height = buffers.height;
    return true;
}

String AssetReader::DefaultFont() const {
    return mdlPrivateProfile::DefaultFont();
}

}  // namespace tamber
