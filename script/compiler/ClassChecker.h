#pragma once

#include <vector>

#include "script/compiler/ClassTable.h"
#include "script/compiler/FaultReport.h"

namespace tamber {

/// Tells what is wrong in and between a script's classes and interfaces.
class ClassChecker {
public:
    ClassChecker(ClassTable& classes, FaultReport& faults) : classes_(classes), faults_(faults) {}

    void Check(const ClassNode& node);

private:
    void CheckAgain(const ClassNode& node);
    void CheckMembers(const ClassNode& node);
    void CheckKind(const Node& name, bool wantsInterface);
    void CheckInterfaces(const ClassNode& node);
    std::vector<const ClassTable::Record*> InterfacesOf(const ClassNode& node);

    ClassTable& classes_;
    FaultReport& faults_;
};

}  // namespace tamber
