#include "vector/clsVectorData.h"

namespace tamber {

std::shared_ptr<clsVectorData> clsVectorData::FreeTransform(Long width, Long height,
                                                            const CornerPoints& corners) const {
    auto result = std::make_shared<clsVectorData>();
    result->colBitmap = colBitmap;
    for (const auto& shape : colShapeData)
        result->colShapeData.push_back(shape->FreeTransform(width, height, corners));
    return result;
}

}  // namespace tamber
