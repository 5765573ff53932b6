#pragma once

#include <zlib.h>

#include "platform/files.h"
#include "swf/mdlSWFTag.h"

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
    mdlSWFTag::LoadBuffer(file);
    mdlSWFTag::swfBytePos(8);
    movie.Stage = mdlSWFTag::GetRect();
    movie.Rate = mdlSWFTag::GetUI(2);
    movie.Frames = mdlSWFTag::GetUI(2);
    while (mdlSWFTag::swfBytePos() < file.size()) {
        const Long head = mdlSWFTag::GetUI(2);
        Long length = head & 63;
        if (length == 63) length = mdlSWFTag::GetUI(4);
        const auto from = file.begin() + static_cast<std::ptrdiff_t>(mdlSWFTag::swfBytePos());
        movie.Tags.push_back({head >> 6, Bytes(from, from + length)});
        mdlSWFTag::swfBytePos(mdlSWFTag::swfBytePos() + static_cast<std::size_t>(length));
    }
    return movie;
}

/// Passes over a colour transform with alpha.
inline void SkipColors() {
    // It begins at a byte of its own.
    mdlSWFTag::swfBytePos(mdlSWFTag::swfBytePos());
    const Long add = mdlSWFTag::GetBits(1);
    const Long mult = mdlSWFTag::GetBits(1);
    const Long width = mdlSWFTag::GetBits(4);
    for (Long i = 0; i < 4 * (add + mult); ++i) mdlSWFTag::GetBits(width);
}

inline ParsedPlace ParsePlace(const Bytes& body) {
    ParsedPlace place;
    mdlSWFTag::LoadBuffer(body);
    place.Flags = mdlSWFTag::GetUI(1);
    place.Depth = mdlSWFTag::GetUI(2);
    if ((place.Flags & 2) != 0) place.Character = mdlSWFTag::GetUI(2);
    if ((place.Flags & 4) != 0) place.Matrix = mdlSWFTag::GetMatrix();
    if ((place.Flags & 8) != 0) SkipColors();
    if ((place.Flags & 16) != 0) place.Ratio = mdlSWFTag::GetUI(2);
    if ((place.Flags & 32) != 0) mdlSWFTag::GetString(6, 0, false);
    if ((place.Flags & 64) != 0) place.ClipDepth = mdlSWFTag::GetUI(2);
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
