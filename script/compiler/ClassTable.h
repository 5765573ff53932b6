#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "script/compiler/Node.h"

namespace tamber {

/// The classes of a script as far as it has been read, and what members their names have.
class ClassTable {
public:
    struct Member {
        bool IsFound = false;
        /// Of a static member, the name of the class that has it; it stays with the table.
        const Node* Class = nullptr;
        /// Whether functions get and set it.
        bool IsAccessor = false;
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

        /// Its own members.
        std::unordered_map<const Symbol*, Member> members_;
        /// What has been found for other names, while `foundAt_` is the table's.
        std::unordered_map<const Symbol*, Member> found_;
        std::uint32_t foundAt_ = 0;

        // Its place in the tree of classes, while `settledAt_` is the table's.
        std::uint32_t settledAt_ = 0;
        bool isOpen_ = false;
        /// Classes above it in the script.
        std::uint32_t depth_ = 0;
        Record* base_ = nullptr;
        Record* root_ = nullptr;
        /// One further up, so that any is reached in steps that grow with the logarithm of the
        /// depth.
        Record* jump_ = nullptr;
    };

    /// Lets a class be known by its path before its definition comes.
    void Announce(std::string path) { announced_.insert(std::move(path)); }
    /// Adds what a definition says to what is known of its class. The record stays where it is.
    Record& Define(const ClassNode& definition);
    bool Contains(const std::string& path) const { return announced_.contains(path); }
    bool IsEmpty() const { return announced_.empty(); }
    /// The member that a name means among those of a class and of all that it extends.
    Member Find(Record& record, const Symbol& name);
    /// The same among those of what the class extends.
    Member FindAbove(Record& record, const Symbol& name);

private:
    void Add(Record& record, const MemberNode& node);
    const Node* Kept(const Node& name);
    std::optional<Member> Known(Record& record, const Symbol& name) const;
    Member Search(Record& record, const Symbol& name);
    Record* Declarer(Record& record, const Symbol& name);
    static Member OfPlayer(const std::string& base, const Symbol& name);
    void Settle(Record& record);
    void SettleBelow(Record& record, Record* base) const;
    Record* BaseOf(const Record& record);
    static Record* Above(Record& record, std::uint32_t depth);

    std::unordered_map<std::string, Record> records_;
    std::unordered_set<std::string> announced_;
    /// Paths that classes extend and that no class has had so far.
    std::unordered_set<std::string> awaited_;
    /// Of each name, the classes that have such a member.
    std::unordered_map<const Symbol*, std::vector<Record*>> declarers_;
    /// Counts what changes the tree, and what changes what has been found.
    std::uint32_t tree_ = 1;
    std::uint32_t state_ = 1;
    std::deque<Node> names_;
};

}  // namespace tamber
