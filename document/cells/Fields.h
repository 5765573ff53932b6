#pragma once

#include <array>
#include <concepts>
#include <functional>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

#include "document/cells/FieldForms.h"
#include "document/cells/ProjectFileVersion.h"
#include "document/cells/clsCSV.h"

namespace tamber {

// A record tells its fields once, in file order, by a static function `Fields` that gives a tuple
// of the descriptions below. All that is done to a record field by field walks that tuple: reading
// and writing its cells, copying, comparing, mixing, telling and setting values by name.

/// What a tween does with a field.
enum class InTween {
    Keeps,  ///< Stays as at the start.
    Tells,  ///< Stays as well, but a difference is a reason to write the values of each frame.
    Mixes,  ///< Weighted sum of both ends.
    Fades,  ///< The same; 0 at an end that lacks what the field belongs to.
};

struct FieldUse {
    InTween Tween = InTween::Keeps;
    /// Compared and copied by itself, not with the other fields.
    bool blApart = false;
    /// Follows from something else, so that no user sets it by name.
    bool blFollows = false;
    /// Has a cell.
    bool blSaved = true;
};

inline constexpr FieldUse Tells{.Tween = InTween::Tells};
inline constexpr FieldUse Mixes{.Tween = InTween::Mixes};
inline constexpr FieldUse Fades{.Tween = InTween::Fades};
inline constexpr FieldUse Apart{.blApart = true};
inline constexpr FieldUse Follows{.blFollows = true};
inline constexpr FieldUse Unsaved{.blFollows = true, .blSaved = false};

/// Takes the name of a field and the value that a user sees.
using FieldSink = std::function<void(StringView name, const String& value)>;

template <class T>
concept HasFields = requires {
    T::Fields();
};

template <class T>
struct FieldList {
    static constexpr auto All = T::Fields();
};

template <class T, class Visit>
void ForEachField(Visit&& visit) {
    std::apply([&visit](const auto&... field) { (visit(field), ...); }, FieldList<T>::All);
}

template <class T>
void LoadFields(T& record, clsCSV& csv) {
    ForEachField<T>([&](const auto& field) { field.Load(record, csv); });
}

template <class T>
void SaveFields(const T& record, clsCSV& csv) {
    ForEachField<T>([&](const auto& field) { field.Save(record, csv); });
}

/// Copies all fields but those that are held apart.
template <class T>
void CopyFields(const T& from, T& to) {
    if (&from == &to) return;
    ForEachField<T>([&](const auto& field) { field.Copy(from, to); });
}

/// True when all fields agree but those that are held apart.
template <class T>
bool SameFields(const T& a, const T& b) {
    return std::apply([&](const auto&... field) { return (field.Same(a, b) && ...); },
                      FieldList<T>::All);
}

/// Tells each field that a record has in its present state, records within it included. A value
/// without a name goes with those before it.
template <class T>
void TellFields(const T& record, const FieldSink& sink, const String& prefix = {}) {
    ForEachField<T>([&](const auto& field) { field.Tell(record, sink, prefix); });
}

/// Sets a field by the name under which `TellFields` tells it. False for a name that the record has
/// none of, for a field that is not the user's to set, and for a number out of its range; a text
/// that is no number where one is wanted raises. The record stays as it is then.
template <class T>
bool SetField(T& record, StringView name, StringView value) {
    return std::apply([&](const auto&... field) { return (field.Set(record, name, value) || ...); },
                      FieldList<T>::All);
}

/// One value in one cell.
template <class Owner, class T, class Form>
struct CellField {
    StringView Name;
    T Owner::*Member;
    Form How;
    FieldUse Use;

    void Load(Owner& owner, clsCSV& csv) const {
        if (Use.blSaved) How.Take(csv, owner.*Member);
    }
    void Save(const Owner& owner, clsCSV& csv) const {
        if (Use.blSaved) How.Put(csv, owner.*Member);
    }
    void Copy(const Owner& from, Owner& to) const {
        if (!Use.blApart) to.*Member = from.*Member;
    }
    bool Same(const Owner& a, const Owner& b) const {
        return Use.blApart || a.*Member == b.*Member;
    }
    void Tell(const Owner& owner, const FieldSink& sink, const String& prefix) const {
        if (Use.blSaved) sink(prefix + String(Name), TextOf(How.Seen(owner.*Member)));
    }
    bool Set(Owner& owner, StringView name, StringView value) const {
        return name == Name && !Use.blFollows && How.Set(owner.*Member, value);
    }
    /// Hands over the name and the value as a user sees it.
    template <class Visit>
    void Show(const Owner& owner, Visit&& visit) const {
        if (Use.blSaved) visit(Name, How.Seen(owner.*Member));
    }
    /// Hands over the value of each of several records at once.
    template <class Visit, class... Owners>
    void Each(Visit&& visit, Owners&... owners) const {
        visit(*this, owners.*Member...);
    }
};

/// Values in cells side by side, called by the field's name and their number, from 1.
template <class Owner, class T, std::size_t N, class Form>
struct ArrayField {
    StringView Name;
    std::array<T, N> Owner::*Member;
    Form How;
    FieldUse Use;

