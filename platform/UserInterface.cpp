#include "platform/UserInterface.h"

#include "platform/ConsoleUserInterface.h"

namespace tamber {

namespace {
thread_local UserInterface* current = nullptr;
}

bool UserInterface::AskToSkip(StringView text) {
    return Ask(text, ProgramTitle, Choices::YesNo) == Answer::Yes;
}

UserInterface& CurrentUserInterface() {
    static ConsoleUserInterface console;
    return current != nullptr ? *current : console;
}

UserInterfaceScope::UserInterfaceScope(UserInterface& interface) : previous_(current) {
    current = &interface;
}

UserInterfaceScope::~UserInterfaceScope() {
    current = previous_;
}

}  // namespace tamber
