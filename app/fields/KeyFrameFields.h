#pragma once

#include "document/symbols/clsLayer.h"

namespace tamber {

/// Sets a value of a key frame by the name that it has in the state as JSON: a placement value
/// ("X", "Toumei", ...), a filter's ("blGlow", "Glow.BlurX", ...), an effect's, or one of its kind
/// ("LabelName", "Script", ...). False for a name that the key frame has none of and a number out
/// of its range; a text that is no number where one is wanted raises.
bool SetKeyFrameField(clsLayerObject& object, StringView field, StringView value);

/// The same for a row: "LayerName", "ClippingDepth", "Visible", "ExpText", the cells of its script,
/// "OnEvent" of a button's row, and "Expand" and what else a folder's row holds.
bool SetLayerField(clsLayer& layer, StringView field, StringView value);

}  // namespace tamber
