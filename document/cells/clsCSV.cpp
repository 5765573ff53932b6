#include "document/cells/clsCSV.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long HighestLong = std::numeric_limits<Long>::max();
/// A quoted cell is collected in pieces of this many characters. Behind a closing quote, a stray
/// character keeps that quote only when the piece at hand holds something.
constexpr std::size_t PieceSize = 256;

double ToDouble(StringView text) {
    const String trimmed = Trim(text);
    std::string narrow;
    narrow.reserve(trimmed.size());
    for (const char16_t c : trimmed) narrow.push_back(c < 128 ? static_cast<char>(c) : '?');
    const char* first = narrow.c_str();
    if (*first == '+') ++first;
    double value = 0;
    std::from_chars(first, narrow.c_str() + narrow.size(), value);
    return value;
}

Long AddClamped(Long a, Long b) {
    const std::int64_t sum = std::int64_t{a} + b;
    return static_cast<Long>(std::clamp<std::int64_t>(sum, 0, HighestLong));
}

}  // namespace

void clsCSV::Check(bool valid) {
    if (!valid) throw RuntimeError(ErrorOutOfRangeInput, u"clsCSV", u"範囲外の値が入力されました");
}

void clsCSV::X(Long value) {
    Check(value >= 0);
    x_ = value;
}

void clsCSV::Y(Long value) {
    Check(value >= 0);
    y_ = value;
}

Long clsCSV::RowLength(Long row) const {
    if (row < 0 || row >= Rows()) return 0;
    return static_cast<Long>(rows_[static_cast<std::size_t>(row)].Length);
}

void clsCSV::QuoteCode(Long value) {
    Check(value >= 0 && value <= 255);
    quote_ = value;
}

void clsCSV::SeparateCode(Long value) {
    Check(value >= 0 && value <= 255);
    separator_ = value;
}

void clsCSV::DefColSize(Long value) {
    Check(value >= 1 && value <= MaxColumn);
    growth_ = value;
}

StringView clsCSV::View(Span span) const {
    if (span.Offset < source_.size()) return StringView(source_).substr(span.Offset, span.Length);
    return StringView(added_).substr(span.Offset - source_.size(), span.Length);
}

StringView clsCSV::Cell(Long col, Long row) const {
    if (row >= Rows() || row < 0 || col < 0) return {};
    const Row& r = rows_[static_cast<std::size_t>(row)];
    if (static_cast<std::uint32_t>(col) >= r.Count) return {};
    const Span span = cells_[r.Begin + static_cast<std::uint32_t>(col)];
    return span.Length == 0 ? StringView() : View(span);
}

StringView clsCSV::GetValue(Long col, Long row) const {
    return Cell(col == -1 ? x_ : col, row == -1 ? y_ : row);
}

clsCSV::Span clsCSV::Append(StringView text) {
    if (text.empty()) return {};
    const std::size_t offset = source_.size() + added_.size();
    Check(text.size() <= std::numeric_limits<std::uint32_t>::max() - offset);
    added_.append(text);
    return {static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(text.size())};
}

bool clsCSV::SetValue(StringView text, Long col, Long row) {
    if (col == -1) col = x_;
    if (row == -1) row = y_;
    if (col < 0 || row < 0 || col > MaxColumn || row > MaxRow) return false;
    Store(Append(text), col, row);
    return true;
}

clsCSV::Span& clsCSV::Materialise(Row& row, std::uint32_t col) {
    const std::uint32_t needed = col + 1;
    if (needed > row.Capacity) {
        if (std::size_t{row.Begin} + row.Capacity == cells_.size()) {
            // The pool's last row grows where it stands.
            cells_.resize(std::size_t{row.Begin} + needed);
            row.Capacity = needed;
        } else {
            const std::uint32_t capacity = std::max(needed, row.Capacity * 2);
            const std::size_t begin = cells_.size();
            Check(begin + capacity <= std::numeric_limits<std::uint32_t>::max());
            cells_.resize(begin + capacity);
            std::copy_n(cells_.begin() + row.Begin, row.Count,
                        cells_.begin() + static_cast<std::ptrdiff_t>(begin));
            row.Begin = static_cast<std::uint32_t>(begin);
            row.Capacity = capacity;
        }
    }
    if (needed > row.Count) {
        std::fill(cells_.begin() + row.Begin + row.Count, cells_.begin() + row.Begin + needed,
                  Span{});
        row.Count = needed;
    }
    return cells_[row.Begin + col];
}

