#include "output/MovieListing.h"

#include <utility>

#include "platform/RuntimeError.h"
#include "platform/text.h"
#include "script/compiler/ActionDisassembler.h"
#include "swf/MovieFile.h"
#include "swf/tags/SwfEventActions.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

/// Sprites stand in no other sprite; a file may say so all the same.
constexpr std::size_t MaxDepth = 8;

enum PlaceFlag : std::uint32_t {
    HasCharacter = 2,
    HasMatrix = 4,
    HasColours = 8,
    HasRatio = 16,
    HasName = 32,
    HasClipDepth = 64,
    HasActions = 128,
};

/// Of the second byte of flags in PlaceObject3.
enum PlaceFlag3 : std::uint32_t {
    HasFilters = 1,
    HasBlendMode = 2,
    HasCache = 4,
    HasClassName = 8
};

struct TagName {
    Long Code;
    const char* Name;
};

constexpr TagName Names[] = {
    {TagCode::End, "End"},
    {TagCode::ShowFrame, "ShowFrame"},
    {TagCode::DefineShape, "DefineShape"},
    {TagCode::PlaceObject, "PlaceObject"},
    {TagCode::RemoveObject, "RemoveObject"},
    {TagCode::DefineBits, "DefineBits"},
    {TagCode::DefineButton, "DefineButton"},
    {TagCode::JPEGTables, "JPEGTables"},
    {TagCode::SetBackgroundColor, "SetBackgroundColor"},
    {TagCode::DefineFont, "DefineFont"},
    {TagCode::DefineText, "DefineText"},
    {TagCode::DoAction, "DoAction"},
    {TagCode::DefineFontInfo, "DefineFontInfo"},
    {TagCode::DefineSound, "DefineSound"},
    {TagCode::StartSound, "StartSound"},
    {TagCode::DefineButtonSound, "DefineButtonSound"},
    {TagCode::SoundStreamHead, "SoundStreamHead"},
    {TagCode::SoundStreamBlock, "SoundStreamBlock"},
    {TagCode::DefineBitsLossless, "DefineBitsLossless"},
    {TagCode::DefineBitsJPEG2, "DefineBitsJPEG2"},
    {TagCode::DefineShape2, "DefineShape2"},
    {TagCode::DefineButtonCxform, "DefineButtonCxform"},
    {TagCode::Protect, "Protect"},
    {TagCode::PlaceObject2, "PlaceObject2"},
    {TagCode::RemoveObject2, "RemoveObject2"},
    {TagCode::DefineShape3, "DefineShape3"},
    {TagCode::DefineText2, "DefineText2"},
    {TagCode::DefineButton2, "DefineButton2"},
    {TagCode::DefineBitsJPEG3, "DefineBitsJPEG3"},
    {TagCode::DefineBitsLossless2, "DefineBitsLossless2"},
    {TagCode::DefineEditText, "DefineEditText"},
    {TagCode::DefineSprite, "DefineSprite"},
    {TagCode::FrameLabel, "FrameLabel"},
    {TagCode::SoundStreamHead2, "SoundStreamHead2"},
    {TagCode::DefineMorphShape, "DefineMorphShape"},
    {TagCode::DefineFont2, "DefineFont2"},
    {TagCode::ExportAssets, "ExportAssets"},
    {TagCode::ImportAssets, "ImportAssets"},
    {TagCode::EnableDebugger, "EnableDebugger"},
    {TagCode::DoInitAction, "DoInitAction"},
    {TagCode::DefineVideoStream, "DefineVideoStream"},
    {TagCode::VideoFrame, "VideoFrame"},
    {TagCode::DefineFontInfo2, "DefineFontInfo2"},
    {TagCode::EnableDebugger2, "EnableDebugger2"},
    {TagCode::ScriptLimits, "ScriptLimits"},
    {TagCode::SetTabIndex, "SetTabIndex"},
    {TagCode::FileAttributes, "FileAttributes"},
    {TagCode::PlaceObject3, "PlaceObject3"},
    {TagCode::ImportAssets2, "ImportAssets2"},
    {TagCode::DefineFontAlignZones, "DefineFontAlignZones"},
    {TagCode::CSMTextSettings, "CSMTextSettings"},
    {TagCode::DefineFont3, "DefineFont3"},
    {TagCode::Metadata, "Metadata"},
    {TagCode::DefineScalingGrid, "DefineScalingGrid"},
    {TagCode::DefineShape4, "DefineShape4"},
    {TagCode::DefineMorphShape2, "DefineMorphShape2"},
};

