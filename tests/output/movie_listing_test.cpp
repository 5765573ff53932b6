#include "output/MovieListing.h"

#include <gtest/gtest.h>

#include "swf/mdlZlib.h"

namespace tamber {
namespace {

void Add(Bytes& bytes, std::initializer_list<int> more) {
    for (const int byte : more) bytes.push_back(static_cast<Byte>(byte));
}

/// A version 6 movie without a stage, 12 frames a second, one frame, with these tags.
Bytes Movie(std::initializer_list<int> tags) {
    Bytes movie;
    Add(movie, {'F', 'W', 'S', 6, 0, 0, 0, 0, 0, 0, 12, 1, 0});
    Add(movie, tags);
    movie[4] = static_cast<Byte>(movie.size());
    return movie;
}

/// The listing behind the two lines of the header.
std::string Tags(const Bytes& movie) {
    const std::string text = MovieListing(movie).Text();
    return text.substr(text.find('\n', text.find('\n') + 1) + 1);
}

TEST(MovieListing, tells_tags_and_actions_of_frames_and_sprites) {
    const Bytes movie = Movie({
        0x02, 0x03, 0x06, 0x00,                                         // DoAction of 2 bytes.
        0xCA, 0x09, 1,    0,    1,    0,    0x02, 0x03, 0x07, 0, 0, 0,  // DefineSprite of 10.
        0xC4, 0x0E, 1,    0,    0x07, 0x00, 0,    0,                    // DoInitAction of 4, End.
    });
    EXPECT_EQ(MovieListing(movie).Text().substr(0, 24), "FWS version 6, 37 bytes\n");
    EXPECT_EQ(Tags(movie),
              "13 DoAction, 2 bytes\n"
              "       0  Play\n"
              "       1  End\n"
              "17 DefineSprite, 10 bytes\n"
              "  sprite 1\n"
              "  23 DoAction, 2 bytes\n"
              "         0  Stop\n"
              "         1  End\n"
              "  27 End, 0 bytes\n"
              "29 DoInitAction, 4 bytes\n"
              "  sprite 1\n"
              "       0  Stop\n"
              "       1  End\n"
              "35 End, 0 bytes\n");
}

TEST(MovieListing, tells_actions_of_clips_and_buttons) {
    // Flags of actions and a character; events, the one event's flags and length, its action.
    EXPECT_EQ(Tags(Movie({0x99, 0x06, 0x82, 1, 0, 1, 0, 0, 0, 2, 0, 0, 0, 2, 0,
                          0,    0,    2,    0, 0, 0, 6, 0, 0, 0, 0, 0, 0, 0})),
              "13 PlaceObject2, 25 bytes\n"
              "  events 2\n"
              "         0  Play\n"
              "         1  End\n"
              "40 End, 0 bytes\n");
    EXPECT_EQ(Tags(Movie({0x8C, 0x08, 1, 0, 0, 3, 0, 0, 0, 0, 8, 0, 7, 0, 0, 0})),
              "13 DefineButton2, 12 bytes\n"
              "  conditions 8\n"
              "         0  Stop\n"
              "         1  End\n"
              "27 End, 0 bytes\n");
    EXPECT_EQ(Tags(Movie({0xC5, 0x01, 1, 0, 0, 7, 0, 0, 0})),
              "13 DefineButton, 5 bytes\n"
              "       0  Stop\n"
              "       1  End\n"
              "20 End, 0 bytes\n");
}

TEST(MovieListing, opens_compressed_movies) {
    const Bytes movie = Movie({0x40, 0, 0, 0});
    const Bytes packed = mdlZlib::ZlibCompress(ByteView(movie).subspan(8));
    Bytes file(movie.begin(), movie.begin() + 8);
    file[0] = 'C';
    file.insert(file.end(), packed.begin(), packed.end());
    EXPECT_EQ(Tags(file), Tags(movie));
    EXPECT_EQ(Tags(file), "13 ShowFrame, 0 bytes\n15 End, 0 bytes\n");
    file.resize(file.size() - 8);
    EXPECT_FALSE(MovieListing(file).Fault().empty());
}

TEST(MovieListing, tells_of_damage) {
    const Bytes damaged[] = {
        {},
        {'F', 'W', 'S', 6, 0, 0, 0, 0},
        {'P', 'N', 'G', 6, 0, 0, 0, 0, 0, 0, 0, 0, 0},
        Movie({}),
        Movie({0x3F, 0x03, 0xFF, 0xFF, 0xFF, 0xFF}),
        Movie({0x03, 0x03, 0x96, 0x05, 0, 0, 0}),
        Movie({0x82, 0x08, 1, 0, 0, 0}),
        Movie({0x85, 0x08, 1, 0, 0, 99, 0, 0, 0}),
        Movie({0x81, 0x06, 0x82, 0, 0}),
        Movie({0xC2, 0x09, 1, 0, 0, 0}),
    };
    for (const Bytes& file : damaged) EXPECT_FALSE(MovieListing(file).Fault().empty());
    for (std::size_t i = 13; i < 24; ++i) {
        Bytes cut = Movie({0x8C, 0x08, 1, 0, 0, 3, 0, 0, 0, 0, 8, 0, 7, 0});
        cut.resize(i);
        EXPECT_FALSE(MovieListing(cut).Fault().empty()) << i;
    }
}

}  // namespace
}  // namespace tamber
