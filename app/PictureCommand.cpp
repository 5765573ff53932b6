#include "app/PictureCommand.h"

#include <algorithm>
#include <chrono>
#include <functional>

#include "canvas/picture/MoviePicture.h"
#include "output/AnimationFile.h"
#include "output/PictureFile.h"
#include "platform/UserInterface.h"
#include "platform/files.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long LargestSide = 16384;
constexpr std::int64_t MostPixels = std::int64_t{1} << 26;
constexpr Long MostDigits = 9;
/// A movie that tells none.
constexpr double SlowestRate = 1.0 / 256;
/// For one picture.
constexpr std::chrono::seconds Patience{60};

void TellScripts(const PictureMovie& movie) {
    if (movie.blScripts) CurrentUserInterface().Status(u"スクリプトの動作は画像に含まれません。");
}

PictureView ViewOf(const PictureMovie& movie, const PictureRequest& request) {
    PictureView view = request.Size
                           ? ViewOfSize(movie.Stage, request.Size->first, request.Size->second)
                           : ViewOfStage(movie.Stage, request.Scale);
    view.blTransparent = request.blTransparent;
    view.Options.blAnimate = request.blSequence;
    return view;
}

bool WritePicture(const Bytes& file, const String& path) {
    if (WriteFileBytes(file, path)) return true;
    ShowMessage(path + u"\r\n\r\nファイルに書き込めませんでした。\r\n" + WriteFault(), ProgramTitle,
                MessageIcon::Error);
    return false;
}

bool Refuse(StringView why) {
    ShowMessage(why, ProgramTitle, MessageIcon::Error);
    return false;
}

std::shared_ptr<const PictureMovie> MovieOf(frmMain& controller, const PictureRequest& request) {
    auto movie =
        request.Symbol > 0 ? controller.SymbolToDraw(request.Symbol) : controller.MovieToDraw();
    if (movie) TellScripts(*movie);
    return movie;
}

bool CheckSize(const PictureView& view) {
    return (view.Width <= LargestSide && view.Height <= LargestSide &&
            std::int64_t{view.Width} * view.Height <= MostPixels) ||
           Refuse(u"画像が大きすぎます。");
}

/// Draws the frames asked for, and hands each over with its number. False once `take` is, or a
/// frame takes too long.
bool DrawFrames(const std::shared_ptr<const PictureMovie>& movie, PictureView view,
                const PictureRequest& request,
                const std::function<bool(const Raster&, Long)>& take) {
    MoviePicture pictures(movie);
    const Long count = request.LastFrame - request.FirstFrame + 1;
    for (Long frame = request.FirstFrame; frame <= request.LastFrame; ++frame) {
        CurrentUserInterface().Progress(u"", frame - request.FirstFrame, count);
        view.Options.Deadline = std::chrono::steady_clock::now() + Patience;
        const Raster picture = pictures.Draw(frame, view);
        if (pictures.GivenUp()) return Refuse(u"画像が複雑すぎて描けませんでした。");
        if (!take(picture, frame)) return false;
    }
    CurrentUserInterface().Progress(u"", count, count);
    return true;
}

std::optional<Long> ReadNumber(StringView text) {
    if (text.empty() || text.size() > std::size_t{MostDigits}) return std::nullopt;
    Long number = 0;
    for (const char16_t c : text) {
        if (c < u'0' || c > u'9') return std::nullopt;
        number = number * 10 + (c - u'0');
    }
    return number;
}

std::optional<std::pair<Long, Long>> ReadPair(StringView text, char16_t between) {
    const std::size_t at = text.find(between);
    if (at == StringView::npos) return std::nullopt;
    const auto first = ReadNumber(text.substr(0, at));
    const auto second = ReadNumber(text.substr(at + 1));
    if (!first || !second) return std::nullopt;
    return std::pair(*first, *second);
}

}  // namespace

std::optional<std::pair<Long, Long>> ReadFrames(StringView text) {
    if (const auto number = ReadNumber(text); number && *number > 0)
        return std::pair(*number, *number);
    const auto range = ReadPair(text, u'-');
    if (!range || range->first < 1 || range->second < range->first) return std::nullopt;
    return range;
}

std::optional<std::pair<Long, Long>> ReadSize(StringView text) {
    const auto isSide = [](Long side) { return side >= 1 && side <= LargestSide; };
    const auto size = ReadPair(text, u'x');
    if (!size || !isSide(size->first) || !isSide(size->second)) return std::nullopt;
    return size;
}

std::optional<String> NumberedPath(StringView pattern, Long number) {
    const std::size_t at = pattern.find(u'%');
    if (at == StringView::npos || pattern.find(u'%', at + 1) != StringView::npos)
        return std::nullopt;
    const std::size_t end = pattern.find(u'd', at);
    if (end == StringView::npos) return std::nullopt;
    const StringView digits = pattern.substr(at + 1, end - at - 1);
    const auto width = digits.empty() ? 0 : ReadNumber(digits);
    if (!width || *width > MostDigits || (!digits.empty() && digits.front() != u'0'))
        return std::nullopt;
    String text = ToText(number);
    if (text.size() < std::size_t(*width)) text.insert(0, std::size_t(*width) - text.size(), u'0');
    return String(pattern.substr(0, at)) + text + String(pattern.substr(end + 1));
}

bool WritePictures(frmMain& controller, const PictureRequest& request) {
    const auto movie = MovieOf(controller, request);
    if (!movie) return false;
    const PictureView view = ViewOf(*movie, request);
    if (!CheckSize(view)) return false;
    if (request.LastFrame > movie->Main.FrameCount() && !request.blSequence)
        return Refuse(u"フレーム数は" + ToText(movie->Main.FrameCount()) + u"です。");
    return DrawFrames(movie, view, request, [&request](const Raster& picture, Long frame) {
        const auto path = request.blSequence ? NumberedPath(request.Output, frame) : request.Output;
        return WritePicture(PngBytes(picture), *path);
    });
}

bool WriteAnimation(frmMain& controller, const PictureRequest& request) {
    const auto movie = MovieOf(controller, request);
    if (!movie) return false;
    PictureRequest frames = request;
    if (!request.blSequence) frames.LastFrame = movie->Main.FrameCount();
    frames.blSequence = true;
    const PictureView view = ViewOf(*movie, frames);
    if (!CheckSize(view)) return false;
    const AnimationFormat format{view.Width, view.Height, std::max(movie->Rate, SlowestRate),
                                 request.Loops, request.blTransparent};
    const auto file = MakeAnimationFile(request.Output, format);
    const auto add = [&file](const Raster& picture, Long) {
        return file->Add(picture) || Refuse(u"画像を圧縮できませんでした。");
    };
    return DrawFrames(movie, view, frames, add) && WritePicture(file->Finish(), request.Output);
}

}  // namespace tamber
