#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DefineEditText: identifier, bounds, flags, then the fields that the flags tell.
class clsSWFTagDefineEditText : public clsSWFTag {
public:
    Long ID = 0;
    Long Width = 0;  ///< twips
    Long height = 0;
    bool blWordWrap = false;
    bool blMultiLine = false;
    bool blPassword = false;
    bool blReadOnly = false;
    Long MaxLength = 0;
    bool blAutoSize = false;
    bool blNoSelect = false;
    bool blBorder = false;
    bool blHtml = false;
    bool blUseOutLines = false;
    Long FontID = 0;
    Long FontSize = 0;  ///< twips
    Byte FontColorRed = 0;
    Byte FontColorGreen = 0;
    Byte FontColorBlue = 0;
    Long Alignment = 0;
    Long FontLeading = 0;  ///< twips, as margins and indent
    Long LeftMargin = 0;
    Long RightMargin = 0;
    Long Indent = 0;
    String VariableName;
    String InitialText;

    Long TagNum() const override { return TagCode::DefineEditText; }
    void Save() override;

private:
    bool HasColor() const;
    bool HasLayout() const;
    void SaveFlags() const;
};

}  // namespace tamber
