#pragma once

#include "document/Project.h"
#include "document/edit/SymbolReferences.h"

namespace tamber {

/// Whether a symbol goes into a movie for its name, though nothing may place it.
bool IsExported(const clsSymbolData& symbol);

/// The frames in which symbols are defined that a movie exports.
class ExportFrames {
public:
    /// `lateFrame` is that of symbols which are not exported on the top.
    ExportFrames(const Collection<clsSymbolData>& library, Long lateFrame);

    /// 1 also for a symbol that has a part in common with one that is exported on the top: a part
    /// is defined once, and must stand before what it is first used in.
    Long FrameOf(const clsSymbolData& symbol);

private:
    bool HasEarlyPart(const clsSymbolData& symbol);

    Long lateFrame_;
    /// What the symbols on the top are made of, and what is known to have no part of that.
    SymbolSet early_;
    SymbolSet late_;
};

}  // namespace tamber
