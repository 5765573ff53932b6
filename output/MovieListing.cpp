#include "output/MovieListing.h"

#include <optional>

#include "platform/text.h"
#include "script/compiler/ActionDisassembler.h"
#include "swf/mdlZlib.h"
#include "swf/tags/SwfEventActions.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

constexpr std::size_t SignatureBytes = 8;
constexpr std::size_t MaxInflated = std::size_t{256} << 20;
constexpr std::uint32_t LongLength = 63;
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
void SkipFilter(MovieBits& bits) {
    constexpr std::size_t Lengths[] = {23, 9, 15, 27, 0, 0, 80, 0};
    const std::uint32_t kind = bits.U8();
    if (kind == 4 || kind == 7) {
        bits.Take(std::size_t{5} * bits.U8() + 19);
    } else if (kind == 5) {
        const std::size_t columns = bits.U8();
        const std::size_t rows = bits.U8();
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
    const bool isMovie = file.size() > SignatureBytes && file[1] == 'W' && file[2] == 'S' &&
                         (file[0] == 'F' || file[0] == 'C');
    if (!isMovie) {
        fault_ = u"SWFファイルではありません。";
        return;
    }
    version_ = file[3];
    MovieBits signature(file.first(SignatureBytes));
    signature.Take(4);
    const std::size_t length = signature.U32();
    text_ = std::string(file[0] == 'C' ? "CWS" : "FWS") + " version " + std::to_string(version_) +
            ", " + std::to_string(length) + " bytes\n";
    const ByteView body = file.subspan(SignatureBytes);
    if (file[0] == 'F') {
        ListMovie(body);
        return;
    }
    const std::optional<Bytes> inflated =
        mdlZlib::ZlibUncompress(body, std::min(length, MaxInflated));
    if (inflated)
        ListMovie(*inflated);
    else
        fault_ = u"圧縮されたデータが壊れています。";
}

void MovieListing::ListMovie(ByteView body) {
    MovieBits bits(body);
    bits.SkipRect();
    const std::uint32_t rate = bits.U16();
    const std::uint32_t frames = bits.U16();
    Line(0, std::to_string(frames) + " frames, " + std::to_string(rate / 256.0) + " a second");
    if (bits.IsDamaged())
        Damage(SignatureBytes);
    else
        ListTags(bits.Rest(), SignatureBytes + OffsetIn(body, bits.Rest()), 0);
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
    MovieBits bits(tags);
    while (fault_.empty()) {
        const std::size_t at = offset + OffsetIn(tags, bits.Rest());
        const std::uint32_t header = bits.U16();
        std::size_t length = header & LongLength;
        if (length == LongLength) length = bits.U32();
        const Long code = static_cast<Long>(header >> 6);
        const ByteView body = bits.Take(bits.IsDamaged() ? 0 : length);
        if (bits.IsDamaged()) return Damage(at);
        Line(depth,
             std::to_string(at) + " " + NameOf(code) + ", " + std::to_string(length) + " bytes");
        if (code == TagCode::End) return;
        ListTag(code, body, offset + OffsetIn(tags, bits.Rest()) - body.size(), depth + 1);
    }
}

void MovieListing::ListTag(Long code, ByteView body, std::size_t offset, std::size_t depth) {
    constexpr std::size_t SpriteHeader = 4;
    constexpr std::size_t InitHeader = 2;
    MovieBits bits(body);
    offset_ = offset;
    switch (code) {
        case TagCode::DoAction:
            return ListActions(body, depth);
        case TagCode::DoInitAction:
            Line(depth, "sprite " + std::to_string(bits.U16()));
            if (body.size() >= InitHeader) return ListActions(body.subspan(InitHeader), depth);
            return Damage(offset);
        case TagCode::DefineSprite:
            if (depth > MaxDepth || body.size() < SpriteHeader) return Damage(offset);
            Line(depth, "sprite " + std::to_string(bits.U16()));
            return ListTags(body.subspan(SpriteHeader), offset + SpriteHeader, depth);
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
    MovieBits bits(body);
    const std::uint32_t flags = bits.U8();
    const std::uint32_t more = hasMoreFlags ? bits.U8() : 0;
    if ((flags & HasActions) == 0) return;
    bits.U16();
    if ((more & HasClassName) != 0) bits.SkipText();
    if ((flags & HasCharacter) != 0) bits.U16();
    if ((flags & HasMatrix) != 0) bits.SkipMatrix();
    if ((flags & HasColours) != 0) bits.SkipColourTransform();
    if ((flags & HasRatio) != 0) bits.U16();
    if ((flags & HasName) != 0) bits.SkipText();
    if ((flags & HasClipDepth) != 0) bits.U16();
    if ((more & HasFilters) != 0)
        for (std::uint32_t count = bits.U8(); count > 0; --count) SkipFilter(bits);
    if ((more & HasBlendMode) != 0) bits.U8();
    if ((more & HasCache) != 0) bits.U8();
    bits.U16();
    ListClipEvents(bits, depth);
}

/// Events that the clip has, then for each its flags, a length and actions; zero flags end it.
void MovieListing::ListClipEvents(MovieBits& bits, std::size_t depth) {
    const bool isWide = version_ >= WideEventVersion;
    const auto flags = [&] { return isWide ? bits.U32() : bits.U16(); };
    flags();
    for (std::uint32_t events = flags(); events != 0; events = flags()) {
        MovieBits actions(bits.Take(bits.U32()));
        if (bits.IsDamaged()) return Damage(offset_);
        std::string line = "events " + std::to_string(events);
        if (isWide && (events & ClipKeyPress) != 0) line += " key " + std::to_string(actions.U8());
        Line(depth, line);
        ListActions(actions.Rest(), depth + 1);
    }
    if (bits.IsDamaged()) Damage(offset_);
}

void MovieListing::ListButton(ByteView body, std::size_t depth) {
    MovieBits bits(body);
    bits.U16();
    while (!bits.IsEmpty() && bits.U8() != 0) {
        bits.U32();
        bits.SkipMatrix();
    }
    if (bits.IsDamaged()) return Damage(offset_);
    ListActions(bits.Rest(), depth);
}

/// The offset of the actions counts from where it stands. That of a block leads to the next.
void MovieListing::ListButton2(ByteView body, std::size_t depth) {
    constexpr std::size_t OffsetAt = 3;
    constexpr std::size_t BlockHeader = 4;
    MovieBits bits(body);
    bits.Take(OffsetAt);
    const std::size_t first = bits.U16();
    if (bits.IsDamaged() || OffsetAt + first > body.size()) return Damage(offset_);
    if (first == 0) return;
    ByteView rest = body.subspan(OffsetAt + first);
    for (bool isLast = false; !isLast && fault_.empty();) {
        MovieBits block(rest);
        const std::size_t next = block.U16();
        const std::uint32_t conditions = block.U16();
        isLast = next == 0;
        const std::size_t length = isLast ? rest.size() : next;
        if (block.IsDamaged() || length < BlockHeader || length > rest.size())
            return Damage(offset_);
        Line(depth, "conditions " + std::to_string(conditions));
        ListActions(rest.subspan(BlockHeader, length - BlockHeader), depth + 1);
        rest = rest.subspan(length);
    }
}

}  // namespace tamber
