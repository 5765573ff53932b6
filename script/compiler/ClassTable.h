#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "script/compiler/Node.h"

namespace tamber {

/// The classes of a script, and what members their names have. All are defined before any is asked
/// for; their nodes must stay.
class ClassTable {
public:
    struct Member {
        bool IsFound = false;
        /// Of a static member, the name of the class that has it.
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
        /// The class that it extends, or null.
        const Node* Base = nullptr;
        bool IsInterface = false;
        bool IsIntrinsic = false;
        /// More than one when the script has it again.
        std::vector<const ClassNode*> Definitions;

    private:
        friend class ClassTable;

        std::string path_;
        /// Path of the base class; empty for none.
        std::string basePath_;
        /// Its own members.
        std::unordered_map<const Symbol*, Member> members_;
        /// What has been found for other names.
        std::unordered_map<const Symbol*, Member> found_;

        // Its place in the tree of classes, once it is settled.
        bool isSettled_ = false;
        bool isOpen_ = false;
        bool isCut_ = false;
        /// Classes above it in the script.
        std::uint32_t depth_ = 0;
        Record* base_ = nullptr;
        Record* root_ = nullptr;
        /// One further up, so that any is reached in steps that grow with the logarithm of the
        /// depth.
        Record* jump_ = nullptr;
    };

    /// Adds what a definition says to what is known of its class.
    void Define(const ClassNode& definition);
    bool IsEmpty() const { return records_.empty(); }
    /// Whether the path of a class begins with a name.
    bool BeginsClass(const Symbol& name) const { return firstNames_.contains(&name); }
    /// Null for a path that is no class's.
    Record* At(const Node& path);
    /// Each class behind those that it extends or implements, and otherwise as they were defined.
    std::vector<const ClassNode*> InOrder();
    /// Each class behind those that it extends or that values of its fields name.
    std::vector<const ClassNode*> InOrderOfValues();
    /// The member that a name means among those of a class and of all that it extends.
    Member Find(Record& record, const Symbol& name);
    /// The same among those of what the class extends.
    Member FindAbove(Record& record, const Symbol& name);
    /// What a class or one above it extends, when neither the script nor the player tells of it, so
    /// that the class may have members of any name; null otherwise.
    const Node* UnknownBase(Record& record);
    /// Whether the members of all that a class extends are told.
    bool KnowsAllMembers(Record& record);
    /// Whether a class extends itself, be it over others, and is where the circle was cut.
    bool IsCut(Record& record);

private:
    Record* At(const std::string& path);
    void Add(Record& record, const MemberNode& node);
    const Member* Known(const Record& record, const Symbol& name) const;
    Member Search(Record& record, const Symbol& name);
    Record* Declarer(Record& record, const Symbol& name);
    static Member OfPlayer(const std::string& path, const Symbol& name);
    template <class Needs>
    std::vector<const ClassNode*> Ordered(const Needs& needs);
    void Settle(Record& record);
    static void SettleBelow(Record& record, Record* base);
    Record* BaseOf(const Record& record) { return At(record.basePath_); }
    static Record* Above(Record& record, std::uint32_t depth);

    std::unordered_map<std::string, Record> records_;
    /// In the order of their first definitions.
    std::vector<Record*> inText_;
    /// The names that their paths begin with.
    std::unordered_set<const Symbol*> firstNames_;
    /// Of each name, the classes that have such a member.
    std::unordered_map<const Symbol*, std::vector<Record*>> declarers_;
};

}  // namespace tamber
