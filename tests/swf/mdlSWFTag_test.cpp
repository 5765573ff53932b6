#include "swf/mdlSWFTag.h"

#include <gtest/gtest.h>

#include "platform/RuntimeError.h"
#include "swf/SwfBits.h"
#include "tests/swf/Written.h"

namespace tamber {
namespace {

using test::Written;

TEST(BitLength, is_the_smallest_signed_width) {
    const struct {
        Long value;
        Long width;
        Long unsignedWidth;
    } cases[] = {{0, 1, 1},   {-1, 1, 1},  {1, 2, 1},    {-2, 2, 2},
                 {127, 8, 7}, {255, 9, 8}, {-128, 8, 8}, {-129, 9, 9}};
    for (const auto& c : cases) {
        EXPECT_EQ(mdlSWFTag::BitLength(c.value, false), c.width) << c.value;
        EXPECT_EQ(mdlSWFTag::BitLength(c.value, true), c.unsignedWidth) << c.value;
    }
}

TEST(SetBits, fills_from_the_most_significant_bit_and_aligns_before_bytes) {
    // 101 then 00000000001 gives 10100000 000001.., the next bytes begin on a boundary.
    EXPECT_EQ(Written([] {
                  mdlSWFTag::SetBits(3, 5);
                  mdlSWFTag::SetBits(11, 1);
                  mdlSWFTag::SetBytes(2, 0x1234);
              }),
              (Bytes{0xA0, 0x04, 0x34, 0x12}));
    EXPECT_EQ(Written([] { mdlSWFTag::SetBits(32, -2); }), (Bytes{0xFF, 0xFF, 0xFF, 0xFE}));
    EXPECT_EQ(Written([] { mdlSWFTag::SetBits(4, 0x1F); }), (Bytes{0xF0}));
}

TEST(SetBits, refuses_counts_out_of_range) {
    for (const Long count : {0, 33, -1}) EXPECT_THROW(mdlSWFTag::SetBits(count, 0), RuntimeError);
    for (const Long count : {0, 5}) EXPECT_THROW(mdlSWFTag::SetBytes(count, 0), RuntimeError);
}

TEST(SetRect, takes_the_width_of_the_widest_side) {
    EXPECT_EQ(Written([] { mdlSWFTag::SetRect(0, 0, 0, 0); }), (Bytes{0x08, 0x00}));
    // 6400 needs 14 bits: 01110, then 0, 01100100000000, 0, 01100100000000.
    EXPECT_EQ(Written([] { mdlSWFTag::SetRect(0, 6400, 0, 6400); }),
              (Bytes{0x70, 0x00, 0x0C, 0x80, 0x00, 0x00, 0xC8, 0x00}));
}

TEST(SetMatrix, of_identity_takes_nine_bits) {
    EXPECT_EQ(Written([] {
                  mdlSWFTag::SetMatrix({});
                  mdlSWFTag::SetBytes(1, 0xFF);
              }),
              (Bytes{0x02, 0x00, 0xFF}));
    EXPECT_EQ(Written([] {
                  mdlSWFTag::SetMatrixTransform(1, 1, 0, {0, 0}, {0, 0}, 0, 0);
              }),
              (Bytes{0x02, 0x00}));
}

/// The matrix that SetMatrixTransform wrote, read again.
SwfMatrix Transformed(Single sx, Single sy, Single angle, SwfPoint at, SwfPoint centre, Single kx,
                      Single ky) {
    const Bytes written =
        Written([&] { mdlSWFTag::SetMatrixTransform(sx, sy, angle, at, centre, kx, ky); });
    return SwfBits(written).GetMatrix();
}

TEST(SetMatrixTransform, composes_scale_rotation_skew_and_centre) {
    EXPECT_EQ(Transformed(2, 0.5f, 0, {100, 200}, {10, 20}, 0, 0),
              (SwfMatrix{0x20000, 0x8000, 0, 0, 80, 190}));
    // A quarter turn sends (10, 20) to (-20, 10); the cosine is not quite 0 but rounds to it.
    EXPECT_EQ(Transformed(1, 1, 90, {100, 200}, {10, 20}, 0, 0),
              (SwfMatrix{0, 0, 0x10000, -0x10000, 120, 190}));
    // The second skew works on what the first one left: a = 1 + 0.5 * 0.5.
    EXPECT_EQ(Transformed(1, 1, 0, {0, 0}, {0, 0}, 0.5f, 0.5f),
              (SwfMatrix{0x14000, 0x10000, 0x8000, 0x8000, 0, 0}));
}

TEST(SetCXFormWithAlpha, writes_only_the_groups_that_differ_from_identity) {
    EXPECT_EQ(Written([] { mdlSWFTag::SetCXFormWithAlpha({}); }), (Bytes{0x00}));
    // Alpha 128 of 256: flags 0 1, width 10 (256 needs it), 256 three times, 128.
    SwfColorTransform half;
    half.MultA = 128;
    EXPECT_EQ(Written([&] { mdlSWFTag::SetCXFormWithAlpha(half); }),
              (Bytes{0x69, 0x00, 0x40, 0x10, 0x02, 0x00}));
}

TEST(SetString, takes_the_code_page_below_version_6_and_UTF8_from_it) {
    mdlSWFTag::swfVersion(5);
    EXPECT_EQ(Written([] { mdlSWFTag::SetString(u"ア", true, true); }), (Bytes{0x83, 0x41, 0x00}));
    mdlSWFTag::swfVersion(6);
    EXPECT_EQ(Written([] { mdlSWFTag::SetString(u"ア", true, true); }),
              (Bytes{0xE3, 0x82, 0xA2, 0x00}));
    EXPECT_EQ(Written([] { mdlSWFTag::SetString(u"ア", false, false); }), (Bytes{0x83, 0x41}));
    EXPECT_EQ(Written([] { mdlSWFTag::SetString(u"", false, true); }), Bytes{});
}

TEST(SetTagHeader, is_short_below_63_bytes) {
    EXPECT_EQ(Written([] { mdlSWFTag::SetTagHeader(9, 3, false); }), (Bytes{0x43, 0x02}));
    EXPECT_EQ(Written([] { mdlSWFTag::SetTagHeader(9, 63, false); }),
              (Bytes{0x7F, 0x02, 63, 0, 0, 0}));
    EXPECT_EQ(Written([] { mdlSWFTag::SetTagHeader(9, 3, true); }),
              (Bytes{0x7F, 0x02, 3, 0, 0, 0}));
}

TEST(EndTagShortest, moves_a_body_of_62_bytes_down_and_leaves_one_of_63) {
    for (const std::size_t size : {62u, 63u}) {
        const Bytes bytes = Written([size] {
            const std::size_t body = mdlSWFTag::BeginTag(26);
            mdlSWFTag::SetByteArray(Bytes(size, 7));
            mdlSWFTag::EndTagShortest(26, body);
        });
        EXPECT_EQ(bytes.size(), size == 62 ? 64u : 69u);
        EXPECT_EQ(bytes[0], size == 62 ? 0xBE : 0xBF);
        EXPECT_EQ(bytes.back(), 7);
    }
}

TEST(SwfBits, reads_texts_and_raises_past_the_end) {
    const Bytes bytes{0x41, 0x42};
    EXPECT_THROW(SwfBits(bytes).GetString(6, 0, true), RuntimeError);
    EXPECT_THROW(SwfBits(bytes).GetString(6, 3, true), RuntimeError);
    EXPECT_THROW(SwfBits(bytes).GetUI(5), RuntimeError);
    SwfBits bits(bytes);
    EXPECT_EQ(bits.GetString(6, 2, true), u"AB");
    EXPECT_THROW(bits.GetUI(1), RuntimeError);
    EXPECT_THROW(bits.GetBits(1), RuntimeError);
}

TEST(SwfBits, begins_bytes_behind_the_byte_of_a_bit) {
    // 101, then 0x34 in a byte of its own; -3 in three bits.
    const Bytes bytes{0xBF, 0x34, 0xA0};
    SwfBits bits(bytes);
    EXPECT_EQ(bits.GetBits(3), 5u);
    EXPECT_EQ(bits.GetUI(1), 0x34u);
    EXPECT_EQ(bits.GetSBits(3), -3);
    EXPECT_TRUE(bits.IsEmpty());
}

}  // namespace
}  // namespace tamber