    void Load(Owner& owner, clsCSV& csv) const {
        for (T& value : owner.*Member) How.Take(csv, value);
    }
    void Save(const Owner& owner, clsCSV& csv) const {
        for (const T& value : owner.*Member) How.Put(csv, value);
    }
    void Copy(const Owner& from, Owner& to) const { to.*Member = from.*Member; }
    bool Same(const Owner& a, const Owner& b) const { return a.*Member == b.*Member; }
    void Tell(const Owner& owner, const FieldSink& sink, const String& prefix) const {
        for (std::size_t i = 0; i < N; ++i)
            sink(prefix + NameOf(i), TextOf(How.Seen((owner.*Member)[i])));
    }
    bool Set(Owner& owner, StringView name, StringView value) const {
        if (!name.starts_with(Name)) return false;
        for (std::size_t i = 0; i < N; ++i)
            if (name == NameOf(i)) return How.Set((owner.*Member)[i], value);
        return false;
    }
    template <class Visit>
    void Show(const Owner& owner, Visit&& visit) const {
        visit(Name, owner.*Member);
    }
    template <class Visit, class... Owners>
    void Each(Visit&& visit, Owners&... owners) const {
        for (std::size_t i = 0; i < N; ++i) visit(*this, (owners.*Member)[i]...);
    }

private:
    String NameOf(std::size_t index) const {
        return String(Name) + ToText(static_cast<Long>(index) + 1);
    }
};

/// One value in one cell, reached through a getter and a setter.
template <class Owner, class T>
struct PropertyField {
    StringView Name;
    T (Owner::*Get)() const;
    void (Owner::*Put)(T);

    void Load(Owner& owner, clsCSV& csv) const { (owner.*Put)(TakeCell<T>(csv)); }
    void Save(const Owner& owner, clsCSV& csv) const { PutCell(csv, (owner.*Get)()); }
    void Copy(const Owner& from, Owner& to) const { (to.*Put)((from.*Get)()); }
    bool Same(const Owner& a, const Owner& b) const { return (a.*Get)() == (b.*Get)(); }
    void Tell(const Owner& owner, const FieldSink& sink, const String& prefix) const {
        sink(prefix + String(Name), TextOf((owner.*Get)()));
    }
    bool Set(Owner& owner, StringView name, StringView value) const {
        if (name != Name) return false;
        (owner.*Put)(FromText<T>(value));
        return true;
    }
    template <class Visit>
    void Show(const Owner& owner, Visit&& visit) const {
        visit(Name, (owner.*Get)());
    }
};

/// A record within a record, held by value or by a reference of its own. Its fields are called by
/// `Prefix` and their names.
template <class Owner, class T>
struct RecordField {
    StringView Name;
    StringView Prefix;
    T Owner::*Member;

    void Load(Owner& owner, clsCSV& csv) const { Record(owner).Load(csv); }
    void Save(const Owner& owner, clsCSV& csv) const { Record(owner).Save(csv); }
    void Copy(const Owner& from, Owner& to) const {
        if constexpr (requires { (from.*Member)->Copy(); })
            to.*Member = (from.*Member)->Copy();
        else if constexpr (requires { (from.*Member).CopyTo(to.*Member); })
            (from.*Member).CopyTo(to.*Member);
        else
            to.*Member = from.*Member;
    }
    bool Same(const Owner& a, const Owner& b) const {
        if constexpr (requires { Record(a).Compare(Record(b)); })
            return Record(a).Compare(Record(b));
        else
            return Record(a) == Record(b);
    }
    void Tell(const Owner& owner, const FieldSink& sink, const String& prefix) const {
        const auto& record = Record(owner);
        if constexpr (HasFields<std::decay_t<decltype(record)>>)
            TellFields(record, sink, prefix + String(Prefix));
    }
    bool Set(Owner& owner, StringView name, StringView value) const {
        auto& record = Record(owner);
        if constexpr (HasFields<std::decay_t<decltype(record)>>)
            return name.starts_with(Prefix) && SetField(record, name.substr(Prefix.size()), value);
        else
            return false;
    }
    template <class Visit>
    void Show(const Owner& owner, Visit&& visit) const {
        visit(Name, Record(owner));
    }

private:
    template <class AnyOwner>
    auto& Record(AnyOwner& owner) const {
        if constexpr (
            requires { (owner.*Member).Load(std::declval<clsCSV&>()); } ||
            requires { (owner.*Member).Save(std::declval<clsCSV&>()); })
            return owner.*Member;
        else
            return *(owner.*Member);
    }
};

/// Fields whose cells are there only under a rule. A rule tells by `Reads` whether a file has them,
/// and by `Writes` whether the record has them; one with a `Load` or `Save` of its own moves the
/// cells itself.
template <class Rule, class... Field>
struct GroupField {
    Rule When;
    std::tuple<Field...> Fields;

