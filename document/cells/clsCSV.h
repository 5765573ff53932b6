#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// A table of texts with a cursor: the cell stream behind project files and data files.
///
/// Columns and rows count from 0. Reading a cell outside the table gives an empty text; writing one
/// grows the table. A text view that a getter returns holds until the table is next written.
class clsCSV {
public:
    /// Called at each row end of a reading with the position in the text and the text's length.
    std::function<void(std::size_t position, std::size_t length)> Progress;

    Long X() const { return x_; }
    void X(Long value);
    Long Y() const { return y_; }
    void Y(Long value);
    /// Widest row so far.
    Long colS() const { return widest_; }
    Long Rows() const { return static_cast<Long>(rows_.size()); }
    /// Cells of a row as the text form shows them; 0 for a row outside the table.
    Long RowLength(Long row) const;
    Long QuoteCode() const { return quote_; }
    void QuoteCode(Long value);
    Long SeparateCode() const { return separator_; }
    void SeparateCode(Long value);
    /// How many cells a row grows by when it is written beyond its end; at least 1.
    Long DefColSize() const { return growth_; }
    void DefColSize(Long value);

    StringView Value() const { return Cell(x_, y_); }
    void Value(StringView text) { SetValue(text); }
    /// -1 means the cursor's column or row.
    StringView GetValue(Long col = -1, Long row = -1) const;
    /// False for a position below -1 or beyond `MaxColumn` or `MaxRow`.
    bool SetValue(StringView text, Long col = -1, Long row = -1);

    void Right();
    void Left();
    void Down();
    void Up();
    /// To the first column of the next row.
    void CrLf();
    void SetPosition(Long x, Long y);
    /// Moves the cursor; below 0 gives 0, an overflow the highest Long.
    void MovePosition(Long dx, Long dy);
    /// Writes the texts from the cursor rightwards and leaves the cursor where it stood.
    void Clip(std::span<const String> values);
    void Clear();

    /// Writes the cell and moves right.
    void Put(Long value);
    void Put(Single value);
    void Put(bool value);
    void Put(StringView value);
    void Put(const char16_t* value) { Put(StringView(value)); }
    void Put(const String& value) { Put(StringView(value)); }
    /// Reads the cell and moves right. A cell that stands for no such value raises a RuntimeError.
    Long TakeLong();
    Single TakeSingle();
    bool TakeBoolean();
    Byte TakeByte();
    String TakeText();

    String Text() const;
    void Text(String text);
    /// A rectangle as text. Negative bounds mean 0 and the last.
    String GetSelText(Long col1, Long row1, Long col2, Long row2) const;

    /// Inserts empty rows before `row`, -1 being the cursor's; the cursor moves with its row.
    void InsertRows(Long row, Long count);
    void DeleteRows(Long row, Long count);
    void DeleteColumns(Long col, Long count);
    /// First row from `row` whose cell in `col` matches the wildcard pattern, -1 when none does.
    Long SeekColumn(StringView pattern, Long col, Long row, bool backwards) const;
    /// Over the numeric cells of a rectangle.
    double Sum(Long col1, Long row1, Long col2, Long row2) const;
    double Ave(Long col1, Long row1, Long col2, Long row2) const;
    /// Cells of a rectangle that match. With an empty pattern, cells missing at the end of short
    /// rows count.
    Long Count(Long col1, Long row1, Long col2, Long row2, StringView pattern) const;

    /// Creates missing folders. False when the file cannot be written.
    bool SaveToFile(StringView path) const;
    bool LoadFromFile(StringView path);

    static constexpr Long MaxColumn = (1 << 24) - 1;
    static constexpr Long MaxRow = (1 << 26) - 1;

private:
    struct Span {
        std::uint32_t Offset = 0;
        std::uint32_t Length = 0;
    };
    /// A row's cells in the pool. Cells between Count and Length are empty and take no room.
    struct Row {
        std::uint32_t Begin = 0;
        std::uint32_t Count = 0;
        std::uint32_t Capacity = 0;
        std::uint32_t Length = 1;
    };
    struct Rectangle {
        Long Col1, Row1, Col2, Row2;
    };

    StringView Cell(Long col, Long row) const;
    StringView View(Span span) const;
    Span Append(StringView text);
    void Store(Span span, Long col, Long row);
    void StoreRead(Span span, Long col);
    Span& Materialise(Row& row, std::uint32_t col);
    void AppendCell(String& out, StringView cell) const;
    bool Normalise(Rectangle& area) const;
    void Scan();
    static void Check(bool valid);

    Long x_ = 0;
    Long y_ = 0;
    Long quote_ = 34;
    Long separator_ = 44;
    Long growth_ = 1;
    Long widest_ = 1;
    /// The text last read; cells that stand in it as they are point into it. An offset at or above
    /// its size points into `added_`.
    String source_;
    String added_;
    std::vector<Span> cells_;
    std::vector<Row> rows_{Row{}};
};

}  // namespace tamber
