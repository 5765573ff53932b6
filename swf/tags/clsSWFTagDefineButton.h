#pragma once

#include <vector>

#include "swf/SwfTypes.h"
#include "swf/clsSWFTag.h"
#include "swf/tags/SwfEventActions.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// Where and in which colours a button shows a state. The factors of the colours are of 255.
struct SwfButtonMatrix {
    SwfPoint Translate;  ///< twips
    SwfColorTransform Color;
    bool operator==(const SwfButtonMatrix&) const = default;
};

/// DefineButton2: identifier, a flag byte, the distance to the actions (0 for none), a record for
/// each different state, a zero byte; then for each action its size, 7 bits of key and 9 of
/// conditions, its records and a zero byte, and an empty one of size 0 at the end.
class clsSWFTagDefineButton : public clsSWFTag {
public:
    /// Bytes of one action at most: its size has 16 bits.
    static constexpr std::size_t LongestActions = 0xFFFF - 5;

    Long ID = 0;
    Long depth = 1;
    /// Characters of the states, 0 for none.
    Long UpSymbolID = 0;
    Long DownSymbolID = 0;
    Long OverSymbolID = 0;
    Long HitTestSymbolID = 0;
    SwfButtonMatrix matrixUP;  ///< for the hit area too
    SwfButtonMatrix matrixDown;
    SwfButtonMatrix matrixOver;
    std::vector<SwfEventActions> Actions;

    Long TagNum() const override { return TagCode::DefineButton2; }
    void Save() override;

private:
    void SaveStates() const;
    void SaveActions() const;
};

}  // namespace tamber
