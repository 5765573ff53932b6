#include "vector/SwfReader.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "platform/RuntimeError.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/twips.h"
#include "swf/mdlZlib.h"
#include "swf/tags/TagCodes.h"
#include "vector/LoadProgress.h"
#include "vector/SwfShapeReader.h"

namespace tamber {

namespace {

constexpr std::size_t SignatureBytes = 8;
constexpr std::size_t LengthOffset = 4;
constexpr std::size_t MaxInflated = std::size_t{256} << 20;
/// The longest RECT: a width of 5 bits and four fields of 31.
constexpr std::size_t MaxRectBytes = 17;
constexpr std::size_t RateAndCountBytes = 4;
constexpr std::uint32_t LongLength = 63;
/// Definitions and placements of one frame are 65535 each at most.
constexpr Long MaxTags = 1 << 20;

enum PlaceFlag : Long { Move = 1, HasCharacter = 2, HasMatrix = 4 };
/// Of the second flag byte of PlaceObject3. Either names something that is no shape.
enum PlaceFlag3 : Long { HasClassName = 8, HasImage = 16 };

/// Bytes of a file, read from the front.
class ByteReader {
public:
    explicit ByteReader(ByteView bytes) : rest_(bytes) {}

    ByteView Rest() const { return rest_; }
    ByteView Take(std::size_t count) {
        if (count > rest_.size()) throw RuntimeError(ErrorOutOfRange, u"ReadSwfFile", u"");
        const ByteView taken = rest_.first(count);
        rest_ = rest_.subspan(count);
        return taken;
    }
    std::uint32_t U16() {
        const ByteView b = Take(2);
        return static_cast<std::uint32_t>(b[0] | b[1] << 8);
    }
    std::uint32_t U32() {
        const std::uint32_t low = U16();
        return low | U16() << 16;
    }

private:
    ByteView rest_;
};

/// Frees what the stream holds.
struct StreamRelease {
    ~StreamRelease() { mdlSWFTag::LoadBuffer({}); }
};

/// What stands behind the signature; nothing for a file that is no movie, or a damaged one.
std::optional<ByteView> MovieBody(ByteView file, Bytes& inflated) {
    if (file.size() < SignatureBytes || file[1] != 'W' || file[2] != 'S') return std::nullopt;
    const ByteView body = file.subspan(SignatureBytes);
    if (file[0] == 'F') return body;
    if (file[0] != 'C') return std::nullopt;
    const std::size_t length = ByteReader(file.subspan(LengthOffset)).U32();
    std::optional<Bytes> bytes = mdlZlib::ZlibUncompress(body, std::min(length, MaxInflated));
    if (!bytes) return std::nullopt;
    inflated = std::move(*bytes);
    return inflated;
}

class SwfMovie {
public:
    SwfMovie(ByteView body, StringView fileName, clsVector& vector)
        : tags_(body), fileName_(fileName), vector_(vector) {}

    bool Read() {
        vector_.inVector = std::make_shared<clsVectorData>();
        ReadHeader();
        LoadProgress progress(fileName_);
        Long count = 0;
        while (ReadTag())
            if (++count > MaxTags) return false;
        ReadShapes(progress);
        return !entries_.empty();
    }

private:
    void ReadHeader() {
        const ByteView head = tags_.Rest();
        const ByteView rect = head.first(std::min(head.size(), MaxRectBytes));
        mdlSWFTag::LoadBuffer(Bytes(rect.begin(), rect.end()));
        const SwfRect size = mdlSWFTag::GetRect();
        vector_.Width = (size.xMax - size.xMin) / TwipsPerPixel;
        vector_.height = (size.yMax - size.yMin) / TwipsPerPixel;
        tags_.Take(mdlSWFTag::swfBytePos() + RateAndCountBytes);
    }

    /// False at the end of the first frame.
    bool ReadTag() {
        const std::uint32_t head = tags_.U16();
        const std::uint32_t shortLength = head & 63;
        const auto code = static_cast<Long>(head >> 6);
        ByteReader body(tags_.Take(shortLength == LongLength ? tags_.U32() : shortLength));
        switch (code) {
            case TagCode::End:
            case TagCode::ShowFrame:
                return false;
            case TagCode::DefineShape:
            case TagCode::DefineShape2:
            case TagCode::DefineShape3:
            case TagCode::DefineShape4:
                AddShape(code, body);
                break;
            case TagCode::PlaceObject:
            case TagCode::PlaceObject2:
            case TagCode::PlaceObject3:
                mdlSWFTag::LoadBuffer(Bytes(body.Rest().begin(), body.Rest().end()));
                if (code == TagCode::PlaceObject)
                    ReadPlaceObject();
                else
                    ReadPlaceObject2(code);
                break;
            case TagCode::DefineBitsLossless:
            case TagCode::DefineBitsJPEG2:
            case TagCode::DefineBitsJPEG3:
            case TagCode::DefineBitsLossless2:
                AddBitmap(code, body);
                break;
            default:
                break;
        }
        return true;
    }

