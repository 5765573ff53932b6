#pragma once

#include "script/compiler/ClassTable.h"
#include "script/compiler/FaultReport.h"

namespace tamber {

/// Tells what is wrong between a script's classes and interfaces.
class ClassChecker {
public:
    ClassChecker(ClassTable& classes, FaultReport& faults) : classes_(classes), faults_(faults) {}

    void Check(const ClassNode& node);

private:
    void CheckKind(const Node& name, bool wantsInterface);
    void CheckImplemented(const ClassNode& node);
    void CheckMethods(const ClassNode& node, ClassTable::Record& record,
                      const ClassTable::Record& interface);

    ClassTable& classes_;
    FaultReport& faults_;
};

}  // namespace tamber
