#include "vector/clsVector.h"

#include "platform/paths.h"
#include "platform/text.h"
#include "vector/PdrReader.h"
#include "vector/SvgReader.h"
#include "vector/SwfReader.h"

namespace tamber {

bool clsVector::LoadFromFile(StringView path) {
    const String extension = FoldCase(GetFileExt(path));
    if (extension == u"pdr") return ReadPdrFile(path, *this);
    if (extension == u"swf") return ReadSwfFile(path, *this);
    if (extension == u"svg" || extension == u"svgz") return ReadSvgFile(path, extension, *this);
    return false;
}

void clsVector::SetRectShape(Long x, Long y, Long rectWidth, Long rectHeight, Long color) {
    Width = rectWidth;
    height = rectHeight;
    auto shape = std::make_shared<clsVectorData2>();
    clsSWFTFillStyle fill(clsSWFTFillStyle::Solid);
    if (color != 0) fill.StyleAs<clsSWFTFillSolid>()->SolidColor = color;
    shape->colFillStyles->push_back(std::move(fill));
    clsSWFTShapeRecords& records = *shape->inSWFTShapeRecords;
    records.SetFill0(static_cast<Long>(shape->colFillStyles->size()));
    records.MovePenTo(x, y);
    records.DrawLineHTo(x + rectWidth);
    records.DrawLineVTo(y + rectHeight);
    records.DrawLineHTo(x);
    records.DrawLineVTo(y);
    inVector = std::make_shared<clsVectorData>();
    inVector->colShapeData.push_back(std::move(shape));
}

}  // namespace tamber
