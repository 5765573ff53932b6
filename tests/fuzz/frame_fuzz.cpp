#include <chrono>

#include "canvas/picture/MoviePicture.h"
#include "swf/authoring/TextDefinition.h"
#include "swf/authoring/mdlSWFAuthoring.h"
#include "tests/fuzz/AnyProject.h"

namespace {

using namespace tamber;

constexpr Long LargestStage = 2000;

/// The movie that a project makes; empty when it makes none.
Bytes MovieOf(const Project& project) {
    Bytes movie;
    MovieRequest request;
    request.Width = project.MainWidth * 20 % (LargestStage * 20);
    request.Height = project.MainHeight * 20 % (LargestStage * 20);
    request.FrameRate = project.FrameRate;
    request.Version = project.SWFVersion;
    request.Library = project.colSymbol.get();
    request.Layers = project.colMainLayer.get();
    request.Fonts = RefreshFontAdmin(*project.colSymbol, project.SWFVersion);
    request.blCompress = false;
    request.Movie = &movie;
    mdlSWFAuthoring::BuildMovie(request);
    return movie;
}

void Draw(ByteView file) {
    const auto movie = ReadPictureMovie(file);
    if (!movie) return;
    PictureView view = ViewOfSize(movie->Stage, 200, 150);
    view.Options.blAnimate = true;
    MoviePicture pictures(movie);
    for (const Long frame : {1, 2, 1000}) {
        view.Options.Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(1);
        pictures.Draw(frame, view);
    }
}

}  // namespace

/// A movie, or a project whose movie is drawn.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Silent ui;
    const UserInterfaceScope scope(ui);
    const ByteView input(data, size);
    if (size > 3 && data[0] == 'F' && data[1] == 'W') {
        Draw(input);
        return 0;
    }
    Project project;
    if (LoadProjectBytes(input, u"/project.kvf", project, AnyAssets())) Draw(MovieOf(project));
    return 0;
}
