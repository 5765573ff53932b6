#include "document/cells/UnicodeRows.h"

#include <optional>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr StringView RowHead = u"UNICODE";
constexpr StringView Mark = u"\\u";
constexpr StringView Digits = u"0123456789ABCDEF";
constexpr std::size_t UnitDigits = 4;

String Escaped(StringView text) {
    String escaped;
    for (const char16_t c : text) {
        if (c < 0x80 && c != u'\\') {
            escaped += c;
            continue;
        }
        escaped += Mark;
        for (int shift = 12; shift >= 0; shift -= 4) escaped += Digits[c >> shift & 0xF];
    }
    return escaped;
}

/// Nothing for a text with a backslash that begins no unit.
std::optional<String> Unescaped(StringView escaped) {
    String text;
    while (!escaped.empty()) {
        if (escaped.front() != u'\\') {
            text += escaped.front();
            escaped.remove_prefix(1);
            continue;
        }
        if (!escaped.starts_with(Mark) || escaped.size() < Mark.size() + UnitDigits)
            return std::nullopt;
        unsigned unit = 0;
        for (const char16_t digit : escaped.substr(Mark.size(), UnitDigits)) {
            const std::size_t value = Digits.find(digit);
            if (value == StringView::npos) return std::nullopt;
            unit = unit << 4 | static_cast<unsigned>(value);
        }
        text += static_cast<char16_t>(unit);
        escaped.remove_prefix(Mark.size() + UnitDigits);
    }
    return text;
}

struct LostCell {
    Long Row;
    Long Col;
    String Text;
};

std::vector<LostCell> LostCells(const clsCSV& csv) {
    std::vector<LostCell> lost;
    for (Long row = 0; row < csv.Rows(); ++row)
        for (Long col = 0; col < csv.RowLength(row); ++col)
            if (const StringView cell = csv.GetValue(col, row); !SurvivesAnsi(cell))
                lost.push_back({row, col, Escaped(cell)});
    return lost;
}

/// The first of the rows at the table's end that tell of cells; the row count when there is none.
Long FirstUnicodeRow(const clsCSV& csv) {
    Long first = csv.Rows();
    while (first > 0 && csv.GetValue(0, first - 1) == RowHead) --first;
    return first;
}

void TakeRow(clsCSV& csv, Long at, Long end) {
    const Long row = ToLong(csv.GetValue(1, at));
    const Long col = ToLong(csv.GetValue(2, at));
    const auto text = Unescaped(csv.GetValue(3, at));
    if (!text || text->empty() || row < 0 || row >= end || col < 0) return;
    if (csv.GetValue(col, row) == DecodeAnsi(EncodeAnsi(*text))) csv.SetValue(*text, col, row);
}

}  // namespace

void AppendUnicodeRows(clsCSV& csv) {
    const std::vector<LostCell> lost = LostCells(csv);
    csv.SetPosition(0, csv.Rows());
    for (const LostCell& cell : lost) {
        csv.Put(RowHead);
        csv.Put(cell.Row);
        csv.Put(cell.Col);
        csv.Put(cell.Text);
        csv.CrLf();
    }
}

void TakeUnicodeRows(clsCSV& csv) {
    const Long first = FirstUnicodeRow(csv);
    for (Long at = first; at < csv.Rows(); ++at) {
        try {
            TakeRow(csv, at, first);
        } catch (const RuntimeError&) {
            // No numbers: not a row of ours.
        }
    }
}

}  // namespace tamber
