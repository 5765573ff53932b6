#include "swf/tags/clsSWFTagImport.h"

#include "platform/text.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {
constexpr Long ImportVersion = 5;
constexpr Long Import2Version = 8;
}  // namespace

void clsSWFTagImport::URL(StringView url) {
    url_ = ReplaceAll(ReplaceAll(url, u"/", u"\\"), u"\\", u"\\\\");
}

Long clsSWFTagImport::TagNum() const {
    if (mdlSWFTag::swfVersion() < ImportVersion) return -1;
    return mdlSWFTag::swfVersion() < Import2Version ? TagCode::ImportAssets
                                                    : TagCode::ImportAssets2;
}

void clsSWFTagImport::Save() {
    if (TagNum() < 0) return;
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetString(url_, true, true);
    if (TagNum() == TagCode::ImportAssets2) mdlSWFTag::SetBytes(2, 1);
    mdlSWFTag::SetBytes(2, static_cast<Long>(symbols_.size()));
    for (const SwfLinkage& symbol : symbols_) {
        mdlSWFTag::SetBytes(2, symbol.ID);
        mdlSWFTag::SetString(symbol.Name, true, true);
    }
    mdlSWFTag::EndTag(body);
}

}  // namespace tamber
