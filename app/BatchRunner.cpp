#include "app/BatchRunner.h"

#include <algorithm>

#include "app/commands/CommandTable.h"
#include "document/cells/clsCSV.h"
#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

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
    for (const Command* command : CommandTable()) text += UsageOf(*command) + u"\n";
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
    CommandArguments arguments = SplitLine(line);
    const Command* command = arguments.empty() ? nullptr : FindCommand(arguments.front());
    if (command == nullptr) {
        Tell(number, u"不明なコマンドです。「" + String(line) + u"」");
        return false;
    }
    arguments.erase(arguments.begin());
    switch (RunCommand(*command, context_, arguments)) {
        case CommandOutcome::Done:
            return true;
        case CommandOutcome::Refused:
        case CommandOutcome::Busy:
            Tell(number, u"実行できませんでした。「" + String(line) + u"」");
            break;
        case CommandOutcome::WrongCount:
            Tell(number, u"引数の数が違います。「" + UsageOf(*command) + u"」");
            break;
        case CommandOutcome::WrongArgument:
            Tell(number, u"引数が正しくありません。「" + UsageOf(*command) + u"」");
            break;
    }
    return false;
}

}  // namespace tamber
