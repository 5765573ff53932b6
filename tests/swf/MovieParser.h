#pragma once

#include <zlib.h>

#include "platform/files.h"
#include "swf/SwfBits.h"

namespace tamber::test {

struct ParsedTag {
    Long Code = 0;
    Bytes Body;
};

struct ParsedMovie {
    Bytes Header;  ///< the first eight bytes
    SwfRect Stage;
    Long Rate = 0;  ///< 8.8 fixed point
    Long Frames = 0;
    std::vector<ParsedTag> Tags;

    std::vector<Long> Codes() const {
        std::vector<Long> codes;
        for (const ParsedTag& tag : Tags) codes.push_back(tag.Code);
        return codes;
    }
    /// Bodies of the tags of one code, in order.
    std::vector<Bytes> Bodies(Long code) const {
        std::vector<Bytes> bodies;
        for (const ParsedTag& tag : Tags)
            if (tag.Code == code) bodies.push_back(tag.Body);
        return bodies;
    }
};

/// What a PlaceObject2 says, as far as these tests ask.
struct ParsedPlace {
    Long Frame = 0;
    Long Flags = 0;
    Long Depth = 0;
    Long Character = 0;
    SwfMatrix Matrix;
    Long Ratio = -1;
    Long ClipDepth = 0;
};

inline ParsedMovie ParseMovie(StringView path) {
    ParsedMovie movie;
    Bytes file;
    if (!ReadFileBytes(path, file) || file.size() < 8) return movie;
    movie.Header.assign(file.begin(), file.begin() + 8);
    if (file[0] == 'C') {
        uLongf size =
            static_cast<uLongf>(file[4] | file[5] << 8 | file[6] << 16 | file[7] << 24) - 8;
        Bytes body(size);
        if (uncompress(body.data(), &size, file.data() + 8, static_cast<uLong>(file.size() - 8)) !=
            Z_OK)
            return movie;
        file.resize(8);
        file.insert(file.end(), body.begin(), body.end());
    }
    SwfBits bits(ByteView(file).subspan(8));
    movie.Stage = bits.GetRect();
    movie.Rate = static_cast<Long>(bits.GetUI(2));
    movie.Frames = static_cast<Long>(bits.GetUI(2));
    while (!bits.IsEmpty()) {
        const std::uint32_t head = bits.GetUI(2);
        std::size_t length = head & 63;
        if (length == 63) length = bits.GetUI(4);
        const ByteView body = bits.Take(length);
        movie.Tags.push_back({static_cast<Long>(head >> 6), Bytes(body.begin(), body.end())});
    }
    return movie;
}

inline ParsedPlace ParsePlace(const Bytes& body) {
    ParsedPlace place;
    SwfBits bits(body);
    const auto number = [&bits](Long byteCount) {
        return static_cast<Long>(bits.GetUI(byteCount));
    };
    place.Flags = number(1);
    place.Depth = number(2);
    if ((place.Flags & 2) != 0) place.Character = number(2);
    if ((place.Flags & 4) != 0) place.Matrix = bits.GetMatrix();
    if ((place.Flags & 8) != 0) bits.GetCXForm(true);
    if ((place.Flags & 16) != 0) place.Ratio = number(2);
    if ((place.Flags & 32) != 0) bits.GetString(6, 0, false);
    if ((place.Flags & 64) != 0) place.ClipDepth = number(2);
    return place;
}

/// All PlaceObject2 of a movie with the frames that they stand in.
inline std::vector<ParsedPlace> Places(const ParsedMovie& movie) {
    std::vector<ParsedPlace> places;
    Long frame = 1;
    for (const ParsedTag& tag : movie.Tags) {
        if (tag.Code == 1) ++frame;
        if (tag.Code != 26) continue;
        places.push_back(ParsePlace(tag.Body));
        places.back().Frame = frame;
    }
    return places;
}

}  // namespace tamber::test
