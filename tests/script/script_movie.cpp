// Makes movies of scripts, one for each version that a script is for:
//
//   script_movie OUT SCRIPT.as...
//
// writes OUT/NAME-vN.swf. The line "// versions: 5-8" in its first line tells its versions; what
// stands behind a line
// "//@ frame N" belongs to frame N. The stage has a clip named "clip" of five frames, stopped, its
// third frame labelled "mid", and the same clip exported as "Sym". The timeline has four frames,
// labelled "f1" to "f4", and stops at the last.
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

#include "platform/codepage.h"
#include "script/compiler/compileSWFActionCode.h"

namespace {

using tamber::Byte;
using tamber::Bytes;
using tamber::Long;

constexpr std::size_t FrameCount = 4;
constexpr std::size_t ClipFrames = 5;
constexpr std::size_t LabelledClipFrame = 3;
constexpr Byte StopAction = 7;

enum Tag : unsigned {
    ShowFrame = 1,
    DoAction = 12,
    PlaceObject2 = 26,
    DefineSprite = 39,
    FrameLabel = 43,
    ExportAssets = 56,
};

void U16(Bytes& bytes, std::size_t value) {
    bytes.push_back(static_cast<Byte>(value));
    bytes.push_back(static_cast<Byte>(value >> 8));
}

void U32(Bytes& bytes, std::size_t value) {
    U16(bytes, value);
    U16(bytes, value >> 16);
}

void Append(Bytes& bytes, const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

Bytes Text(std::string_view text) {
    Bytes bytes(text.begin(), text.end());
    bytes.push_back(0);
    return bytes;
}

/// With the long form of the length.
void AddTag(Bytes& movie, unsigned code, const Bytes& body = {}) {
    U16(movie, code << 6 | 63);
    U32(movie, body.size());
    Append(movie, body);
}

Bytes Clip() {
    Bytes body;
    U16(body, 1);
    U16(body, ClipFrames);
    AddTag(body, DoAction, {StopAction, 0});
    for (std::size_t frame = 1; frame <= ClipFrames; ++frame) {
        if (frame == LabelledClipFrame) AddTag(body, FrameLabel, Text("mid"));
        AddTag(body, ShowFrame);
    }
    U16(body, 0);
    return body;
}

/// Character 1 at depth 1, with a name.
Bytes Placement() {
    constexpr Byte HasCharacter = 2;
    constexpr Byte HasName = 32;
    Bytes body{HasCharacter | HasName, 1, 0, 1, 0};
    Append(body, Text("clip"));
    return body;
}

Bytes Movie(const std::array<Bytes, FrameCount>& scripts, Long version) {
    Bytes body{0x00};  // An empty stage: a RECT of fields without bits.
    U16(body, 12 << 8);
    U16(body, FrameCount);
    AddTag(body, DefineSprite, Clip());
    Bytes exported{1, 0, 1, 0};
    Append(exported, Text("Sym"));
    if (version >= 5) AddTag(body, ExportAssets, exported);
    AddTag(body, PlaceObject2, Placement());
    for (std::size_t frame = 0; frame < FrameCount; ++frame) {
        AddTag(body, FrameLabel, Text("f" + std::to_string(frame + 1)));
        Bytes actions = scripts[frame];
        if (frame + 1 == FrameCount) actions.push_back(StopAction);
        actions.push_back(0);
        AddTag(body, DoAction, actions);
        AddTag(body, ShowFrame);
    }
    U16(body, 0);
    Bytes movie{'F', 'W', 'S', static_cast<Byte>(version)};
    U32(movie, body.size() + 8);
    Append(movie, body);
    return movie;
}

/// The frame that a line "//@ frame N" names, from 0; nothing for other lines.
std::optional<std::size_t> MarkedFrame(std::string_view line) {
    constexpr std::string_view Mark = "//@ frame ";
    if (!line.starts_with(Mark) || line.size() != Mark.size() + 1) return std::nullopt;
    const auto frame = static_cast<std::size_t>(line.back() - '1');
    return frame < FrameCount ? std::optional(frame) : std::nullopt;
}

/// The parts of a script, each with the lines of the others left empty.
std::array<std::string, FrameCount> Frames(const std::string& script) {
    std::array<std::string, FrameCount> frames;
    std::size_t frame = 0;
    for (std::size_t at = 0; at < script.size();) {
        const std::size_t end = std::min(script.find('\n', at), script.size());
        const std::string line = script.substr(at, end - at);
        frame = MarkedFrame(line).value_or(frame);
        for (std::size_t i = 0; i < FrameCount; ++i) frames[i] += (i == frame ? line : "") + "\n";
        at = end + 1;
    }
    return frames;
}

std::string InEncoding(const std::string& script, Long version) {
    if (version >= 6) return script;
    const Bytes bytes = tamber::EncodeAnsi(tamber::FromNarrow(script));
    return {bytes.begin(), bytes.end()};
}

bool Compile(const std::string& script, Long version, Bytes& actions) {
    const Byte* bytes = nullptr;
    Long length = 0;
    const std::string source = InEncoding(script, version);
    const bool isCompiled =
        tamber::compileSWFActionCode(source.c_str(), version, &bytes, &length) != 0;
    actions.assign(bytes, bytes + length);
    return isCompiled;
}

bool MakeMovies(const std::filesystem::path& path, const std::filesystem::path& folder) {
    std::ifstream file(path, std::ios::binary);
    const std::string script{std::istreambuf_iterator<char>(file), {}};
    constexpr std::string_view Mark = "// versions: ";
    if (!script.starts_with(Mark) || script.size() < Mark.size() + 3) {
        std::fprintf(stderr, "%s names no versions\n", path.c_str());
        return false;
    }
    const Long first = script[Mark.size()] - '0';
    const Long last = script[Mark.size() + 2] - '0';
    for (Long version = first; version <= last; ++version) {
        std::array<Bytes, FrameCount> actions;
        const std::array<std::string, FrameCount> frames = Frames(script);
        for (std::size_t i = 0; i < FrameCount; ++i) {
            if (Compile(frames[i], version, actions[i])) continue;
            const std::string text = tamber::ToNarrow(tamber::DecodeAnsi(actions[i]));
            std::fprintf(stderr, "%s, version %d: %s\n", path.c_str(), version, text.c_str());
            return false;
        }
        const Bytes movie = Movie(actions, version);
        const std::string name = path.stem().string() + "-v" + std::to_string(version) + ".swf";
        std::ofstream(folder / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(movie.data()),
                   static_cast<std::streamsize>(movie.size()));
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        std::fprintf(stderr, "usage: script_movie OUT SCRIPT.as...\n");
        return 2;
    }
    std::filesystem::create_directories(arguments[1]);
    bool isDone = true;
    for (int i = 2; i < count; ++i) isDone = MakeMovies(arguments[i], arguments[1]) && isDone;
    return isDone ? EXIT_SUCCESS : EXIT_FAILURE;
}
