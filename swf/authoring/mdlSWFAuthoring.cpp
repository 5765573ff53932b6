#include "swf/authoring/mdlSWFAuthoring.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/text.h"
#include "swf/authoring/MovieLimits.h"
#include "swf/authoring/MovieTimelineWriter.h"
#include "swf/authoring/SnapshotWriter.h"

namespace tamber::mdlSWFAuthoring {

namespace {

Long ReverseBytes(Long color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

void Refuse(MovieOutcome& outcome, const String& why) {
    outcome.Told.push_back({why, String(ProgramTitle), MessageIcon::Error, {}});
}

/// Fills the movie. What is left out is told.
void FillMovie(clsSWFAdmin& admin, const MovieRequest& request, MovieOutcome& outcome) {
    MovieBuild build(admin, outcome.Told);
    build.Scripts.ProjectFolder = request.ProjectFolder;
    build.Scripts.blMessages = request.blScriptMessages;
    build.Scripts.blTopToBottom = request.blTopToBottom;
    MovieTimelineWriter(build, request).WriteMovie();
    outcome.ScriptsValid = build.Scripts.AllValid();
    outcome.Identifiers = std::move(build.Identifiers);
}

bool Save(clsSWFAdmin& admin, const MovieRequest& request, Notices& told) {
    if (request.Movie == nullptr) return admin.Save(request.Path, told);
    const auto keep = [&request](ByteView file) {
        request.Movie->assign(file.begin(), file.end());
        return true;
    };
    return admin.SaveTo(keep, told);
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

MovieOutcome BuildMovie(const MovieRequest& request) {
    MovieOutcome outcome;
    if (const String fault = MovieLimitFault(request); !fault.empty()) {
        Refuse(outcome, fault);
        return outcome;
    }
    clsSWFAdmin admin;
    admin.inFontAdmin = request.Fonts;
    admin.InitSWF();
    admin.SetDimension(0, request.Width, 0, request.Height, 0);
    admin.FrameRate = request.FrameRate;
    admin.Ver = request.Version;
    admin.FrameCount(LastShownFrame(*request.Layers));
    admin.BackGroundColor = ReverseBytes(request.BackColor);
    admin.blCompress = request.blCompress;
    FillMovie(admin, request, outcome);
    if (admin.DefineID > MaxIdentifiers)
        Refuse(outcome, u"シンボル数が多すぎます。\r\nSWFファイルは" + ToText(MaxIdentifiers) +
                            u"までです。");
    else if (!(outcome.Written = Save(admin, request, outcome.Told)))
        Refuse(outcome,
               request.Path + u"\r\n\r\nファイルに書き込めませんでした。\r\n" + WriteFault());
    return outcome;
}

PlacedTags WriteFrameSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot, Notices& told) {
    MovieBuild build(admin, told);
    return SnapshotWriter(build, snapshot).WriteFrameSnapshot();
}

}  // namespace tamber::mdlSWFAuthoring
