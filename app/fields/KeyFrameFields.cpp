#include "app/fields/KeyFrameFields.h"

#include "document/elements/clsLayerFolder.h"

namespace tamber {

bool SetKeyFrameField(clsLayerObject& object, StringView field, StringView value) {
    return SetField(object, field, value) ||
           (object.Object && object.Object->SetField(field, value));
}

bool SetLayerField(clsLayer& layer, StringView field, StringView value) {
    return SetField(layer, field, value) ||
           (layer.Folder() != nullptr && layer.Folder()->SetField(field, value));
}

}  // namespace tamber
