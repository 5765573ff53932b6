#pragma once

#include "document/elements/FieldElement.h"
#include "document/elements/SymbolKinds.h"
#include "script/clsScriptData.h"

namespace tamber {

/// A frame's script.
class clsObjFrameAction : public FieldElement<clsObjFrameAction> {
public:
    String Comment;
    clsScriptData inScript;

    clsObjFrameAction() { inScript.eScriptMode(clsScriptData::ModeFree); }
    Long eType() const override { return KindFrameAction; }
    Long eScriptMode() const { return inScript.eScriptMode(); }
    void eScriptMode(Long mode) { inScript.eScriptMode(mode); }
    /// Caption in the timeline.
    String TimeLineText() const { return Comment.empty() ? inScript.Comment() : Comment; }

    static constexpr auto Fields() {
        using T = clsObjFrameAction;
        return std::tuple{
            Field(u"Comment", &T::Comment),
            Record(u"script", u"", &T::inScript),
        };
    }
};

}  // namespace tamber
