#include <gtest/gtest.h>

#include <filesystem>

#include "platform/codepage.h"
#include "platform/files.h"
#include "tests/vector/ShapeText.h"
#include "vector/PdrReader.h"

namespace tamber::test {
namespace {

bool Read(const std::string& text, clsVector& vector) {
    return ReadPdrBytes(Bytes(text.begin(), text.end()), vector);
}

/// A file of 100 x 50 pixels around the rows of its objects.
std::string File(int version, int count, const std::string& objects) {
    return "PDR0" + std::to_string(version) + "\r\n100,50\r\nskipped,\"by, all\"\r\n" +
           std::to_string(count) + "\r\n" + objects;
}

/// An object of version 20 to 29 without line and fill.
std::string PlainObject(int last, bool closed, const std::string& points) {
    return std::to_string(last) + (closed ? ",True" : ",False") +
           ",30,0,255,0,0,0,0,0,1,0,,,False,0\r\n" + points;
}

struct ContourCase {
    const char* Name;
    bool Closed;
    int Last;
    const char* Points;
    const char* Drawn;
};

TEST(Pdr, contours_are_drawn_as_worked_out_by_hand) {
    const ContourCase cases[] = {
        {"straight", true, 2, "0,0,0\n0,100,0\n0,0,100\n", "M0,0 L100,0 L0,100 L0,0"},
        {"one point", true, 0, "0,5,6\n", "M5,6 L5,6"},
        {"curve within", true, 2, "0,0,0\n1,50,50\n0,100,0\n", "M0,0 C50,50,100,0 L0,0"},
        {"control points only", true, 3, "1,0,0\n1,100,0\n1,100,100\n1,0,100\n",
         "M50,0 C100,0,100,50 C100,100,50,100 C0,100,0,50 C0,0,50,0"},
        {"control point first", true, 2, "1,50,-50\n0,100,0\n0,0,0\n", "M100,0 L0,0 C50,-50,100,0"},
        {"control point last", true, 2, "0,0,0\n0,100,0\n-1,50,80\n",
         "M0,0 L100,0 C50,80,0,0 L0,0"},
        {"first and last two", true, 3, "1,0,0\n0,10,0\n0,10,10\n1,0,10\n",
         "M10,0 L10,10 C0,10,0,5 C0,0,10,0"},
        {"halves go towards zero", true, 1, "1,-3,0\n1,0,5\n", "M-1,2 C0,5,-1,2 C-3,0,-1,2"},
        {"ends of an open path", false, 2, "1,0,0\n0,10,0\n1,20,0\n", "l1 M0,0 L10,0 L20,0"},
        {"beyond all bounds", true, 1, "0,2147483647,-2147483648\n0,-2147483648,0\n",
         "M536870912,-536870912 L-536870912,0 L536870912,-536870912"},
    };
    for (const ContourCase& c : cases) {
        SCOPED_TRACE(c.Name);
        clsVector vector;
        ASSERT_TRUE(Read(File(20, 1, PlainObject(c.Last, c.Closed, c.Points)), vector));
        EXPECT_EQ(ShapeTexts(vector), c.Drawn + std::string("\n"));
    }
}

TEST(Pdr, rows_of_each_version_hold_the_cells_that_it_knows) {
    const std::string points = "0,0,0\n0,20,0\n";
    struct {
        int Version;
        const char* Head;
        Single ScaleY;
        std::size_t Stops;
        Long ID;
    } const cases[] = {
        {19, "1,True,20,1,7,2,1,100,200,45,0.5,2,,", 0.5f, 2, 1},
        {20, "1,True,20,1,7,2,1,100,200,45,0.5,2,True,9,True,4", 0.5f, 2, 2},
        {29, "1,True,20,1,7,2,1,100,200,45,0.5,2,,what,True,4", 0.5f, 2, 2},
        {30, "1,True,20,1,7,2,1,100,200,45,0.5,0.25,2,,,True,4\n1\n3,128", 0.25f, 3, 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Version);
        const std::string object = c.Head + ("\n" + points);
        clsVector vector;
        ASSERT_TRUE(Read(File(c.Version, 2, object + object), vector));
        EXPECT_EQ(vector.Width, 100);
        EXPECT_EQ(vector.height, 50);
        // From version 20 on both objects go into the shape of their number.
        ASSERT_EQ(vector.inVector->colShapeData.size(), c.ID == 2 ? 1u : 2u);
        const clsVectorData2& piece = *vector.inVector->ShapeDataTbl(1);
        EXPECT_EQ(piece.Ver, 3);
        EXPECT_EQ(ShapeText(*piece.inSWFTShapeRecords),
                  c.ID == 2 ? "a1 l1 M0,0 L20,0 L0,0 l2 M0,0 L20,0 L0,0" : "a1 l1 M0,0 L20,0 L0,0");
        EXPECT_EQ(piece.inSWFTShapeRecords->GetBounds(false), (SwfRect{-10, -10, 30, 10}));
        const auto* fill = piece.colFillStyles->at(0).StyleAs<clsSWFTFillLinearRadial>();
        ASSERT_NE(fill, nullptr);
        EXPECT_EQ(fill->inMatrix.GradCenterX, 100);
        EXPECT_EQ(fill->inMatrix.GradCenterY, 200);
        EXPECT_EQ(fill->inMatrix.GradAngle, 45.0f);
        EXPECT_EQ(fill->inMatrix.GradScaleX, 0.5f);
        EXPECT_EQ(fill->inMatrix.GradScaleY, c.ScaleY);
        EXPECT_FALSE(fill->inMatrix.blMatrix2);
        EXPECT_EQ(fill->ColorTbl.size(), c.Stops);
        EXPECT_EQ(piece.colLineStyles->at(0).Width, 20);
    }
}

TEST(Pdr, stop_tables_follow_the_kind_of_fill) {
    constexpr Long A = -16777215, B = -16777214, C = -16777213, D = -16777212;
    struct {
        int Kind;
        int Count;
        const char* Stops;
        Long Mode;
        std::vector<Long> Colors;
        std::vector<Byte> Positions;
    } const cases[] = {
        {2, 0, "", 1, {A, B}, {0, 255}},
        {2, 2, "-16777213,60\n-16777212,200\n", 1, {A, C, D, B}, {0, 60, 200, 255}},
        {4, 1, "-16777213,60\n", 2, {A, C, B}, {0, 60, 255}},
        {3, 0, "", 1, {A, B, A}, {0, 128, 255}},
        {3,
         2,
         "-16777213,61\n-16777212,200\n",
         1,
         {A, C, D, B, D, C, A},
         {0, 30, 100, 128, 155, 225, 255}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.Kind) + " with " + std::to_string(c.Count));
        const std::string object = "0,True,0,0,0," + std::to_string(c.Kind) +
                                   ",-16777215,0,0,0,1,1,-16777214,,,False,0\n" +
                                   std::to_string(c.Count) + "\n" + c.Stops + "0,0,0\n";
        clsVector vector;
        ASSERT_TRUE(Read(File(30, 1, object), vector));
        const clsSWFTFillStyle& fill = vector.inVector->ShapeDataTbl(1)->colFillStyles->at(0);
        EXPECT_EQ(fill.FillMode(), c.Mode);
        EXPECT_EQ(fill.StyleAs<clsSWFTFillLinearRadial>()->ColorTbl, c.Colors);
        EXPECT_EQ(fill.StyleAs<clsSWFTFillLinearRadial>()->ColorPosTbl, c.Positions);
    }
}

TEST(Pdr, the_first_contour_of_a_shape_decides_on_its_fill) {
    const auto object = [](const char* closed, int line, int fill, const char* shape) {
        return "1," + std::string(closed) + ",7," + std::to_string(line) + ",-1," +
               std::to_string(fill) + ",-16777000,0,0,0,1,0,,," + shape + "\n0,0,0\n0,9,0\n";
    };
    clsVector vector;
    ASSERT_TRUE(Read(File(20, 7,
                          object("True", 1, 1, "True,5") + object("False", 0, 1, "False,5") +
                              object("True", 0, 1, "True,5") + object("True", 0, 0, "True,5") +
                              object("True", 0, 1, "True,-6") + object("True", 0, 1, "False,5") +
                              object("True", 0, 1, "True,-6")),
                     vector));
    EXPECT_EQ(ShapeTexts(vector),
              "a1 l1 M0,0 L9,0 L0,0 l0 M0,0 L9,0 L0,0 a0 M0,0 L9,0 L0,0\n"
              "l1 M0,0 L9,0\n"
              "a1 M0,0 L9,0 L0,0 M0,0 L9,0 L0,0\n"
              "a1 M0,0 L9,0 L0,0\n");
    const clsVectorData2& first = *vector.inVector->ShapeDataTbl(1);
    EXPECT_EQ(first.colFillStyles->size(), 1u);
    EXPECT_EQ(SolidColorOf(first, 1), 0xFF000000u + 216);
    EXPECT_EQ(static_cast<std::uint32_t>(first.colLineStyles->at(0).Color), 0xFFFFFFFFu);
    EXPECT_EQ(first.inSWFTShapeRecords->GetBounds(false), (SwfRect{-3, -3, 12, 3}));
}

TEST(Pdr, colours_are_opaque_where_no_colour_of_the_file_has_alpha) {
    const auto file = [](const char* line, const char* fill) {
        return File(
            20, 1,
            "0,True,20,1," + std::string(line) + ",1," + fill + ",0,0,0,1,0,,,False,0\n0,0,0\n");
    };
    struct {
        const char* Line;
        const char* Fill;
        std::uint32_t LineColor, FillColor;
    } const cases[] = {
        {"255", "65280", 0xFF0000FF, 0xFF00FF00},
        {"16777471", "65280", 0x010000FF, 0x0000FF00},
    };
    for (const auto& c : cases) {
        clsVector vector;
        ASSERT_TRUE(Read(file(c.Line, c.Fill), vector));
        const clsVectorData2& piece = *vector.inVector->ShapeDataTbl(1);
        EXPECT_EQ(static_cast<std::uint32_t>(piece.colLineStyles->at(0).Color), c.LineColor);
        EXPECT_EQ(SolidColorOf(piece, 1), c.FillColor);
    }
}

TEST(Pdr, damaged_files_are_refused) {
    const std::string point = "0,0,0\n";
    const struct {
        const char* Name;
        std::string Text;
    } cases[] = {
        {"empty", ""},
        {"small letters", "pdr020\n1,1\n\n0\n"},
        {"letters for digits", "PDR0A0\n1,1\n\n0\n"},
        {"four digits", "PDR0200\n1,1\n\n0\n"},
        {"no size", "PDR020\n\n\n0\n"},
        {"size beyond twips", "PDR020\n200000000,1\n\n0\n"},
        {"negative size", "PDR020\n-1,1\n\n0\n"},
        {"countless objects", File(20, 2147483647, PlainObject(0, true, point))},
        {"countless points", File(20, 1, PlainObject(2147483647, true, point))},
        {"no points", File(20, 1, PlainObject(-1, true, point))},
        {"a lone control point", File(20, 1, PlainObject(0, true, "1,0,0\n"))},
        {"coordinate beyond Long", File(20, 1, PlainObject(0, true, "0,0,3000000000\n"))},
        {"unknown fill", File(20, 1, "0,True,0,0,0,5,0,0,0,0,1,0,,,False,0\n" + point)},
        {"countless stops",
         File(30, 1, "0,True,0,0,0,2,0,0,0,0,1,1,0,,,False,0\n2147483647\n" + point)},
        {"stop beyond 255",
         File(30, 1, "0,True,0,0,0,2,0,0,0,0,1,1,0,,,False,0\n1\n0,256\n" + point)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        clsVector vector;
        EXPECT_FALSE(Read(c.Text, vector));
    }
}

TEST(Pdr, a_file_cut_before_its_last_cell_is_refused) {
    const std::string whole =
        File(30, 2,
             "1,True,20,1,7,3,1,100,200,45,0.5,0.25,2,,,True,4\n1\n3,128\n0,0,0\n1,20,0\n"
             "0,False,20,1,7,0,1,0,0,0,1,1,2,,,False,4\n0\n0,0,7");
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        clsVector vector;
        EXPECT_EQ(Read(whole.substr(0, size), vector), size == whole.size()) << size;
    }
}

TEST(Pdr, a_newer_version_is_told_and_the_progress_display_goes_in_every_case) {
    const auto path = std::filesystem::path(testing::TempDir()) / "図形_pdr_test.pdr";
    const struct {
        std::string Text;
        bool Read;
        const char16_t* Message;
    } cases[] = {
        {File(30, 3,
              "0,True,0,0,0,0,0,0,0,0,1,1,0,,,False,0\n0\n0,0,0\n"
              "0,True,0,0,0,0,0,0,0,0,1,1,0,,,False,0\n0\n0,0,0\n"
              "0,True,0,0,0,0,0,0,0,0,1,1,0,,,False,0\n0\n0,0,0\n"),
         true, u""},
        {File(20, 3, PlainObject(0, true, "0,0,0\n")), false, u""},
        {File(31, 0, ""), false, u"非対応のバージョンです。"},
    };
    for (const auto& c : cases) {
        ListeningUserInterface ui;
        const UserInterfaceScope scope(ui);
        const String name = FromNarrow(path.string());
        ASSERT_TRUE(WriteFileBytes(Bytes(c.Text.begin(), c.Text.end()), name));
        clsVector vector;
        EXPECT_EQ(vector.LoadFromFile(name), c.Read);
        EXPECT_EQ(ui.LastMessage, c.Message);
        EXPECT_EQ(ui.ProgressText, u"ベクタファイル読込中...[図形_pdr_test.pdr]");
        EXPECT_GT(ui.Total, 0);
        EXPECT_EQ(ui.Done, ui.Total);
    }
    std::filesystem::remove(path);
    clsVector vector;
    EXPECT_FALSE(ReadPdrFile(FromNarrow(path.string()), vector));
}

}  // namespace
}  // namespace tamber::test
