#include "swf/authoring/mdlSWFAuthoring.h"

#include <algorithm>

#include "platform/UserInterface.h"
#include "platform/text.h"
#include "swf/authoring/Authoring.h"
#include "swf/authoring/MovieLimits.h"

namespace tamber::mdlSWFAuthoring {

namespace {

Long ReverseBytes(Long color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

bool Refuse(const String& why) {
    ShowMessage(why, ProgramTitle, MessageIcon::Error);
    return false;
}

}  // namespace

Long LastShownFrame(const Collection<clsLayer>& layers) {
    Long last = 0;
    for (const auto& layer : layers) {
        if (!layer->Visible(true)) continue;
        for (Long i = layer->ObjectCount(); i >= 1; --i) {
            if (!layer->Object(i)->blVisible) continue;
            last = std::max(last, layer->Object(i)->endFrame());
            break;
        }
    }
    return last;
}

Long ClipDepthOf(const Collection<clsLayer>& layers, Long layerIndex, Long clippingDepth) {
    if (clippingDepth == 0) return 0;
    Long depths = 0;
    const Long first = std::max(layerIndex - clippingDepth, 1);
    for (Long i = layerIndex - 1; i >= first; --i) depths += layers(i)->DepthCnt(true);
    return std::max(depths, clippingDepth);
}

bool BuildMovie(const MovieRequest& request) {
    if (const String fault = MovieLimitFault(request); !fault.empty()) return Refuse(fault);
    mdlSWFTag::swfVersion(request.Version);
    clsSWFAdmin admin;
    admin.inFontAdmin = request.Fonts;
    admin.InitSWF();
    admin.SetDimension(0, request.Width, 0, request.Height, 0);
    admin.FrameRate = request.FrameRate;
    admin.Ver = request.Version;
    admin.FrameCount(LastShownFrame(*request.Layers));
    admin.BackGroundColor = ReverseBytes(request.BackColor);
    admin.blCompress = request.blCompress;
    for (const auto& symbol : *request.Library) symbol->InitDefineID();

    Authoring authoring(request, admin);
    authoring.Scripts.ProjectFolder = request.ProjectFolder;
    authoring.Scripts.blMessages = request.blScriptMessages;
    authoring.Scripts.blTopToBottom = request.blTopToBottom;
    authoring.CollectClassLinks();
    authoring.PreDefineFrameOne(admin);
    if (request.blExports)
        authoring.DefineExports(admin, request.blExportsInFrameTwo ? 2 : admin.FrameCount());
    authoring.WriteTimeline({admin, *request.Layers, {}});
    if (request.blScriptsValid != nullptr && !authoring.Scripts.AllValid())
        *request.blScriptsValid = false;
    if (admin.DefineID > MaxIdentifiers)
        return Refuse(u"シンボル数が多すぎます。\r\nSWFファイルは" + ToText(MaxIdentifiers) +
                      u"までです。");
    if (admin.Save(request.Path)) return true;
    return Refuse(request.Path + u"\r\n\r\nファイルに書き込めませんでした。");
}

PlacedTags WriteFrameSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot) {
    MovieRequest request;
    request.Layers = snapshot.Layers;
    request.blTopToBottom = snapshot.blTopToBottom;
    return Authoring(request, admin).WriteFrameSnapshot(admin, snapshot);
}

}  // namespace tamber::mdlSWFAuthoring
