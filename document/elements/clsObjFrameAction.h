#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsElement.h"
#include "script/clsScriptData.h"

namespace tamber {

/// A frame's script.
class clsObjFrameAction : public clsElement {
public:
    String Comment;
    clsScriptData inScript;

    clsObjFrameAction() { inScript.eScriptMode(clsScriptData::ModeFree); }
    Long eType() const override { return KindFrameAction; }
    Long eScriptMode() const { return inScript.eScriptMode(); }
    void eScriptMode(Long mode) { inScript.eScriptMode(mode); }
    /// Caption in the timeline.
    String TimeLineText() const { return Comment.empty() ? inScript.Comment() : Comment; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber
