#include <gtest/gtest.h>

#include "document/cells/clsCSV.h"
#include "platform/RuntimeError.h"

namespace tamber {
namespace {

using Row = std::vector<String>;

std::vector<Row> Table(const clsCSV& csv) {
    std::vector<Row> rows;
    for (Long y = 0; y < csv.Rows(); ++y) {
        Row row;
        for (Long x = 0; x < csv.RowLength(y); ++x) row.emplace_back(csv.GetValue(x, y));
        rows.push_back(row);
    }
    return rows;
}

TEST(CellStream, cuts_text_into_cells) {
    const struct {
        StringView Text;
        std::vector<Row> Cells;
    } cases[] = {
        {u"", {{u""}}},
        {u"\r\n", {{u""}}},
        {u"a", {{u"a"}}},
        {u"a,b\r\nc\r\n", {{u"a", u"b"}, {u"c"}}},
        {u"a,,b\n", {{u"a", u"", u"b"}}},
        {u"a,\n", {{u"a", u""}}},
        {u"a,", {{u"a"}}},
        {u"a\rb\nc\r\nd", {{u"a"}, {u"b"}, {u"c"}, {u"d"}}},
        {u"a\n\r\nb", {{u"a"}, {u""}, {u"b"}}},
        {u"\"a,b\",c", {{u"a,b", u"c"}}},
        {u"\"a\"\"b\"", {{u"a\"b"}}},
        {u"\"\"\"\"", {{u"\""}}},
        // A line end in quotes comes as CR LF, whatever it was.
        {u"\"a\nb\rc\r\nd\"", {{u"a\r\nb\r\nc\r\nd"}}},
        // A quote within a plain cell opens quoting and is not kept.
        {u"ab\"c,d\"e\n", {{u"abc,d\"e\r\n"}}},
        // A stray character behind the closing quote keeps the quote, unless nothing stood before.
        {u"\"ab\"c,d\",e", {{u"ab\"c,d", u"e"}}},
        {u"\"\"c,d\",e", {{u"c,d", u"e"}}},
        {u"\"open", {{u"open"}}},
        {u"表,ソ\r\n", {{u"表", u"ソ"}}},
    };
    for (const auto& c : cases) {
        clsCSV csv;
        csv.Text(String(c.Text));
        EXPECT_EQ(Table(csv), c.Cells) << testing::PrintToString(c.Text);
    }
}

TEST(CellStream, keeps_the_quote_before_a_stray_character_by_whole_pieces_of_256) {
    clsCSV csv;
    csv.Text(u"\"" + String(256, u'a') + u"\"b\"");
    EXPECT_EQ(csv.Value(), String(256, u'a') + u"b");
    csv.Text(u"\"" + String(257, u'a') + u"\"b\"");
    EXPECT_EQ(csv.Value(), String(257, u'a') + u"\"b");
}

TEST(CellStream, writes_cells_as_text) {
    clsCSV csv;
    csv.Put(u"plain");
    csv.Put(u"a,b");
    csv.Put(u"q\"r");
    csv.Put(Long{-12});
    csv.Put(true);
    csv.Put(1.5F);
    csv.CrLf();
    csv.SetValue(u"", 2, 1);
    csv.SetValue(u"l\nm", 0, 3);
    EXPECT_EQ(csv.Text(), u"plain,\"a,b\",\"q\"\"r\",-12,True,1.5\r\n,,\r\n\r\n\"l\nm\"\r\n");
    EXPECT_EQ(csv.colS(), 6);
}

TEST(CellStream, grows_a_row_by_the_given_number_of_cells) {
    clsCSV csv;
    csv.DefColSize(4);
    csv.SetValue(u"x", 1, 0);
    EXPECT_EQ(csv.Text(), u",x,,,\r\n");
    EXPECT_EQ(csv.colS(), 2);
    csv.SetValue(u"y", 4, 0);
    EXPECT_EQ(csv.Text(), u",x,,,y\r\n");
    csv.SetValue(u"z", 5, 0);
    EXPECT_EQ(csv.RowLength(0), 9);
}

TEST(CellStream, reading_outside_the_table_changes_nothing) {
    clsCSV csv;
    csv.Text(u"a\r\n");
    EXPECT_EQ(csv.GetValue(5, 0), u"");
    EXPECT_EQ(csv.GetValue(0, 9), u"");
    EXPECT_EQ(csv.Text(), u"a\r\n");
    EXPECT_FALSE(csv.SetValue(u"x", -2, 0));
}

TEST(CellStream, moves_its_cursor_within_bounds) {
    clsCSV csv;
    csv.Left();
    csv.Up();
    EXPECT_EQ(csv.X(), 0);
    EXPECT_EQ(csv.Y(), 0);
    csv.MovePosition(2147483647, -5);
    csv.MovePosition(1, 0);
    csv.Right();
    EXPECT_EQ(csv.X(), 2147483647);
    EXPECT_EQ(csv.Y(), 0);
    try {
        csv.X(-1);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, static_cast<Long>(0x80040001));
        EXPECT_EQ(error.Source, u"clsCSV");
        EXPECT_EQ(error.Description, u"範囲外の値が入力されました");
    }
    EXPECT_THROW(csv.QuoteCode(256), RuntimeError);
    EXPECT_THROW(csv.DefColSize(0), RuntimeError);
}

TEST(CellStream, keeps_rows_apart_when_an_earlier_one_grows) {
    clsCSV csv;
    csv.Text(u"a,b\r\nc,d\r\n");
    for (Long col = 2; col < 40; ++col) csv.SetValue(u"1", col, 0);
    csv.SetValue(u"e", 2, 1);
    csv.SetValue(csv.GetValue(1, 1), 0, 0);
    EXPECT_EQ(csv.GetValue(0, 0), u"d");
    EXPECT_EQ(csv.GetValue(39, 0), u"1");
    EXPECT_EQ(csv.GetSelText(0, 1, -1, 1), u"c,d,e\r\n");
}

TEST(CellStream, inserts_and_deletes_rows_and_columns) {
    clsCSV csv;
    csv.Text(u"a,b,c\r\nd\r\ne,f,g\r\n");
    csv.SetPosition(2, 1);
    csv.InsertRows(1, 2);
    EXPECT_EQ(csv.Text(), u"a,b,c\r\n\r\n\r\nd\r\ne,f,g\r\n");
    EXPECT_EQ(csv.Y(), 3);
    csv.DeleteRows(1, 3);
    EXPECT_EQ(csv.Text(), u"a,b,c\r\ne,f,g\r\n");
    EXPECT_EQ(csv.Y(), 1);
    csv.DeleteColumns(1, 1);
    EXPECT_EQ(csv.Text(), u"a,c\r\ne,g\r\n");
    EXPECT_EQ(csv.X(), 1);
    csv.DeleteRows(0, 5);
    EXPECT_EQ(csv.Text(), u"\r\n");
    EXPECT_EQ(csv.colS(), 1);
}

TEST(CellStream, seeks_and_sums) {
    clsCSV csv;
    csv.Text(u"k1,3\r\nk2,x,9\r\nj,4.5\r\n");
    EXPECT_EQ(csv.SeekColumn(u"k*", 0, 0, false), 0);
    EXPECT_EQ(csv.SeekColumn(u"k*", 0, 2, true), 1);
    EXPECT_EQ(csv.SeekColumn(u"z", 0, 0, false), -1);
    EXPECT_EQ(csv.SeekColumn(u"k*", 3, 0, false), -1);
    EXPECT_DOUBLE_EQ(csv.Sum(1, -1, 1, -1), 7.5);
    EXPECT_DOUBLE_EQ(csv.Ave(1, 2, 1, 0), 3.75);
    EXPECT_EQ(csv.Count(0, 0, -1, -1, u"k?"), 2);
    EXPECT_EQ(csv.Count(2, 0, 2, 2, u""), 2);
}

TEST(CellStream, writes_a_list_from_the_cursor_and_stays_there) {
    clsCSV csv;
    csv.X(1);
    const std::vector<String> values{u"a", u"b"};
    csv.Clip(values);
    EXPECT_EQ(csv.Text(), u",a,b\r\n");
    EXPECT_EQ(csv.X(), 1);
}

TEST(CellStream, cuts_a_command_line_at_blanks) {
    clsCSV csv;
    csv.SeparateCode(32);
    csv.Text(u"run \"C:\\My Files\\a.kvf\" -x");
    EXPECT_EQ(Table(csv), (std::vector<Row>{{u"run", u"C:\\My Files\\a.kvf", u"-x"}}));
}

TEST(CellStream, reads_millions_of_empty_rows_without_making_their_cells) {
    clsCSV csv;
    csv.DefColSize(128);
    csv.Text(String(2'000'000, u'\n'));
    EXPECT_EQ(csv.Rows(), 2'000'000);
    EXPECT_EQ(csv.colS(), 1);
}

TEST(CellStream, tells_its_progress_at_each_row) {
    clsCSV csv;
    std::vector<std::size_t> seen;
    csv.Progress = [&seen](std::size_t position, std::size_t) { seen.push_back(position); };
    csv.Text(u"ab\r\nc\n");
    EXPECT_EQ(seen, (std::vector<std::size_t>{4, 6, 6}));
}

}  // namespace
}  // namespace tamber