void clsCSV::Store(Span span, Long col, Long row) {
    if (row >= Rows()) rows_.resize(static_cast<std::size_t>(row) + 1);
    Row& r = rows_[static_cast<std::size_t>(row)];
    const auto column = static_cast<std::uint32_t>(col);
    if (column >= r.Length) r.Length = column + static_cast<std::uint32_t>(growth_);
    // An empty cell behind the last written one needs no place.
    if (span.Length != 0 || column < r.Count) Materialise(r, column) = span;
    widest_ = std::max(widest_, col + 1);
}

void clsCSV::Right() {
    x_ = AddClamped(x_, 1);
}

void clsCSV::Left() {
    if (x_ > 0) --x_;
}

void clsCSV::Down() {
    y_ = AddClamped(y_, 1);
}

void clsCSV::Up() {
    if (y_ > 0) --y_;
}

void clsCSV::CrLf() {
    x_ = 0;
    Down();
}

void clsCSV::SetPosition(Long x, Long y) {
    X(x);
    Y(y);
}

void clsCSV::MovePosition(Long dx, Long dy) {
    x_ = AddClamped(x_, dx);
    y_ = AddClamped(y_, dy);
}

void clsCSV::Clip(std::span<const String> values) {
    for (std::size_t i = values.size(); i-- > 0;)
        SetValue(values[i], AddClamped(x_, static_cast<Long>(i)));
}

void clsCSV::Clear() {
    source_.clear();
    added_.clear();
    cells_.clear();
    rows_.assign(1, Row{});
    widest_ = 1;
    x_ = 0;
    y_ = 0;
}

void clsCSV::Put(Long value) {
    char digits[12];
    char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    char16_t wide[12];
    const auto length = static_cast<std::size_t>(std::copy(digits, end, wide) - wide);
    Put(StringView(wide, length));
}

void clsCSV::Put(Single value) {
    Put(StringView(ToText(value)));
}

void clsCSV::Put(bool value) {
    Put(value ? StringView(u"True") : StringView(u"False"));
}

void clsCSV::Put(StringView value) {
    Check(SetValue(value));
    Right();
}

Long clsCSV::TakeLong() {
    const Long value = ToLong(Value());
    Right();
    return value;
}

Single clsCSV::TakeSingle() {
    const Single value = ToSingle(Value());
    Right();
    return value;
}

bool clsCSV::TakeBoolean() {
    const bool value = ToBoolean(Value());
    Right();
    return value;
}

Byte clsCSV::TakeByte() {
    const Byte value = ToByte(Value());
    Right();
    return value;
}

String clsCSV::TakeText() {
    String value(Value());
    Right();
    return value;
}

void clsCSV::AppendCell(String& out, StringView cell) const {
    const auto quote = static_cast<char16_t>(quote_);
    const auto separator = static_cast<char16_t>(separator_);
    bool special = false;
    bool quoted = false;
    for (const char16_t c : cell) {
        quoted |= c == quote;
        special |= c == separator || c == u'\n' || c == u'\r';
    }
    if (!quoted && !special) {
        out.append(cell);
        return;
    }
    out.push_back(quote);
    for (const char16_t c : cell) {
        if (c == quote) out.push_back(quote);
        out.push_back(c);
    }
    out.push_back(quote);
}

String clsCSV::Text() const {
    String out;
    out.reserve(source_.size() + added_.size() + cells_.size() + rows_.size() * 2);
    const auto separator = static_cast<char16_t>(separator_);
    for (const Row& row : rows_) {
        for (std::uint32_t col = 0; col < row.Count; ++col) {
            if (col != 0) out.push_back(separator);
            const Span span = cells_[row.Begin + col];
            if (span.Length != 0) AppendCell(out, View(span));
        }
        out.append(row.Length - std::max<std::uint32_t>(row.Count, 1), separator);
        out.append(vbCrLf);
    }
    return out;
}

void clsCSV::Text(String text) {
    Clear();
    Check(text.size() < std::numeric_limits<std::uint32_t>::max());
    source_ = std::move(text);
    Scan();
}

void clsCSV::StoreRead(Span span, Long col) {
    Row& row = rows_.back();
    const auto column = static_cast<std::uint32_t>(col);
    row.Length = column < row.Length ? row.Length : column + static_cast<std::uint32_t>(growth_);
    if (column >= static_cast<std::uint32_t>(widest_)) widest_ = col + 1;
    if (span.Length == 0) return;
    // While reading, the last row's cells stand at the pool's end.
    if (row.Count == 0) row.Begin = static_cast<std::uint32_t>(cells_.size());
    for (; row.Count < column; ++row.Count) cells_.push_back({});
    cells_.push_back(span);
    row.Capacity = ++row.Count;
}

void clsCSV::Scan() {
    const auto quote = static_cast<char16_t>(quote_);
    const auto separator = static_cast<char16_t>(separator_);
    const char16_t* const text = source_.data();
    const std::size_t length = source_.size();
    bool stops[256] = {};
    for (const char16_t c : {quote, separator, u'\n', u'\r'}) stops[c] = true;

    std::size_t at = 0;
    Long col = 0;
    bool rowOpen = true;
    // What the cell holds so far: a stretch of the text as it stands, or once that no longer does,
    // characters collected apart.
    std::size_t begin = 0;
    String apart;
    bool collected = false;
    enum { Outside, Inside, BehindQuote } state = Outside;

    const auto endCell = [&](std::size_t end) {
        Check(col <= MaxColumn);
        if (collected) {
            StoreRead(Append(apart), col);
            apart.clear();
            collected = false;
        } else {
            StoreRead({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end - begin)},
                      col);
        }
    };
    while (at < length) {
        if (!rowOpen) {
            Check(Rows() <= MaxRow);
            rows_.emplace_back();
            rowOpen = true;
        }
        if (state == Outside) {
            const std::size_t from = at;
            while (at < length && (text[at] >= 256 || !stops[text[at]])) ++at;
            if (collected) apart.append(text + from, at - from);
            if (at == length) break;
        }
        const char16_t c = text[at];
        const bool lineEnd = c == u'\r' || c == u'\n';
        const std::size_t next =
            c == u'\r' && at + 1 < length && text[at + 1] == u'\n' ? at + 2 : at + 1;
        switch (state) {
            case Outside:
            case BehindQuote:
                // A code may serve as both; then it quotes.
                if (c == quote) {
                    if (state == Outside) {
                        if (!collected) apart.assign(text + begin, at - begin);
                        collected = true;
                    } else {
                        apart.push_back(quote);
                    }
                    state = Inside;
                    at += 1;
                } else if (c == separator) {
                    endCell(at);
                    ++col;
                    state = Outside;
                    begin = at += 1;
                } else if (lineEnd) {
                    endCell(at);
                    state = Outside;
                    col = 0;
                    rowOpen = false;
                    begin = at = next;
                    if (Progress) Progress(at, length);
                } else {
                    if (apart.size() % PieceSize != 0) apart.push_back(quote);
                    apart.push_back(c);
                    state = Inside;
                    at += 1;
                }
                break;
            case Inside:
                if (c == quote) {
                    state = BehindQuote;
                    at += 1;
                } else if (lineEnd) {
                    apart.append(vbCrLf);
                    at = next;
                } else {
                    const std::size_t from = at;
                    while (at < length && text[at] != quote && text[at] != u'\r' &&
                           text[at] != u'\n')
                        ++at;
                    apart.append(text + from, at - from);
                }
                break;
        }
    }
    if (collected ? !apart.empty() : begin < length) endCell(length);
    if (Progress) Progress(length, length);
}

bool clsCSV::Normalise(Rectangle& area) const {
    const auto fit = [](Long& first, Long& last, Long count) {
        first = std::max(first, 0);
        if (last < 0) last = count - 1;
        if (first > last) std::swap(first, last);
        last = std::min(last, count - 1);
        return first <= last;
    };
    return fit(area.Col1, area.Col2, widest_) && fit(area.Row1, area.Row2, Rows());
}

String clsCSV::GetSelText(Long col1, Long row1, Long col2, Long row2) const {
    Rectangle area{col1, row1, col2, row2};
    String out;
    if (!Normalise(area)) return out;
    for (Long row = area.Row1; row <= area.Row2; ++row) {
        const Long end = std::min(area.Col2, RowLength(row) - 1);
        for (Long col = area.Col1; col <= end; ++col) {
            if (col != area.Col1) out.push_back(static_cast<char16_t>(separator_));
            AppendCell(out, Cell(col, row));
        }
        out.append(vbCrLf);
    }
    return out;
}