    template <class Owner>
    void Load(Owner& owner, clsCSV& csv) const {
        if constexpr (requires { When.Load(owner, csv, Fields); })
            When.Load(owner, csv, Fields);
        else if (When.Reads(owner, csv))
            ForEach([&](const auto& field) { field.Load(owner, csv); });
    }
    template <class Owner>
    void Save(const Owner& owner, clsCSV& csv) const {
        if constexpr (requires { When.Save(owner, csv, Fields); })
            When.Save(owner, csv, Fields);
        else if (When.Writes(owner))
            ForEach([&](const auto& field) { field.Save(owner, csv); });
    }
    template <class Owner>
    void Copy(const Owner& from, Owner& to) const {
        ForEach([&](const auto& field) { field.Copy(from, to); });
    }
    template <class Owner>
    bool Same(const Owner& a, const Owner& b) const {
        return std::apply([&](const auto&... field) { return (field.Same(a, b) && ...); }, Fields);
    }
    template <class Owner>
    void Tell(const Owner& owner, const FieldSink& sink, const String& prefix) const {
        if (When.Writes(owner))
            ForEach([&](const auto& field) { field.Tell(owner, sink, prefix); });
    }
    template <class Owner>
    bool Set(Owner& owner, StringView name, StringView value) const {
        return When.Writes(owner) &&
               std::apply(
                   [&](const auto&... field) { return (field.Set(owner, name, value) || ...); },
                   Fields);
    }
    template <class Owner, class Visit>
    void Show(const Owner& owner, Visit&& visit) const {
        ForEach([&](const auto& field) { field.Show(owner, visit); });
    }

private:
    template <class Visit>
    void ForEach(Visit&& visit) const {
        std::apply([&visit](const auto&... field) { (visit(field), ...); }, Fields);
    }
};

/// Base of the rules under which a record always has its fields.
struct AlwaysWritten {
    template <class Owner>
    static constexpr bool Writes(const Owner&) {
        return true;
    }
};

/// A record of an older form ends, or goes on with what stands behind the group, where the group's
/// first cell is empty.
struct IfFilled : AlwaysWritten {
    template <class Owner>
    static bool Reads(const Owner&, const clsCSV& csv) {
        return !csv.Value().empty();
    }
};

/// Files have the fields from a version on.
struct FromVersion : AlwaysWritten {
    constexpr explicit FromVersion(Long version) : Version(version) {}
    template <class Owner>
    bool Reads(const Owner&, const clsCSV&) const {
        return ProjectFileVersion >= Version;
    }
    Long Version;
};

/// The fields belong to a record that has a switch on, which stands in front of them.
template <class Owner>
struct IfOn {
    constexpr explicit IfOn(bool Owner::*on) : Switch(on) {}
    bool Reads(const Owner& owner, const clsCSV&) const { return owner.*Switch; }
    bool Writes(const Owner& owner) const { return owner.*Switch; }
    bool Owner::*Switch;
};

template <class Owner, class T>
constexpr auto Field(StringView name, T Owner::*member, FieldUse use = {}) {
    return CellField<Owner, T, AsIs>{name, member, {}, use};
}
template <class Owner, class T, class Form>
constexpr auto Field(StringView name, T Owner::*member, Form form,
                     FieldUse use = {}) requires(!std::same_as<Form, FieldUse>) {
    return CellField<Owner, T, Form>{name, member, form, use};
}
template <class Owner, class T, std::size_t N, class Form = AsIs>
constexpr auto Array(StringView name, std::array<T, N> Owner::*member, Form form = {},
                     FieldUse use = {}) {
    return ArrayField<Owner, T, N, Form>{name, member, form, use};
}
template <class Owner, class T>
constexpr auto Property(StringView name, T (Owner::*get)() const, void (Owner::*put)(T)) {
    return PropertyField<Owner, T>{name, get, put};
}
template <class Owner, class T>
constexpr auto Record(StringView name, StringView prefix, T Owner::*member) {
    return RecordField<Owner, T>{name, prefix, member};
}
template <class Rule, class... Fields>
constexpr auto Group(Rule rule, Fields... fields) {
    return GroupField<Rule, Fields...>{rule, {fields...}};
}

}  // namespace tamber
