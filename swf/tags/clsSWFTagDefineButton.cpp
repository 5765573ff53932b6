#include "swf/tags/clsSWFTagDefineButton.h"

#include "swf/mdlSWFTag.h"

#include <array>

namespace tamber {

namespace {

constexpr Long UpState = 1;
constexpr Long OverState = 2;
constexpr Long DownState = 4;
constexpr Long HitState = 8;

struct State {
    Long Flag;
    Long SymbolID;
    const SwfButtonMatrix& Matrix;
    bool LooksLike(const State& other) const {
        return SymbolID == other.SymbolID && Matrix == other.Matrix;
    }
};

void SetButtonRecord(Long flags, const State& state, Long depth) {
    mdlSWFTag::SetAlign();
    mdlSWFTag::SetBytes(1, flags);
    mdlSWFTag::SetBytes(2, state.SymbolID);
    mdlSWFTag::SetBytes(2, depth);
    mdlSWFTag::SetMatrixTransform(1, 1, 0, state.Matrix.Translate, {}, 0, 0);
    mdlSWFTag::SetCXFormWithAlpha(state.Matrix.Color);
}

void SetButtonCondAction(const SwfEventActions& action) {
    constexpr Long ConditionRange = 512;
    constexpr Long HeadSize = 5;
    mdlSWFTag::SetAlign();
    mdlSWFTag::SetBytes(2, static_cast<Long>(action.Actions.size()) + HeadSize);
    mdlSWFTag::SetBytes(2, action.KeyCode * ConditionRange + action.Flags % ConditionRange);
    mdlSWFTag::SetByteArray(action.Actions);
    mdlSWFTag::SetBytes(1, 0);
}

}  // namespace

void clsSWFTagDefineButton::Save() {
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetBytes(2, ID);
    mdlSWFTag::SetBytes(1, 0);
    const std::size_t offset = mdlSWFTag::swfBytePos();
    mdlSWFTag::SetBytes(2, 0);
    SaveStates();
    if (!Actions.empty()) {
        const auto distance = static_cast<Long>(mdlSWFTag::swfBytePos() - offset);
        mdlSWFTag::PatchBytes(offset, 2, distance);
        SaveActions();
    }
    mdlSWFTag::EndTag(body);
}

void clsSWFTagDefineButton::SaveStates() const {
    const std::array states{
        State{HitState, HitTestSymbolID, matrixUP}, State{DownState, DownSymbolID, matrixDown},
        State{OverState, OverSymbolID, matrixOver}, State{UpState, UpSymbolID, matrixUP}};
    Long written = 0;
    for (const State& state : states) {
        if (state.SymbolID == 0 || (written & state.Flag) != 0) continue;
        Long flags = 0;
        for (const State& other : states)
            if (other.LooksLike(state)) flags |= other.Flag;
        SetButtonRecord(flags, state, depth);
        written |= flags;
    }
    mdlSWFTag::SetAlign();
    mdlSWFTag::SetBytes(1, 0);
}

void clsSWFTagDefineButton::SaveActions() const {
    for (const SwfEventActions& action : Actions) SetButtonCondAction(action);
    // The size 0 tells that this one, without actions, is the last.
    mdlSWFTag::SetBytes(2, 0);
    mdlSWFTag::SetBytes(2, 0);
    mdlSWFTag::SetBytes(1, 0);
}

}  // namespace tamber
