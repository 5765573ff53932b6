#pragma once

#include <memory>

#include "app/controller/frmMain.h"
#include "platform/SystemEnvironment.h"

namespace tamber {

/// The running program: the controller, and the libraries that stay loaded as long as it lives.
class Application {
public:
    explicit Application(SystemEnvironment& environment) : environment_(environment) {}
    ~Application() { Stop(); }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// The start sequence: other instance, screen, components, libraries, controller. False when
    /// the program ends at once; the user was told why and nothing is left loaded.
    bool Main(StringView commandLine);
    /// The stop sequence; temporary files that the program's folder holds are deleted. A second
    /// call does nothing.
    void Stop();

    frmMain* Controller() { return controller_.get(); }

private:
    bool CheckScreen() const;
    bool CheckComponents() const;
    bool LoadLibraries();
    void DeleteOldKeywords() const;
    std::vector<String> ClassNames() const;
    void FreeLibraries();

    SystemEnvironment& environment_;
    std::vector<String> loaded_;
    std::unique_ptr<frmMain> controller_;
};

/// The project path in a command line: its first cell of three or more characters that begins with
/// a drive or "/", or names an existing file. Double quotes hold a path with blanks together.
String ProjectPathOf(StringView commandLine);

}  // namespace tamber
