#include "document/cells/clsCSV.h"

// The first byte chooses how rows grow; the rest is the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    tamber::String text;
    for (std::size_t i = 1; i < size; ++i) text.push_back(data[i]);
    tamber::clsCSV csv;
    csv.DefColSize((data[0] & 7) + 1);
    csv.Text(text);
    // What was written reads the same again.
    tamber::clsCSV again;
    again.Text(csv.Text());
    if (again.Rows() != csv.Rows()) __builtin_trap();
    for (tamber::Long row = 0; row < csv.Rows(); ++row)
        for (tamber::Long col = 0; col < csv.RowLength(row); ++col)
            if (csv.GetValue(col, row) != again.GetValue(col, row)) __builtin_trap();
    csv.DeleteColumns(data[0] >> 4, 2);
    csv.SetValue(u"x", data[0] & 31, data[0] >> 5);
    if (csv.GetValue(data[0] & 31, data[0] >> 5) != u"x") __builtin_trap();
    return 0;
}
