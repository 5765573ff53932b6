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

}  // namespace

void Imports::Add(Path path) {
    const Symbol* name = path.back();
    paths_[name] = std::move(path);
}

bool Imports::AddPackage(const Path& path, SymbolTable& symbols) {
    Package& package = PackageOf(path);
    std::string name;
    for (const Symbol* part : path) (name += name.empty() ? "" : ".") += part->Text;
    for (const std::string_view known : ClassesOfPackage(name))
        package.Classes.insert(symbols.Intern(known));
    if (!std::exchange(package.IsImported, true))
        for (Symbol* known : package.Classes) AddClass(package, known);
    return !package.Classes.empty();
}

Imports::Package& Imports::PackageOf(const Path& path) {
    std::string key;
    for (const Symbol* name : path) (key += name->Text) += '.';
    Package& package = packages_[key];
    package.Names = path;
    return package;
}

/// One that is imported by its name comes first.
void Imports::AddClass(const Package& package, Symbol* name) {
    paths_.try_emplace(name, Joined(package.Names, name));
}

Imports::Path Imports::Joined(const Path& package, Symbol* name) {
    Path path = package;
    path.push_back(name);
    return path;
}

void Imports::BeginClass(const Node& name) {
    EndClass();
    if (name.Kind != NodeKind::Member) return;
    own_ = PathOf(name);
    package_ = &PackageOf(PathOf(*name.A));
    package_->Classes.insert(own_.back());
    if (package_->IsImported) AddClass(*package_, own_.back());
}

void Imports::EndClass() {
    package_ = nullptr;
    own_.clear();
}

Imports::Path Imports::Find(Symbol* name) const {
    if (!own_.empty() && own_.back() == name) return own_;
    const auto found = paths_.find(name);
    if (found != paths_.end()) return found->second;
    const bool isSibling = package_ != nullptr && package_->Classes.contains(name);
    return isSibling ? Joined(package_->Names, name) : Path();
}

}  // namespace tamber
