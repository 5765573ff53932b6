#pragma once

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "media/DibInfo.h"
#include "platform/codepage.h"
#include "platform/types.h"

namespace tamber::test {

/// A fixture and what it shows, from a line of expected.txt.
struct PictureFixture {
    std::string Name;
    Long BitCount = 0;
    Long Width = 0;
    Long Height = 0;
    std::vector<RgbQuad> Pixels;
};

inline std::string FixtureFolder() {
    return TAMBER_SOURCE_DIR "/tests/media/fixtures/";
}

inline String FixturePath(const std::string& name) {
    return FromNarrow(FixtureFolder() + name);
}

inline Bytes FixtureBytes(const std::string& name) {
    std::ifstream file(FixtureFolder() + name, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

inline Byte HexByte(const std::string& digits, std::size_t at) {
    return static_cast<Byte>(std::stoi(digits.substr(at, 2), nullptr, 16));
}

inline std::vector<PictureFixture> PictureFixtures() {
    std::vector<PictureFixture> fixtures;
    std::ifstream lines(FixtureFolder() + "expected.txt");
    PictureFixture fixture;
    std::string digits;
    while (lines >> fixture.Name >> fixture.BitCount >> fixture.Width >> fixture.Height >> digits) {
        fixture.Pixels.clear();
        for (std::size_t at = 0; at < digits.size(); at += 8)
            fixture.Pixels.push_back(RgbQuad{HexByte(digits, at + 4), HexByte(digits, at + 2),
                                             HexByte(digits, at), HexByte(digits, at + 6)});
        fixtures.push_back(fixture);
    }
    return fixtures;
}

}  // namespace tamber::test
