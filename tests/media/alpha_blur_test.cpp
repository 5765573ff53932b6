#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "media/clsDib.h"

namespace tamber::test {
namespace {

/// The blur as it is told: every weight of the square around a pixel, one by one.
Bytes BlurredOneByOne(const Bytes& plane, Long width, Long height, Long n) {
    Bytes result;
    for (Long y = 0; y < height; ++y)
        for (Long x = 0; x < width; ++x) {
            std::int64_t sum = 0;
            std::int64_t weights = 0;
            for (Long dy = -n; dy <= n; ++dy)
                for (Long dx = -n; dx <= n; ++dx) {
                    const std::int64_t weight =
                        static_cast<std::int64_t>(n - std::abs(dx) + 1) * (n - std::abs(dy) + 1);
                    const Long row = std::clamp(y + dy, 0, height - 1);
                    const Long column = std::clamp(x + dx, 0, width - 1);
                    sum += weight * plane[static_cast<std::size_t>(row * width + column)];
                    weights += weight;
                }
            result.push_back(static_cast<Byte>(sum / weights));
        }
    return result;
}

clsDib WithPlane(const Bytes& plane, Long width, Long height) {
    clsDib dib;
    dib.Create(width, height, 32);
    dib.ADib = plane;
    return dib;
}

TEST(AlphaBlur, weighs_the_neighbours_of_a_single_pixel) {
    // Weights 1 2 1, 2 4 2, 1 2 1, sum 16; a pixel of 240 among zeros.
    clsDib dib = WithPlane({0, 0, 0, 0, 240, 0, 0, 0, 0}, 3, 3);
    dib.BlendAlpha(1);
    EXPECT_EQ(dib.ADib, Bytes({15, 30, 15, 30, 60, 30, 15, 30, 15}));
}

TEST(AlphaBlur, repeats_the_pixels_of_the_edge) {
    // In a row of 160 and 0 the first pixel sees 160 160 0 with weights 1 2 1: 480 / 4 = 120, in
    // every row the same.
    clsDib dib = WithPlane({160, 0}, 2, 1);
    dib.BlendAlpha(1);
    EXPECT_EQ(dib.ADib, Bytes({120, 40}));
}

TEST(AlphaBlur, equals_the_sum_of_all_weights) {
    std::mt19937 random(1);
    const Long sizes[][2] = {{1, 1}, {1, 9}, {9, 1}, {17, 13}, {40, 5}};
    for (const auto& [width, height] : sizes)
        for (const Long n : {0, 1, 2, 3, 7, 20, 60}) {
            Bytes plane(static_cast<std::size_t>(width * height));
            for (Byte& value : plane) value = random() % 3 == 0 ? 0 : static_cast<Byte>(random());
            clsDib dib = WithPlane(plane, width, height);
            dib.BlendAlpha(n);
            EXPECT_EQ(dib.ADib, BlurredOneByOne(plane, width, height, n))
                << width << 'x' << height << " n " << n;
        }
}

TEST(AlphaBlur, holds_its_reach_within_limits) {
    const Bytes plane{255, 0, 255, 255, 9, 100};
    clsDib none = WithPlane(plane, 3, 2);
    none.BlendAlpha(-5);
    EXPECT_EQ(none.ADib, plane);
    clsDib most = WithPlane(plane, 3, 2);
    most.BlendAlpha(0x7FFFFFFF);
    EXPECT_EQ(most.ADib, BlurredOneByOne(plane, 3, 2, clsDib::MaxBlur));
    clsDib opaque = WithPlane(Bytes(6, 255), 3, 2);
    opaque.BlendAlpha(clsDib::MaxBlur);
    EXPECT_EQ(opaque.ADib, Bytes(6, 255));
}

TEST(AlphaBlur, gives_the_weights_of_an_axis) {
    EXPECT_EQ(clsDib::GetAlphaTbl(2), std::vector<Long>({1, 2, 3, 2, 1}));
    EXPECT_EQ(clsDib::GetAlphaTbl(0), std::vector<Long>({1}));
}

}  // namespace
}  // namespace tamber::test
