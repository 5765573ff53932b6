#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "script/compiler/Node.h"

namespace tamber {

/// The classes of a script as far as it has been read, and what members their names have.
class ClassTable {
public:
    struct Member {
        bool IsFound = false;
        /// Of a static member, the name of the class that has it; it stays with the table.
        const Node* Class = nullptr;
        /// Whether a class of the player has it.
        bool IsOfPlayer = false;
    };
    /// A class of the script.
    class Record {
    public:
        const Node* Name = nullptr;
        /// Path of the base class; empty for none.
        std::string Base;

    private:
        friend class ClassTable;

        /// Its own members; true for a static one.
        std::unordered_map<const Symbol*, bool> members_;
        /// What has been found for names beside them, in a generation of the table.
        std::unordered_map<const Symbol*, Member> found_;
        /// Path of the class that the first of its chain extends, or null.
        const std::string* root_ = nullptr;
        std::uint32_t generation_ = 0;
    };

    /// Adds what a definition says to what is known of its class. The record stays where it is.
    Record& Define(const ClassNode& definition);
    bool Contains(std::string_view path) const { return records_.contains(path); }
    bool IsEmpty() const { return records_.empty(); }
    /// The member that a name means among those of a class and of all that it extends.
    Member Find(Record& record, const Symbol& name);

private:
    using Records = std::map<std::string, Record, std::less<>>;

    Member Search(Record& record, const Symbol& name);
    const std::string& RootOf(Record& record);
    void Renew(Record& record) const;
    static void Add(Record& record, const MemberNode& member);
    std::optional<Member> Known(Record& record, const Symbol& name) const;
    static Member OfPlayer(const std::string& base, const Symbol& name);
    const Node* Kept(const Node& name);
    void Forget() { ++generation_; }

    Records records_;
    /// Paths that classes extend and that no class has had so far.
    std::unordered_set<std::string> awaited_;
    /// Counts what may change what has been found.
    std::uint32_t generation_ = 0;
    std::deque<Node> names_;
};

}  // namespace tamber
