#pragma once

#include "platform/types.h"

namespace tamber {

/// Version of the project being read on this thread, one byte each for major, minor, revision and
/// build. What is read outside a project file is of the newest form.
extern thread_local Long ProjectFileVersion;

inline constexpr Long NewestProjectFileVersion = 0x7FFFFFFF;

/// Sets `ProjectFileVersion` for the life of the scope.
class ProjectFileVersionScope {
public:
    explicit ProjectFileVersionScope(Long version) : previous_(ProjectFileVersion) {
        ProjectFileVersion = version;
    }
    ~ProjectFileVersionScope() { ProjectFileVersion = previous_; }
    ProjectFileVersionScope(const ProjectFileVersionScope&) = delete;
    ProjectFileVersionScope& operator=(const ProjectFileVersionScope&) = delete;

private:
    Long previous_;
};

}  // namespace tamber