std::string NameOf(Long code) {
    for (const TagName& tag : Names)
        if (tag.Code == code) return tag.Name;
    return "Tag" + std::to_string(code);
}

/// Bytes of a filter behind its kind; those of gradients and convolutions say it themselves.
void SkipFilter(SwfBits& bits) {
    constexpr std::size_t Lengths[] = {23, 9, 15, 27, 0, 0, 80, 0};
    const std::uint32_t kind = bits.GetUI(1);
    if (kind == 4 || kind == 7) {
        bits.Take(std::size_t{5} * bits.GetUI(1) + 19);
    } else if (kind == 5) {
        const std::size_t columns = bits.GetUI(1);
        const std::size_t rows = bits.GetUI(1);
        bits.Take(8 + 4 * columns * rows + 5);
    } else {
        bits.Take(Lengths[kind & 7]);
    }
}

std::size_t OffsetIn(ByteView whole, ByteView rest) {
    return whole.size() - rest.size();
}

}  // namespace

MovieListing::MovieListing(ByteView file) {
    const MovieFile movie(file);
    if (!movie.HasSignature() || file.size() == MovieFile::SignatureBytes) {
        fault_ = u"SWFファイルではありません。";
        return;
    }
    version_ = movie.Version();
    text_ = std::string(movie.IsPacked() ? "CWS" : "FWS") + " version " + std::to_string(version_) +
            ", " + std::to_string(movie.Length()) + " bytes\n";
    if (movie.Body())
        ListMovie(*movie.Body());
    else
        fault_ = u"圧縮されたデータが壊れています。";
}

void MovieListing::ListMovie(ByteView body) {
    SwfBits bits(body);
    try {
        bits.GetRect();
        const std::uint32_t rate = bits.GetUI(2);
        const std::uint32_t frames = bits.GetUI(2);
        Line(0, std::to_string(frames) + " frames, " + std::to_string(rate / 256.0) + " a second");
    } catch (const RuntimeError&) {
        return Damage(MovieFile::SignatureBytes);
    }
    ListTags(bits.Rest(), MovieFile::SignatureBytes + OffsetIn(body, bits.Rest()), 0);
}

void MovieListing::Line(std::size_t depth, const std::string& text) {
    text_ += std::string(2 * depth, ' ') + text + "\n";
}

/// Keeps the first.
void MovieListing::Damage(std::size_t offset) {
    if (fault_.empty())
        fault_ = u"ファイルが壊れています。（位置：" + ToText(static_cast<Long>(offset)) + u"）";
}

void MovieListing::ListTags(ByteView tags, std::size_t offset, std::size_t depth) {
    SwfBits bits(tags);
    while (fault_.empty()) {
        const std::size_t at = offset + OffsetIn(tags, bits.Rest());
        try {
            const auto [code, body] = TakeTag(bits);
            Line(depth, std::to_string(at) + " " + NameOf(code) + ", " +
                            std::to_string(body.size()) + " bytes");
            if (code == TagCode::End) return;
            ListTag(code, body, offset + OffsetIn(tags, bits.Rest()) - body.size(), depth + 1);
        } catch (const RuntimeError&) {
            Damage(at);
        }
    }
}

void MovieListing::ListTag(Long code, ByteView body, std::size_t offset, std::size_t depth) {
    const std::size_t outer = std::exchange(offset_, offset);
    try {
        ListContents(code, body, depth);
    } catch (const RuntimeError&) {
        Damage(offset);
    }
    offset_ = outer;
}

