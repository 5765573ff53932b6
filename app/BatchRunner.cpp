#include "app/BatchRunner.h"

#include <algorithm>
#include <map>

#include "document/cells/clsCSV.h"
#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

const std::vector<std::span<const BatchCommand>>& Groups() {
    static const std::vector<std::span<const BatchCommand>> groups{
        BatchProjectCommands(), BatchLibraryCommands(), BatchTimelineCommands()};
    return groups;
}

/// Null for a name that no command has.
const BatchCommand* FindCommand(StringView name) {
    static const auto byName = [] {
        std::map<StringView, const BatchCommand*> commands;
        for (const auto& group : Groups())
            for (const BatchCommand& command : group) commands.emplace(command.Name, &command);
        return commands;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

String UsageOf(const BatchCommand& command) {
    String text(command.Name);
    if (!command.Usage.empty()) text.append(u" ").append(command.Usage);
    return text;
}

std::vector<String> SplitLine(StringView line) {
    clsCSV cells;
    cells.SeparateCode(u' ');
    cells.Text(String(line));
    std::vector<String> words;
    for (Long i = 0; i < cells.RowLength(0); ++i)
        if (const StringView word = cells.GetValue(i, 0); !word.empty()) words.emplace_back(word);
    return words;
}

/// Takes the first line off a text.
StringView TakeLine(StringView& text) {
    const std::size_t end = std::min(text.find(u'\n'), text.size());
    StringView line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    while (!line.empty() && (line.back() == u'\r' || line.back() == u' ')) line.remove_suffix(1);
    while (!line.empty() && line.front() == u' ') line.remove_prefix(1);
    return line;
}

void Tell(Long number, StringView text) {
    ShowMessage(ToText(number) + u"行目： " + String(text), u"batch", MessageIcon::Error);
}

}  // namespace

std::string BatchRunner::List() {
    String text;
    for (const auto& group : Groups())
        for (const BatchCommand& command : group) text += UsageOf(command) + u"\n";
    return ToNarrow(text);
}

bool BatchRunner::Run(StringView script) {
    bool allDone = true;
    for (Long number = 1; !script.empty(); ++number) {
        const StringView line = TakeLine(script);
        if (!line.empty() && line.front() != u'#') allDone = RunLine(line, number) && allDone;
    }
    return allDone;
}

bool BatchRunner::RunLine(StringView line, Long number) {
    BatchArguments arguments = SplitLine(line);
    const BatchCommand* command = arguments.empty() ? nullptr : FindCommand(arguments.front());
    if (command == nullptr) {
        Tell(number, u"不明なコマンドです。「" + String(line) + u"」");
        return false;
    }
    arguments.erase(arguments.begin());
    if (arguments.size() < command->Least || arguments.size() > command->Most) {
        Tell(number, u"引数の数が違います。「" + UsageOf(*command) + u"」");
        return false;
    }
    try {
        if (command->Do(context_, arguments)) return true;
        Tell(number, u"実行できませんでした。「" + String(line) + u"」");
    } catch (const RuntimeError&) {
        Tell(number, u"引数が正しくありません。「" + UsageOf(*command) + u"」");
    }
    return false;
}

}  // namespace tamber
