#include "vector/SwfReader.h"

#include <algorithm>
#include <unordered_map>

#include "platform/RuntimeError.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/twips.h"
#include "swf/MovieFile.h"
#include "swf/tags/TagCodes.h"
#include "vector/LoadProgress.h"
#include "vector/SwfJpeg.h"
#include "vector/SwfLeftOut.h"
#include "vector/SwfShapeReader.h"

namespace tamber {

namespace {

constexpr std::size_t RateBytes = 2;
/// Bytes that pictures may take of tables they share; more than those of any real movie.
constexpr std::size_t MaxSharedTables = std::size_t{64} << 20;
/// Definitions and placements of one frame are 65535 each at most.
constexpr Long MaxTags = 1 << 20;

enum PlaceFlag : Long {
    Move = 1,
    HasCharacter = 2,
    HasMatrix = 4,
    HasColorTransform = 8,
    HasClipDepth = 64
};
/// Of the second flag byte of PlaceObject3. The last two name something that is no shape.
enum PlaceFlag3 : Long { HasFilters = 1, HasBlendMode = 2, HasClassName = 8, HasImage = 16 };
/// Of the first byte of a colour transform: whether it adds or multiplies anything.
constexpr Long ColorTerms = 0xC0;

class SwfMovie {
public:
    SwfMovie(ByteView body, StringView fileName, clsVector& vector)
        : tags_(body), fileName_(fileName), vector_(vector) {}
    ~SwfMovie() { vector_.LeftOut = std::move(leftOut_.Names); }
    SwfMovie(const SwfMovie&) = delete;
    SwfMovie& operator=(const SwfMovie&) = delete;

    bool Read() {
        vector_.inVector = std::make_shared<clsVectorData>();
        ReadHeader();
        LoadProgress progress(fileName_);
        Long count = 0;
        while (ReadTag())
            if (++count > MaxTags) return false;
        if (frames_ > 1) leftOut_.Note(SwfLeftOut::LaterFrames);
        ReadShapes(progress);
        return !entries_.empty();
    }

private:
    void ReadHeader() {
        const SwfRect size = tags_.GetRect();
        vector_.Width = (size.xMax - size.xMin) / TwipsPerPixel;
        vector_.height = (size.yMax - size.yMin) / TwipsPerPixel;
        tags_.Take(RateBytes);
        frames_ = tags_.GetUI(2);
    }

    /// False at the end of the first frame.
    bool ReadTag() {
        const MovieTag tag = TakeTag(tags_);
        const Long code = tag.Code;
        SwfBits body(tag.Body);
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
                if (code == TagCode::PlaceObject)
                    ReadPlaceObject(body);
                else
                    ReadPlaceObject2(code, body);
                break;
            case TagCode::DefineBits:
            case TagCode::DefineBitsLossless:
            case TagCode::DefineBitsJPEG2:
            case TagCode::DefineBitsJPEG3:
            case TagCode::DefineBitsLossless2:
                AddBitmap(code, body);
                break;
            case TagCode::JPEGTables:
                jpegTables_ = body.Rest();
                break;
            default:
                AddOther(code, body);
                break;
        }
        return true;
    }

    /// A character that is no shape, or what else a tag tells of.
    void AddOther(Long code, SwfBits body) {
        const StringView name = SwfLeftOut::CharacterName(code);
        if (!name.empty())
            othersByID_.emplace(static_cast<Long>(body.GetUI(2)), name);
        else
            leftOut_.NoteTag(code);
    }

    /// The first definition of an identifier counts, for shapes and bitmaps alike.
    void AddShape(Long code, SwfBits body) {
        const auto id = static_cast<Long>(body.GetUI(2));
        if (!entriesByID_.emplace(id, entries_.size()).second) return;
        entries_.push_back({code, id, 0, body.Rest(), {}});
    }

    void AddBitmap(Long code, SwfBits body) {
        const auto id = static_cast<Long>(body.GetUI(2));
        if (bitmapsByID_.contains(id)) return;
        const bool sharesTables = code == TagCode::DefineBits;
        auto bitmap =
            std::make_shared<clsVectorBitmap>(sharesTables ? TagCode::DefineBitsJPEG2 : code);
        bitmap->ID = id;
        if (sharesTables)
            bitmap->bufBitmap = WithTables(body.Rest());
        else
            bitmap->bufBitmap.assign(body.Rest().begin(), body.Rest().end());
        bitmapsByID_.emplace(id, bitmap);
        vector_.inVector->colBitmap.push_back(std::move(bitmap));
    }

