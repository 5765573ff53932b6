#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "script/compiler/Node.h"
#include "script/compiler/SymbolTable.h"

namespace tamber {

/// What short names of classes stand for: by imports, and within a class that lies in a package.
class Imports {
public:
    /// The names that a whole name consists of.
    using Path = std::vector<Symbol*>;

    /// A class that the script defines, perhaps behind what is read.
    void Announce(const Path& path);
    void Add(Path path);
    /// All classes of a package; false when none is known.
    bool AddPackage(const Path& path, SymbolTable& symbols);
    /// Until its end the other classes of its package are known by their short names, and within
    /// its body the class itself. In its head, where it is told what it extends, its short name is
    /// another's.
    void BeginHead(const Node& name);
    void BeginBody() { isInBody_ = true; }
    void EndClass();
    /// Empty for a name that stands for itself.
    Path Find(Symbol* name) const;
    /// Whether no name stands for another.
    bool IsEmpty() const { return paths_.empty() && package_ == nullptr; }

private:
    struct Package {
        Path Names;
        std::unordered_set<Symbol*> Classes;
        bool IsImported = false;
    };

    Package& PackageOf(const Path& path);

    std::unordered_map<const Symbol*, Path> paths_;
    /// By their names, each with a dot behind it.
    std::unordered_map<std::string, Package> packages_;
    /// Package of the class that is read, or null.
    const Package* package_ = nullptr;
    /// Path of that class.
    Path own_;
    bool isInBody_ = false;
};

}  // namespace tamber