    /// The first definition of an identifier counts, for shapes and bitmaps alike.
    void AddShape(Long code, ByteReader body) {
        const auto id = static_cast<Long>(body.U16());
        if (!entriesByID_.emplace(id, entries_.size()).second) return;
        entries_.push_back({code, id, 0, body.Rest(), {}});
    }

    void AddBitmap(Long code, ByteReader body) {
        const auto id = static_cast<Long>(body.U16());
        if (bitmapsByID_.contains(id)) return;
        auto bitmap = std::make_shared<clsVectorBitmap>(code);
        bitmap->ID = id;
        bitmap->bufBitmap.assign(body.Rest().begin(), body.Rest().end());
        bitmapsByID_.emplace(id, bitmap);
        vector_.inVector->colBitmap.push_back(std::move(bitmap));
    }

    void ReadPlaceObject() {
        const Long id = mdlSWFTag::GetUI(2);
        const Long depth = mdlSWFTag::GetUI(2);
        Place(id, depth, ReadTranslation());
    }

    void ReadPlaceObject2(Long code) {
        const Long flags = mdlSWFTag::GetUI(1);
        const Long flags3 = code == TagCode::PlaceObject3 ? mdlSWFTag::GetUI(1) : 0;
        if ((flags3 & (HasClassName | HasImage)) != 0) return;
        const Long depth = mdlSWFTag::GetUI(2);
        const auto found = entriesByDepth_.find(depth);
        SwfShapeEntry* former = found != entriesByDepth_.end() ? &entries_[found->second] : nullptr;
        SwfPoint placement = former != nullptr ? former->Placement : SwfPoint{};
        if ((flags & HasCharacter) == 0) {
            // What stands at the depth moves.
            if (former != nullptr && (flags & HasMatrix) != 0)
                former->Placement = ReadTranslation();
            return;
        }
        const Long id = mdlSWFTag::GetUI(2);
        if ((flags & Move) == 0) {
            placement = {};
        } else if (former != nullptr) {
            former->depth = 0;
            entriesByDepth_.erase(found);
        }
        if ((flags & HasMatrix) != 0) placement = ReadTranslation();
        Place(id, depth, placement);
    }

    static SwfPoint ReadTranslation() {
        const SwfMatrix matrix = mdlSWFTag::GetMatrix();
        return {matrix.TranslateX, matrix.TranslateY};
    }

    void Place(Long id, Long depth, SwfPoint placement) {
        const auto found = entriesByID_.find(id);
        if (found == entriesByID_.end()) return;
        SwfShapeEntry& entry = entries_[found->second];
        entry.depth = depth;
        entry.Placement = placement;
        entriesByDepth_[depth] = found->second;
    }

    /// Lowest depth first; of equal depths the one defined last.
    std::vector<const SwfShapeEntry*> PlacedEntries() const {
        std::vector<const SwfShapeEntry*> placed;
        for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry)
            if (entry->depth != 0) placed.push_back(&*entry);
        std::stable_sort(placed.begin(), placed.end(),
                         [](const auto* a, const auto* b) { return a->depth < b->depth; });
        return placed;
    }

    void ReadShapes(LoadProgress& progress) {
        const std::vector<const SwfShapeEntry*> placed = PlacedEntries();
        SwfShapeReader reader(bitmapsByID_, *vector_.inVector);
        for (std::size_t i = 0; i < placed.size(); ++i) {
            progress.Update(static_cast<Long>(i), static_cast<Long>(placed.size()));
            reader.Read(*placed[i]);
        }
    }

    ByteReader tags_;
    StringView fileName_;
    clsVector& vector_;
    /// In the order of definition.
    std::vector<SwfShapeEntry> entries_;
    std::unordered_map<Long, std::size_t> entriesByID_;
    std::unordered_map<Long, std::size_t> entriesByDepth_;
    SwfShapeReader::BitmapTable bitmapsByID_;
};

bool ReadMovie(ByteView file, StringView fileName, clsVector& vector) {
    try {
        const StreamRelease release;
        Bytes inflated;
        const std::optional<ByteView> body = MovieBody(file, inflated);
        return body && SwfMovie(*body, fileName, vector).Read();
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

bool ReadSwfFile(StringView path, clsVector& vector) {
    Bytes file;
    return ReadFileBytes(path, file) && ReadMovie(file, GetFileName(path), vector);
}

bool ReadSwfBytes(ByteView bytes, clsVector& vector) {
    return ReadMovie(bytes, {}, vector);
}

}  // namespace tamber