    Bytes WithTables(ByteView picture) {
        sharedTables_ += jpegTables_.size();
        if (sharedTables_ > MaxSharedTables)
            throw RuntimeError(ErrorOutOfRange, u"ReadSwfFile", u"");
        return JoinJpegTables(jpegTables_, picture);
    }

    void ReadPlaceObject(SwfBits body) {
        const Long id = static_cast<Long>(body.GetUI(2));
        const Long depth = static_cast<Long>(body.GetUI(2));
        const bool isShape = entriesByID_.contains(id);
        const SwfPoint placement = ReadTranslation(body, isShape);
        if (isShape && !body.IsEmpty()) ReadColorTransform(body);
        Place(id, depth, placement);
    }

    void ReadPlaceObject2(Long code, SwfBits body) {
        const Long flags = static_cast<Long>(body.GetUI(1));
        const Long flags3 = code == TagCode::PlaceObject3 ? static_cast<Long>(body.GetUI(1)) : 0;
        if ((flags & HasClipDepth) != 0) leftOut_.Note(SwfLeftOut::Clipping);
        if ((flags3 & HasFilters) != 0) leftOut_.Note(SwfLeftOut::Filter);
        if ((flags3 & HasBlendMode) != 0) leftOut_.Note(SwfLeftOut::BlendMode);
        if ((flags3 & (HasClassName | HasImage)) != 0)
            return leftOut_.Note(SwfLeftOut::ClassPlacement);
        const Long depth = static_cast<Long>(body.GetUI(2));
        const auto found = entriesByDepth_.find(depth);
        SwfShapeEntry* former = found != entriesByDepth_.end() ? &entries_[found->second] : nullptr;
        SwfPoint placement = former != nullptr ? former->Placement : SwfPoint{};
        if ((flags & HasCharacter) == 0) {
            // What stands at the depth moves.
            if (former == nullptr) return;
            if ((flags & HasMatrix) != 0) former->Placement = ReadTranslation(body, true);
            if ((flags & HasColorTransform) != 0) ReadColorTransform(body);
            return;
        }
        const Long id = static_cast<Long>(body.GetUI(2));
        const bool isShape = entriesByID_.contains(id);
        if ((flags & Move) == 0) {
            placement = {};
        } else if (former != nullptr) {
            former->depth = 0;
            entriesByDepth_.erase(found);
        }
        if ((flags & HasMatrix) != 0) placement = ReadTranslation(body, isShape);
        if (isShape && (flags & HasColorTransform) != 0) ReadColorTransform(body);
        Place(id, depth, placement);
    }

    SwfPoint ReadTranslation(SwfBits& body, bool isShape) {
        const SwfMatrix matrix = body.GetMatrix();
        const SwfMatrix moved{.TranslateX = matrix.TranslateX, .TranslateY = matrix.TranslateY};
        if (isShape && matrix != moved) leftOut_.Note(SwfLeftOut::Transformation);
        return {matrix.TranslateX, matrix.TranslateY};
    }

    /// Only whether it changes anything.
    void ReadColorTransform(SwfBits& body) {
        if ((static_cast<Long>(body.GetUI(1)) & ColorTerms) != 0)
            leftOut_.Note(SwfLeftOut::ColorTransform);
    }

    void Place(Long id, Long depth, SwfPoint placement) {
        const auto found = entriesByID_.find(id);
        if (found == entriesByID_.end()) {
            const auto other = othersByID_.find(id);
            if (other != othersByID_.end()) leftOut_.Note(other->second);
            return;
        }
        SwfShapeEntry& entry = entries_[found->second];
        if (entry.depth != 0 && entry.depth != depth) leftOut_.Note(SwfLeftOut::SecondPlacement);
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

    SwfBits tags_;
    StringView fileName_;
    clsVector& vector_;
    /// In the order of definition.
    std::vector<SwfShapeEntry> entries_;
    std::unordered_map<Long, std::size_t> entriesByID_;
    std::unordered_map<Long, std::size_t> entriesByDepth_;
    SwfShapeReader::BitmapTable bitmapsByID_;
    /// Names of the characters that are no shapes.
    std::unordered_map<Long, StringView> othersByID_;
    ByteView jpegTables_;
    std::size_t sharedTables_ = 0;
    std::uint32_t frames_ = 0;
    SwfLeftOut leftOut_;
};

bool ReadMovie(ByteView file, StringView fileName, clsVector& vector) {
    try {
        const MovieFile movie(file);
        return movie.Body() && SwfMovie(*movie.Body(), fileName, vector).Read();
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
