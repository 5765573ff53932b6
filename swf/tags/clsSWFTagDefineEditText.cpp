#include "swf/tags/clsSWFTagDefineEditText.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {
constexpr Long AutoSizeVersion = 6;
constexpr Long Opaque = 255;
}  // namespace

/// Black text carries no colour.
bool clsSWFTagDefineEditText::HasColor() const {
    return FontColorRed + FontColorGreen + FontColorBlue > 0;
}

bool clsSWFTagDefineEditText::HasLayout() const {
    return Alignment != 0 || LeftMargin != 0 || RightMargin != 0 || Indent != 0 || FontLeading != 0;
}

void clsSWFTagDefineEditText::SaveFlags() const {
    const bool sizes = mdlSWFTag::swfVersion() >= AutoSizeVersion && blAutoSize;
    for (const bool flag : {!InitialText.empty(), blWordWrap, blMultiLine, blPassword, blReadOnly,
                            HasColor(), MaxLength != 0, FontID != 0, false, sizes, HasLayout(),
                            blNoSelect, blBorder, false, blHtml, blUseOutLines})
        mdlSWFTag::SetBits(1, flag ? 1 : 0);
}

void clsSWFTagDefineEditText::Save() {
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetBytes(2, ID);
    mdlSWFTag::SetRect(0, Width, 0, height);
    mdlSWFTag::SetAlign();
    SaveFlags();
    if (FontID != 0) {
        mdlSWFTag::SetBytes(2, FontID);
        mdlSWFTag::SetBytes(2, FontSize);
    }
    if (HasColor())
        for (const Long part :
             {Long{FontColorRed}, Long{FontColorGreen}, Long{FontColorBlue}, Opaque})
            mdlSWFTag::SetBytes(1, part);
    if (MaxLength != 0) mdlSWFTag::SetBytes(2, MaxLength);
    if (HasLayout()) {
        mdlSWFTag::SetBytes(1, Alignment);
        for (const Long value : {LeftMargin, RightMargin, Indent, FontLeading})
            mdlSWFTag::SetBytes(2, value);
    }
    mdlSWFTag::SetString(VariableName, true, true);
    if (!InitialText.empty()) mdlSWFTag::SetString(InitialText, true, true);
    mdlSWFTag::EndTag(body);
}

}  // namespace tamber
