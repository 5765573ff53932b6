#include "canvas/picture/PictureMovie.h"

#include <unordered_map>
#include <utility>

#include "canvas/picture/BitmapReader.h"
#include "canvas/picture/ButtonReader.h"
#include "canvas/picture/MovieValues.h"
#include "canvas/picture/PlacementReader.h"
#include "canvas/picture/ShapeReader.h"
#include "canvas/picture/TextReader.h"
#include "canvas/picture/VideoCharacter.h"
#include "platform/RuntimeError.h"
#include "swf/MovieFile.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

constexpr double RateUnit = 256;
/// Sprites within each other; far more than any real movie has.
constexpr Long DeepestNesting = 100;

class PictureMovieReader {
public:
    PictureMovieReader(Long version, CharacterCache& cache) : version_(version), cache_(cache) {}

    std::shared_ptr<const PictureMovie> Read(SwfBits tags) {
        movie_->Stage = tags.GetRect();
        movie_->Rate = tags.GetUI(2) / RateUnit;
        tags.GetUI(2);
        ReadTags(tags, movie_->Main);
        return movie_;
    }

private:
    template <class T>
    std::shared_ptr<T> Find(Long id) const {
        const auto found = characters_.find(id);
        const auto character = found == characters_.end() ? nullptr : found->second;
        references_.emplace_back(id, character);
        return std::dynamic_pointer_cast<T>(character);
    }

    std::shared_ptr<const Character> FindPlaceable(Long id) const {
        const auto found = Find<Character>(id);
        return found && found->Nesting() < DeepestNesting ? found : nullptr;
    }

    void ReadTags(SwfBits tags, Timeline& timeline) {
        try {
            while (!tags.IsEmpty()) {
                const MovieTag tag = TakeTag(tags);
                if (tag.Code == TagCode::End) return;
                ReadTag(tag, timeline);
            }
        } catch (const RuntimeError&) {
            // The file ends within a tag.
        }
    }

    void ReadTag(const MovieTag& tag, Timeline& timeline) {
        try {
            switch (tag.Code) {
                case TagCode::ShowFrame:
                    return timeline.EndFrame();
                case TagCode::SetBackgroundColor: {
                    SwfBits bits(tag.Body);
                    movie_->Background = ReadColor(bits, false);
                    return;
                }
                case TagCode::JPEGTables:
                    jpegTables_ = tag.Body;
                    return;
                case TagCode::DoAction:
                case TagCode::DoInitAction:
                    movie_->blScripts = true;
                    return;
                default:
                    break;
            }
            const auto find = [this](Long id) { return FindPlaceable(id); };
            if (auto step = ReadTimelineStep(tag, version_, find))
                timeline.Add(std::move(*step));
            else
                Define(tag);
        } catch (const RuntimeError&) {
            // A damaged tag is as good as none.
        }
    }

    static std::shared_ptr<SpriteCharacter> WithGrid(const SpriteCharacter& sprite, SwfBits bits) {
        auto scaled = std::make_shared<SpriteCharacter>(sprite);
        scaled->ScalingGrid(ToBox(bits.GetRect()));
        return scaled;
    }

    void Define(const MovieTag& tag) {
        if (tag.Body.size() < 2) return;
        SwfBits bits(tag.Body);
        const auto id = static_cast<Long>(bits.GetUI(2));
        if (tag.Code == TagCode::DefineScalingGrid) {
            if (const auto sprite = Find<SpriteCharacter>(id))
                characters_[id] = WithGrid(*sprite, bits);
            return;
        }
        // The first definition of an identifier counts.
        if (characters_.contains(id)) return;
        if (auto character = KnownOrRead(tag.Code, bits)) characters_[id] = std::move(character);
    }

    std::shared_ptr<Character> KnownOrRead(Long code, const SwfBits& bits) {
        // Its bytes are not all that makes it.
        if (code == TagCode::DefineBits) return ReadCharacter(code, bits);
        const CharacterCache::Key key = CharacterCache::KeyOf(code, bits.Rest());
        const auto find = [this](Long id) -> std::shared_ptr<const Character> {
            const auto found = characters_.find(id);
            return found == characters_.end() ? nullptr : found->second;
        };
        if (auto known = cache_.Known(key, find)) return known;
        std::vector<CharacterCache::Reference> outer = std::exchange(references_, {});
        auto character = ReadCharacter(code, bits);
        std::vector<CharacterCache::Reference> own = std::exchange(references_, std::move(outer));
        references_.insert(references_.end(), own.begin(), own.end());
        if (character) cache_.Keep(key, std::move(own), character);
        return character;
    }

    std::shared_ptr<Character> ReadCharacter(Long code, const SwfBits& bits) {
        const auto findFont = [this](Long id) { return Find<FontCharacter>(id); };
        const auto findBitmap = [this](Long id) { return Find<BitmapCharacter>(id); };
        switch (code) {
            case TagCode::DefineShape:
            case TagCode::DefineShape2:
            case TagCode::DefineShape3:
            case TagCode::DefineShape4:
                return ShapeReader(bits, code, findBitmap).ReadShape();
            case TagCode::DefineMorphShape:
            case TagCode::DefineMorphShape2:
                return ShapeReader(bits, code, findBitmap).ReadMorph();
            case TagCode::DefineBits:
            case TagCode::DefineBitsJPEG2:
            case TagCode::DefineBitsJPEG3:
            case TagCode::DefineBitsLossless:
            case TagCode::DefineBitsLossless2:
                return ReadBitmapTag(code, bits.Rest(), jpegTables_);
            case TagCode::DefineFont:
            case TagCode::DefineFont2:
            case TagCode::DefineFont3:
                return std::make_shared<FontCharacter>(code, bits.Rest(), version_);
            case TagCode::DefineText:
            case TagCode::DefineText2:
                return ReadText(bits, code == TagCode::DefineText2, findFont);
            case TagCode::DefineEditText:
                return ReadEditText(bits, version_, findFont);
            case TagCode::DefineButton:
            case TagCode::DefineButton2:
                return ReadButton(bits, code,
                                  [this](Long shown) { return Find<Character>(shown); });
            case TagCode::DefineSprite:
                return ReadSprite(bits);
            case TagCode::DefineVideoStream:
                return ReadVideo(bits);
            default:
                return nullptr;
        }
    }

    std::shared_ptr<Character> ReadSprite(SwfBits bits) {
        bits.GetUI(2);
        Timeline timeline;
        ReadTags(bits, timeline);
        return std::make_shared<SpriteCharacter>(std::move(timeline));
    }

    Long version_;
    std::shared_ptr<PictureMovie> movie_ = std::make_shared<PictureMovie>();
    std::unordered_map<Long, std::shared_ptr<Character>> characters_;
    ByteView jpegTables_;
    CharacterCache& cache_;
    /// What the definition that is read asked for.
    mutable std::vector<CharacterCache::Reference> references_;
};

}  // namespace

std::shared_ptr<const PictureMovie> ReadPictureMovie(ByteView file) {
    CharacterCache cache;
    return ReadPictureMovie(file, cache);
}

std::shared_ptr<const PictureMovie> ReadPictureMovie(ByteView file, CharacterCache& cache) {
    const MovieFile movie(file);
    if (!movie.Body()) return nullptr;
    try {
        auto read = PictureMovieReader(movie.Version(), cache).Read(SwfBits(*movie.Body()));
        cache.Sweep();
        return read;
    } catch (const RuntimeError&) {
        return nullptr;
    }
}

}  // namespace tamber
