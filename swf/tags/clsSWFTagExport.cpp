#include "swf/tags/clsSWFTagExport.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

void clsSWFTagExport::Save() {
    if (TagNum() == TagCode::NameCharacter) {
        for (const SwfLinkage& symbol : symbols_) {
            const Bytes name = mdlSWFTag::StringBytes(symbol.Name, true, false);
            mdlSWFTag::SetTagHeader(TagNum(), static_cast<Long>(name.size()) + 2, false);
            mdlSWFTag::SetBytes(2, symbol.ID);
            mdlSWFTag::SetByteArray(name);
        }
        return;
    }
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetBytes(2, static_cast<Long>(symbols_.size()));
    for (const SwfLinkage& symbol : symbols_) {
        mdlSWFTag::SetBytes(2, symbol.ID);
        mdlSWFTag::SetString(symbol.Name, true, true);
    }
    mdlSWFTag::EndTag(body);
}

}  // namespace tamber
