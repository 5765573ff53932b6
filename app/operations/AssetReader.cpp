#include "app/operations/AssetReader.h"

#include "app/settings/mdlPrivateProfile.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"
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
    String line = GetFileName(path) + u"：次の要素には対応していないため除きました：";
    for (const String& feature : features)
        line += (&feature == &features[0] ? u"" : u"、") + feature;
    CurrentUserInterface().Status(line);
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
    const bool loaded = reader.LoadFromFile(symbol.FilePathName);
    if (!reader.LeftOut.empty()) TellLeftOut(symbol.FilePathName, reader.LeftOut);
    if (!loaded) return false;
    symbol.Property<clsPropertyVector>()->SetArtwork(reader.inVector, reader.Width, reader.height);
    return true;
}

String AssetReader::DefaultFont() const {
    return mdlPrivateProfile::DefaultFont();
}

void AssetReader::SetTextSize(clsSymbolData& symbol) const {
    measure_.SetTextSize(*symbol.Property<clsPropertyText>());
}

}  // namespace tamber
