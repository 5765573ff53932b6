#include "script/compiler/Imports.h"

#include <algorithm>
#include <utility>

#include "script/compiler/PlayerClasses.h"

namespace tamber {

namespace {

Imports::Path PathOf(const Node& name) {
    Imports::Path path;
    for (const Node* part = &name; part != nullptr; part = part->A) path.push_back(part->Name);
    std::reverse(path.begin(), path.end());
    return path;
}

Imports::Path Joined(Imports::Path package, Symbol* name) {
    package.push_back(name);
    return package;
}

}  // namespace

void Imports::Announce(const Path& path) {
    if (path.size() > 1) PackageOf({path.begin(), path.end() - 1}).Classes.insert(path.back());
}

void Imports::Add(Path path) {
    const Symbol* name = path.back();
    paths_[name] = std::move(path);
}

/// A class that is imported by its name comes first.
bool Imports::AddPackage(const Path& path, SymbolTable& symbols) {
    Package& package = PackageOf(path);
    if (std::exchange(package.IsImported, true)) return !package.Classes.empty();
    std::string name;
    for (const Symbol* part : path) (name += name.empty() ? "" : ".") += part->Text;
    for (const std::string_view known : ClassesOfPackage(name))
        package.Classes.insert(symbols.Intern(known));
    for (Symbol* known : package.Classes) paths_.try_emplace(known, Joined(path, known));
    return !package.Classes.empty();
}

Imports::Package& Imports::PackageOf(const Path& path) {
    std::string key;
    for (const Symbol* name : path) (key += name->Text) += '.';
    Package& package = packages_[key];
    package.Names = path;
    return package;
}

void Imports::BeginHead(const Node& name) {
    EndClass();
    if (name.Kind != NodeKind::Member) return;
    own_ = PathOf(name);
    package_ = &PackageOf(PathOf(*name.A));
}

void Imports::EndClass() {
    package_ = nullptr;
    own_.clear();
    isInBody_ = false;
}

Imports::Path Imports::Find(Symbol* name) const {
    const bool isOwn = !own_.empty() && own_.back() == name;
    if (isOwn && isInBody_) return own_;
    const auto found = paths_.find(name);
    if (found != paths_.end()) return found->second;
    const bool isSibling = !isOwn && package_ != nullptr && package_->Classes.contains(name);
    return isSibling ? Joined(package_->Names, name) : Path();
}

}  // namespace tamber
