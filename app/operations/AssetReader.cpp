#include "app/operations/AssetReader.h"

#include "app/settings/mdlPrivateProfile.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"
#include "media/BitmapTreatment.h"
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
Notice LeftOut(StringView path, const std::vector<String>& features) {
    Notice notice;
    notice.Text = GetFileName(path) + u"：次の要素には対応していないため除きました：";
    for (const String& feature : features)
        notice.Text += (&feature == &features[0] ? u"" : u"、") + feature;
    notice.Place.File = path;
    notice.Shown = Notice::Form::Status;
    return notice;
}

bool LoadBitmap(StringView path, clsPropertyBmp& record) {
    BitmapBuffers buffers;
    if (!SetBitmapData(path, OptionsOf(record), buffers)) return false;
    record.blJpeg = buffers.blJpeg;
    record.bufBmp = std::move(buffers.bufBmp);
    record.bufAlpha = std::move(buffers.bufAlpha);
    record.BitCount = buffers.BitCount;
    record.Width = buffers.Width;
    record.height = buffers.height;
    return true;
}

bool LoadVector(StringView path, clsPropertyVector& record, Notices& told) {
    clsVector reader;
    const bool loaded = reader.LoadFromFile(path);
    if (!reader.LeftOut.empty()) told.push_back(LeftOut(path, reader.LeftOut));
    if (loaded) record.SetArtwork(reader.inVector, reader.Width, reader.height);
    return loaded;
}

}  // namespace

bool AssetReader::LoadFile(clsSymbolData& symbol, Notices& told) const {
    if (auto* bitmap = symbol.Property<clsPropertyBmp>())
        return LoadBitmap(symbol.FilePathName, *bitmap);
    if (auto* vector = symbol.Property<clsPropertyVector>())
        return LoadVector(symbol.FilePathName, *vector, told);
    return true;
}

String AssetReader::DefaultFont() const {
    return mdlPrivateProfile::DefaultFont();
}

void AssetReader::SetTextSize(clsSymbolData& symbol) const {
    measure_.SetTextSize(*symbol.Property<clsPropertyText>());
}

}  // namespace tamber