void MovieListing::ListContents(Long code, ByteView body, std::size_t depth) {
    SwfBits bits(body);
    switch (code) {
        case TagCode::DoAction:
            return ListActions(body, depth);
        case TagCode::DoInitAction:
            Line(depth, "sprite " + std::to_string(bits.GetUI(2)));
            return ListActions(bits.Rest(), depth);
        case TagCode::DefineSprite:
            if (depth > MaxDepth) return Damage(offset_);
            Line(depth, "sprite " + std::to_string(bits.GetUI(2)));
            bits.GetUI(2);
            return ListTags(bits.Rest(), offset_ + OffsetIn(body, bits.Rest()), depth);
        case TagCode::PlaceObject2:
        case TagCode::PlaceObject3:
            return ListClip(body, code == TagCode::PlaceObject3, depth);
        case TagCode::DefineButton:
            return ListButton(body, depth);
        case TagCode::DefineButton2:
            return ListButton2(body, depth);
        default:
            return;
    }
}

void MovieListing::ListActions(ByteView actions, std::size_t depth) {
    ActionDisassembler disassembler(version_);
    text_ += disassembler.List(actions, std::string(2 * depth, ' '));
    if (disassembler.IsDamaged() && fault_.empty()) fault_ = u"アクションが壊れています。";
}

void MovieListing::ListClip(ByteView body, bool hasMoreFlags, std::size_t depth) {
    SwfBits bits(body);
    const std::uint32_t flags = bits.GetUI(1);
    const std::uint32_t more = hasMoreFlags ? bits.GetUI(1) : 0;
    if ((flags & HasActions) == 0) return;
    bits.GetUI(2);
    if ((more & HasClassName) != 0) bits.GetString(version_, 0, true);
    if ((flags & HasCharacter) != 0) bits.GetUI(2);
    if ((flags & HasMatrix) != 0) bits.GetMatrix();
    if ((flags & HasColours) != 0) bits.GetCXForm(true);
    if ((flags & HasRatio) != 0) bits.GetUI(2);
    if ((flags & HasName) != 0) bits.GetString(version_, 0, true);
    if ((flags & HasClipDepth) != 0) bits.GetUI(2);
    if ((more & HasFilters) != 0)
        for (std::uint32_t count = bits.GetUI(1); count > 0; --count) SkipFilter(bits);
    if ((more & HasBlendMode) != 0) bits.GetUI(1);
    if ((more & HasCache) != 0) bits.GetUI(1);
    bits.GetUI(2);
    ListClipEvents(bits, depth);
}

/// Events that the clip has, then for each its flags, a length and actions; zero flags end it.
void MovieListing::ListClipEvents(SwfBits& bits, std::size_t depth) {
    const bool isWide = version_ >= WideEventVersion;
    const auto flags = [&] { return isWide ? bits.GetUI(4) : bits.GetUI(2); };
    flags();
    for (std::uint32_t events = flags(); events != 0; events = flags()) {
        SwfBits actions(bits.Take(bits.GetUI(4)));
        std::string line = "events " + std::to_string(events);
        if (isWide && (events & ClipKeyPress) != 0)
            line += " key " + std::to_string(actions.GetUI(1));
        Line(depth, line);
        ListActions(actions.Rest(), depth + 1);
    }
}

void MovieListing::ListButton(ByteView body, std::size_t depth) {
    SwfBits bits(body);
    bits.GetUI(2);
    while (!bits.IsEmpty() && bits.GetUI(1) != 0) {
        bits.GetUI(4);
        bits.GetMatrix();
    }
    ListActions(bits.Rest(), depth);
}

/// The offset of the actions counts from where it stands. That of a block leads to the next.
void MovieListing::ListButton2(ByteView body, std::size_t depth) {
    constexpr std::size_t OffsetAt = 3;
    constexpr std::size_t BlockHeader = 4;
    SwfBits bits(body);
    bits.Take(OffsetAt);
    const std::size_t first = bits.GetUI(2);
    if (OffsetAt + first > body.size()) return Damage(offset_);
    if (first == 0) return;
    ByteView rest = body.subspan(OffsetAt + first);
    for (bool isLast = false; !isLast && fault_.empty();) {
        SwfBits block(rest);
        const std::size_t next = block.GetUI(2);
        const std::uint32_t conditions = block.GetUI(2);
        isLast = next == 0;
        const std::size_t length = isLast ? rest.size() : next;
        if (length < BlockHeader || length > rest.size()) return Damage(offset_);
        Line(depth, "conditions " + std::to_string(conditions));
        ListActions(rest.subspan(BlockHeader, length - BlockHeader), depth + 1);
        rest = rest.subspan(length);
    }
}

}  // namespace tamber
