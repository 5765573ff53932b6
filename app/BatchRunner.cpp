#include "app/BatchRunner.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "app/ProjectInfo.h"
#include "document/clsCSV.h"
#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/paths.h"
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

Answer BatchUserInterface::Ask(StringView text, StringView title, Choices choices) {
    if (Answers.empty()) return ConsoleUserInterface::Ask(text, title, choices);
    const Answer answer = Answers.front();
    Answers.pop_front();
    return answer;
}

BatchRunner::BatchRunner(frmMain& controller, BatchUserInterface& interface, Output output)
    : controller_(controller), interface_(interface), output_(std::move(output)) {}

const std::vector<BatchRunner::Command>& BatchRunner::Commands() {
    static const std::vector<Command> commands{
        {u"mnuNew", u"", 0, 0, &BatchRunner::DoNew},
        {u"OpenProject", u"PATH", 1, 1, &BatchRunner::DoOpen},
        {u"mnuSave", u"", 0, 0, &BatchRunner::DoSave},
        {u"mnuSaveNew", u"PATH", 1, 1, &BatchRunner::DoSaveNew},
        {u"mnuPrjProperty", u"WIDTH HEIGHT RATE VERSION", 4, 4, &BatchRunner::DoProperty},
        {u"ChangeSprite", u"INDEX", 1, 1, &BatchRunner::DoChangeSprite},
        {u"mnuUndoRedo", u"0|1", 1, 1, &BatchRunner::DoUndoRedo},
        {u"mnuAuthoring", u"PATH", 1, 1, &BatchRunner::DoAuthoring},
        {u"Answer", u"yes|no|cancel", 1, 1, &BatchRunner::DoAnswer},
        {u"Print", u"", 0, 0, &BatchRunner::DoPrint},
    };
    return commands;
}

std::string BatchRunner::List() {
    String text;
    for (const Command& command : Commands()) {
        text += command.Name;
        if (!command.Usage.empty()) text += u" " + String(command.Usage);
        text += u"\n";
    }
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
    Arguments arguments = SplitLine(line);
    const auto command =
        std::find_if(Commands().begin(), Commands().end(), [&arguments](const Command& known) {
            return !arguments.empty() && known.Name == arguments.front();
        });
    if (command == Commands().end()) {
        Tell(number, u"不明なコマンドです。「" + String(line) + u"」");
        return false;
    }
    arguments.erase(arguments.begin());
    const String usage = String(command->Name) + u" " + String(command->Usage);
    if (arguments.size() < command->Least || arguments.size() > command->Most) {
        Tell(number, u"引数の数が違います。「" + usage + u"」");
        return false;
    }
    try {
        if ((this->*command->Do)(arguments)) return true;
        Tell(number, u"実行できませんでした。「" + String(line) + u"」");
    } catch (const RuntimeError&) {
        Tell(number, u"引数が正しくありません。「" + usage + u"」");
    }
    return false;
}

bool BatchRunner::DoNew(const Arguments&) {
    return controller_.mnuNew();
}
bool BatchRunner::DoOpen(const Arguments& arguments) {
    return controller_.OpenProject(AbsolutePath(arguments[0]));
}
bool BatchRunner::DoSave(const Arguments&) {
    return controller_.mnuSave();
}
bool BatchRunner::DoSaveNew(const Arguments& arguments) {
    return controller_.mnuSaveNew(AbsolutePath(arguments[0]));
}
bool BatchRunner::DoProperty(const Arguments& arguments) {
    return controller_.mnuPrjProperty(ToLong(arguments[0]), ToLong(arguments[1]),
                                      ToSingle(arguments[2]), ToLong(arguments[3]));
}
bool BatchRunner::DoChangeSprite(const Arguments& arguments) {
    const Long index = ToLong(arguments[0]);
    controller_.ChangeSprite(index);
    return index == 0 || controller_.editIndex == index;
}
bool BatchRunner::DoUndoRedo(const Arguments& arguments) {
    const Long index = ToLong(arguments[0]);
    if (index != 0 && index != 1) return false;
    controller_.mnuUndoRedo(index);
    return true;
}
bool BatchRunner::DoAuthoring(const Arguments& arguments) {
    return controller_.mnuAuthoring(AbsolutePath(arguments[0]));
}

bool BatchRunner::DoAnswer(const Arguments& arguments) {
    const String word = FoldCase(arguments[0]);
    if (word == u"yes")
        interface_.Answers.push_back(Answer::Yes);
    else if (word == u"no")
        interface_.Answers.push_back(Answer::No);
    else if (word == u"cancel")
        interface_.Answers.push_back(Answer::Cancel);
    else
        return false;
    return true;
}

bool BatchRunner::DoPrint(const Arguments&) {
    auto state = nlohmann::ordered_json::parse(ProjectInfoJson(controller_.inProject));
    state["path"] = ToNarrow(controller_.ProjectFileName);
    state["editIndex"] = controller_.editIndex;
    state["SelIndex1"] = controller_.SelIndex1;
    state["SelIndex2"] = controller_.SelIndex2;
    state["canUndo"] = controller_.CanUndo();
    state["canRedo"] = controller_.CanRedo();
    state["changed"] = controller_.IsProjectChanged();
    output_(state.dump(2) + "\n");
    return true;
}

}  // namespace tamber
