#include "app/AssetReader.h"

#include "app/mdlPrivateProfile.h"
#include "document/clsPropertyBmp.h"
#include "document/clsPropertyVector.h"
#include "document/clsSymbolData.h"
#include "media/BitmapTreatment.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "vector/clsVector.h"

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

/// A drawing without what it was meant to show would look like a fault of the program.
void TellLeftOut(StringView path, const std::vector<String>& features) {
    String line = GetFileName(path) + u"：対応していない要素を除いて読み込みました（";
    for (const String& feature : features) line += (&feature == &features[0] ? u"" : u"、") + feature;
    CurrentUserInterface().Status(line + u"）");
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

bool AssetReader::LoadVector(clsSymbolData& symbol) const {
    clsVector reader;
    if (!reader.LoadFromFile(symbol.FilePathName)) return false;
    if (!reader.LeftOut.empty()) TellLeftOut(symbol.FilePathName, reader.LeftOut);
    symbol.Property<clsPropertyVector>()->SetArtwork(reader.inVector, reader.Width, reader.height);
    return true;
}

String AssetReader::DefaultFont() const {
    return mdlPrivateProfile::DefaultFont();
}

}  // namespace tamber
