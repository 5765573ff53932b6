#pragma once

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "document/cells/clsCSV.h"
#include "platform/rounding.h"
#include "platform/text.h"

namespace tamber {

/// Reads the cell at the cursor as a type and moves right.
template <class T>
T TakeCell(clsCSV& csv) {
    if constexpr (std::is_same_v<T, Long>) return csv.TakeLong();
    if constexpr (std::is_same_v<T, Single>) return csv.TakeSingle();
    if constexpr (std::is_same_v<T, bool>) return csv.TakeBoolean();
    if constexpr (std::is_same_v<T, Byte>) return csv.TakeByte();
    if constexpr (std::is_same_v<T, String>) return csv.TakeText();
}

template <class T>
void PutCell(clsCSV& csv, const T& value) {
    if constexpr (std::is_same_v<T, Byte>)
        csv.Put(Long{value});
    else
        csv.Put(value);
}

/// A value from what a user wrote; raises when the text stands for none.
template <class T>
T FromText(StringView text) {
    if constexpr (std::is_same_v<T, Long>) return ToLong(text);
    if constexpr (std::is_same_v<T, Single>) return ToSingle(text);
    if constexpr (std::is_same_v<T, bool>) return ToBoolean(text);
    if constexpr (std::is_same_v<T, Byte>) return ToByte(text);
    if constexpr (std::is_same_v<T, String>) return String(text);
}

template <class T>
String TextOf(const T& value) {
    if constexpr (std::is_same_v<T, Byte>) return ToText(Long{value});
    if constexpr (std::is_arithmetic_v<T> && !std::is_same_v<T, Byte>) return ToText(value);
    if constexpr (!std::is_arithmetic_v<T>) return String(value);
}

// The forms of a field: how its value stands in a cell (Take, Put), how a user sees it (Seen) and
// sets it (Set: false for what the field does not take), and what becomes of a number that was
// worked out (Fit).

/// As the cell holds it.
struct AsIs {
    template <class T>
    void Take(clsCSV& csv, T& value) const {
        value = TakeCell<T>(csv);
    }
    template <class T>
    void Put(clsCSV& csv, const T& value) const {
        PutCell(csv, value);
    }
    template <class T>
    bool Set(T& value, StringView text) const {
        value = FromText<T>(text);
        return true;
    }
    template <class T>
    const T& Seen(const T& value) const {
        return value;
    }
    template <class T>
    T Fit(T value) const {
        return value;
    }
};

/// A whole number of any size in a cell, but within bounds when a user sets it.
struct Among : AsIs {
    constexpr Among(Long least, Long most) : Least(least), Most(most) {}
    template <class T>
    bool Set(T& value, StringView text) const {
        const T number = FromText<T>(text);
        if (number < Least || number > Most) return false;
        value = number;
        return true;
    }
    Long Least;
    Long Most;
};

/// A whole number within bounds; a cell beyond them is limited.
struct Within : Among {
    using Among::Among;
    template <class T>
    void Take(clsCSV& csv, T& value) const {
        value = Fit(TakeCell<T>(csv));
    }
    template <class T>
    T Fit(T value) const {
        return static_cast<T>(std::clamp<Long>(value, Least, Most));
    }
};

/// A number that goes through a rule wherever it comes from.
template <class T>
struct Fitted : AsIs {
    constexpr explicit Fitted(T (*rule)(T)) : Rule(rule) {}
    void Take(clsCSV& csv, T& value) const { value = Rule(TakeCell<T>(csv)); }
    bool Set(T& value, StringView text) const {
        value = Rule(FromText<T>(text));
        return true;
    }
    T Fit(T value) const { return Rule(value); }
    T (*Rule)(T);
};

/// A Long in ten-thousandths of the Single that a user sees, limited to bounds.
struct TenThousandths : Within {
    using Within::Within;
    bool Set(Long& value, StringView text) const {
        value = FromSingle(ToSingle(text));
        return true;
    }
    static Single Seen(Long value) { return static_cast<Single>(value / 10000.0); }
    Long FromSingle(Single value) const {
        const Single scaled = value * 10000.0F;
        if (scaled >= static_cast<Single>(Most)) return Most;
        if (!(scaled > static_cast<Single>(Least))) return Least;
        return RoundToLong(scaled);
    }
};

/// A number that cells hold as a word. An unknown word or number stands for the entry `Other`.
template <std::size_t N>
struct InWords {
    std::array<std::pair<Long, StringView>, N> Table;
    std::size_t Other;

    void Take(clsCSV& csv, Long& value) const {
        value = Number(csv.Value());
        csv.Right();
    }
    void Put(clsCSV& csv, Long value) const { csv.Put(Seen(value)); }
    bool Set(Long& value, StringView text) const {
        const auto found = Find(text);
        if (found != Table.end()) value = found->first;
        return found != Table.end();
    }
    StringView Seen(Long value) const {
        for (const auto& [number, word] : Table)
            if (number == value) return word;
        return Table[Other].second;
    }
    Long Fit(Long value) const { return value; }
    Long Number(StringView text) const {
        const auto found = Find(text);
        return found != Table.end() ? found->first : Table[Other].first;
    }

private:
    auto Find(StringView text) const {
        return std::find_if(Table.begin(), Table.end(),
                            [text](const auto& entry) { return entry.second == text; });
    }
};

/// A word in a cell, but the number for a user.
template <std::size_t N>
struct InWordsByNumber : InWords<N> {
    bool Set(Long& value, StringView text) const {
        const Long number = ToLong(text);
        const bool known = std::any_of(this->Table.begin(), this->Table.end(),
                                       [number](const auto& e) { return e.first == number; });
        if (known) value = number;
        return known;
    }
    static Long Seen(Long value) { return value; }
    void Put(clsCSV& csv, Long value) const { csv.Put(InWords<N>::Seen(value)); }
};

template <std::size_t N>
constexpr InWords<N> Words(const std::pair<Long, StringView> (&table)[N], std::size_t other) {
    return {std::to_array(table), other};
}

template <std::size_t N>
constexpr InWordsByNumber<N> WordsByNumber(const std::pair<Long, StringView> (&table)[N],
                                           std::size_t other) {
    return {{std::to_array(table), other}};
}

}  // namespace tamber
