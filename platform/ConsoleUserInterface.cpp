#include "platform/ConsoleUserInterface.h"

#include <unistd.h>

#include <cstdio>

#include "platform/FindFile.h"
#include "platform/codepage.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

void PrintLine(const std::string& line) {
    std::fputs((line + "\n").c_str(), stderr);
}

}  // namespace

void ConsoleUserInterface::Message(StringView text, StringView title, MessageIcon) {
    ++messagesShown_;
    PrintLine(ToNarrow(String(title) + u": " + ReplaceAll(text, vbCrLf, u"\n")));
}

Answer ConsoleUserInterface::Ask(StringView text, StringView title, Choices choices) {
    PrintLine(ToNarrow(String(title) + u": " + ReplaceAll(text, vbCrLf, u"\n")));
    if (answers_.AssumeYes) return Answer::Yes;
    return choices == Choices::YesNoCancel ? Answer::Cancel : Answer::No;
}

bool ConsoleUserInterface::AskToSkip(StringView text) {
    if (!answers_.SkipBroken) return UserInterface::AskToSkip(text);
    PrintLine(ToNarrow(String(ProgramTitle) + u": " + ReplaceAll(text, vbCrLf, u"\n")));
    return true;
}

String ConsoleUserInterface::OpenFileDialog(const FileDialog& dialog) {
    if (answers_.AssetFolder.empty() || dialog.FileName.empty()) return {};
    return FindFile(JoinPath(answers_.AssetFolder, dialog.FileName));
}
String ConsoleUserInterface::SaveFileDialog(const FileDialog&) {
    return {};
}
String ConsoleUserInterface::SelectFolderDialog(StringView) {
    return {};
}

void ConsoleUserInterface::Progress(StringView, Long done, Long total) {
    if (total <= 0 || isatty(STDERR_FILENO) == 0) return;
    const auto percent = static_cast<Long>(static_cast<std::int64_t>(done) * 100 / total);
    if (percent == percentShown_) return;
    percentShown_ = percent;
    std::fprintf(stderr, done >= total ? "\r    \r" : "\r%3d%%", static_cast<int>(percent));
}

void ConsoleUserInterface::Status(StringView text) {
    if (!text.empty()) PrintLine(ToNarrow(text));
}

}  // namespace tamber