void clsCSV::InsertRows(Long row, Long count) {
    if (row == -1) row = y_;
    if (row < 0 || row > Rows() || count <= 0 || count > MaxRow - Rows()) return;
    rows_.insert(rows_.begin() + row, static_cast<std::size_t>(count), Row{});
    if (y_ >= row) y_ = AddClamped(y_, count);
}

void clsCSV::DeleteRows(Long row, Long count) {
    if (row == -1) row = y_;
    if (row < 0 || row >= Rows() || count <= 0) return;
    count = std::min(count, Rows() - row);
    if (count == Rows()) {
        Clear();
        return;
    }
    rows_.erase(rows_.begin() + row, rows_.begin() + row + count);
    y_ = std::min(y_, Rows() - 1);
}

void clsCSV::DeleteColumns(Long col, Long count) {
    if (col == -1) col = x_;
    if (col < 0 || col >= widest_ || count <= 0) return;
    count = std::min(count, widest_ - col);
    if (count == widest_) {
        Clear();
        return;
    }
    const auto first = static_cast<std::uint32_t>(col);
    const auto number = static_cast<std::uint32_t>(count);
    for (Row& row : rows_) {
        if (first < row.Count) {
            const std::uint32_t gone = std::min(number, row.Count - first);
            const auto begin = cells_.begin() + row.Begin;
            std::copy(begin + first + gone, begin + row.Count, begin + first);
            row.Count -= gone;
        }
        if (first < row.Length)
            row.Length = std::max(row.Length - std::min(number, row.Length - first), 1U);
    }
    widest_ -= count;
    x_ = std::min(x_, widest_ - 1);
}

Long clsCSV::SeekColumn(StringView pattern, Long col, Long row, bool backwards) const {
    if (col < 0 || col >= widest_ || row < 0 || row >= Rows()) return -1;
    for (Long at = row; at >= 0 && at < Rows(); at += backwards ? -1 : 1)
        if (Like(Cell(col, at), pattern)) return at;
    return -1;
}

double clsCSV::Sum(Long col1, Long row1, Long col2, Long row2) const {
    Rectangle area{col1, row1, col2, row2};
    double sum = 0;
    if (!Normalise(area)) return sum;
    for (Long row = area.Row1; row <= area.Row2; ++row)
        for (Long col = area.Col1; col <= std::min(area.Col2, RowLength(row) - 1); ++col)
            if (const StringView cell = Cell(col, row); IsNumeric(cell)) sum += ToDouble(cell);
    return sum;
}

double clsCSV::Ave(Long col1, Long row1, Long col2, Long row2) const {
    Rectangle area{col1, row1, col2, row2};
    if (!Normalise(area)) return 0;
    std::int64_t count = 0;
    for (Long row = area.Row1; row <= area.Row2; ++row)
        for (Long col = area.Col1; col <= std::min(area.Col2, RowLength(row) - 1); ++col)
            count += IsNumeric(Cell(col, row)) ? 1 : 0;
    return count == 0 ? 0 : Sum(col1, row1, col2, row2) / static_cast<double>(count);
}

Long clsCSV::Count(Long col1, Long row1, Long col2, Long row2, StringView pattern) const {
    Rectangle area{col1, row1, col2, row2};
    if (!Normalise(area)) return 0;
    std::int64_t count = 0;
    for (Long row = area.Row1; row <= area.Row2; ++row) {
        const Long end = std::min(area.Col2, RowLength(row) - 1);
        for (Long col = area.Col1; col <= end; ++col) {
            const StringView cell = Cell(col, row);
            count += (pattern.empty() ? cell.empty() : Like(cell, pattern)) ? 1 : 0;
        }
        if (pattern.empty()) count += area.Col2 - std::max(end, area.Col1 - 1);
    }
    return static_cast<Long>(std::min<std::int64_t>(count, HighestLong));
}

bool clsCSV::SaveToFile(StringView path) const {
    const String folder = GetFileFolder(path);
    if (!folder.empty() && !FolderExists(folder) && !MakeFolders(folder)) return false;
    return WriteFileBytes(EncodeAnsi(Text()), path);
}

bool clsCSV::LoadFromFile(StringView path) {
    Bytes bytes;
    if (!ReadFileBytes(path, bytes)) return false;
    Text(DecodeAnsi(bytes));
    return true;
}

}  // namespace tamber
