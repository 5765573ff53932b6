#include "app/CommandLine.h"

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <new>
#include <optional>

#include "app/BatchRunner.h"
#include "app/Main.h"
#include "app/PictureCommand.h"
#include "app/fields/ProjectInfo.h"
#include "app/settings/mdlPrivateProfile.h"
#include "document/AppVersion.h"
#include "output/AnimationFile.h"
#include "output/MovieListing.h"
#include "platform/ConsoleUserInterface.h"
#include "platform/RuntimeError.h"
#include "platform/TextEncoding.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr int Done = 0;
constexpr int CouldNot = 1;
constexpr int WrongUsage = 2;
constexpr int DoneWithMessages = 3;

constexpr const char* Usage =
    "Tamber [PROJECT]                      the window (where built with one)\n"
    "Tamber generate PROJECT [-o OUT.swf] [--html] [--strict] [--set KEY=VALUE ...]\n"
    "Tamber convert IN.kvf OUT.kvfz        load and save again\n"
    "Tamber info PROJECT [--json]          stage, symbols, layers, key frames, as read\n"
    "Tamber batch [FILE]                   controller commands from a text, one a line\n"
    "Tamber batch --list                   the commands, with their arguments\n"
    "Tamber disassemble FILE.swf           tags and actions of a movie\n"
    "Tamber picture PROJECT [--frame N | --frames A-B] [--symbol ID] [--scale S | --size WxH]\n"
    "               [--transparent] -o OUT.png\n"
    "                                      pictures; scripts do not run. --frames writes a\n"
    "                                      sequence (OUT_%04d.png), in which sprites go on\n"
    "Tamber export PROJECT [--loop N] [--frames A-B] [--scale S | --size WxH] [--transparent]\n"
    "              -o OUT.gif|.png|.webp   an animation of all frames; scripts do not run\n"
    "Tamber --version | --help\n"
    "\n"
    "--home DIR     the program's folder, with its settings and data\n"
    "--yes          answers questions with yes\n"
    "--assets DIR   looks there for files that are missing, by their names\n"
    "--skip-broken  opens a project without the files that are missing or cannot be read\n";

/// The arguments, sorted into options and the rest.
struct Options {
    std::vector<std::string> Words;
    std::string Output;
    std::string Home;
    std::string Assets;
    std::vector<std::string> Settings;
    std::string Frame;
    std::string Frames;
    std::string Symbol;
    std::string Scale;
    std::string Size;
    std::string Loop;
    bool Transparent = false;
    bool Strict = false;
    bool Html = false;
    bool List = false;
    bool Json = false;
    bool Yes = false;
    bool SkipBroken = false;
    bool Help = false;
    bool Version = false;
    std::string Error;
};

struct ValueOption {
    std::string_view Name;
    std::string Options::*Value;
};

constexpr ValueOption ValueOptions[] = {
    {"-o", &Options::Output},     {"--home", &Options::Home},     {"--assets", &Options::Assets},
    {"--frame", &Options::Frame}, {"--frames", &Options::Frames}, {"--symbol", &Options::Symbol},
    {"--scale", &Options::Scale}, {"--size", &Options::Size},     {"--loop", &Options::Loop},
};

const ValueOption* FindValueOption(std::string_view name) {
    const auto found = std::find_if(std::begin(ValueOptions), std::end(ValueOptions),
                                    [name](const auto& option) { return option.Name == name; });
    return found == std::end(ValueOptions) ? nullptr : &*found;
}

bool TakesValue(const std::string& name) {
    return name == "--set" || FindValueOption(name) != nullptr;
}

void TakeValue(Options& options, const std::string& name, const std::string& value) {
    if (const ValueOption* option = FindValueOption(name))
        options.*option->Value = value;
    else
        options.Settings.push_back(value);
}

bool TakeFlag(Options& options, const std::string& name) {
    if (name == "--strict") return options.Strict = true;
    if (name == "--list") return options.List = true;
    if (name == "--html") return options.Html = true;
    if (name == "--transparent") return options.Transparent = true;
    if (name == "--json") return options.Json = true;
    if (name == "--yes") return options.Yes = true;
    if (name == "--skip-broken") return options.SkipBroken = true;
    if (name == "--help" || name == "-h") return options.Help = true;
    if (name == "--version") return options.Version = true;
    return false;
}

Options Parse(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (TakesValue(word)) {
            if (i + 1 == arguments.size()) {
                options.Error = word + " needs a value";
                return options;
            }
            TakeValue(options, word, arguments[++i]);
        } else if (word.size() > 1 && word[0] == '-') {
            if (!TakeFlag(options, word)) options.Error = "unknown option " + word;
        } else {
            options.Words.push_back(word);
        }
    }
    return options;
}

int RefuseUsage(const std::string& why) {
    std::fprintf(stderr, "Tamber: %s\n%s", why.c_str(), Usage);
    return WrongUsage;
}

/// Done, or CouldNot when standard output takes no more.
int Print(const std::string& text) {
    const bool whole = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (whole && std::fflush(stdout) == 0) return Done;
    std::fprintf(stderr, "Tamber: cannot write to standard output\n");
    return CouldNot;
}

String PathOf(const std::string& word) {
    return AbsolutePath(FromNarrow(word));
}

ConsoleAnswers AnswersOf(const Options& options) {
    return {options.Yes, options.SkipBroken,
            options.Assets.empty() ? String() : PathOf(options.Assets)};
}

bool LoadFor(frmMain& controller, const std::string& word) {
    return controller.OpenProject(PathOf(word));
}

int Generate(const Options& options, const ConsoleUserInterface& console) {
    if (options.Html) mdlPrivateProfile::SettingsOverride(u"flgMakeHTML=1");
    frmMain controller;
    if (!LoadFor(controller, options.Words[1])) return CouldNot;
    const String project = controller.ProjectFileName();
    const String output = options.Output.empty()
                              ? JoinPath(GetFileFolder(project), GetFileBase(project) + u".swf")
                              : PathOf(options.Output);
    if (!controller.mnuAuthoring(output)) return CouldNot;
    return options.Strict && console.MessagesShown() > 0 ? DoneWithMessages : Done;
}

int Convert(const Options& options) {
    frmMain controller;
    if (!LoadFor(controller, options.Words[1])) return CouldNot;
    return controller.SaveCopy(PathOf(options.Words[2])) ? Done : CouldNot;
}

int Info(const Options& options) {
    frmMain controller;
    if (!LoadFor(controller, options.Words[1])) return CouldNot;
    return Print(options.Json ? ProjectInfoJson(controller.inProject())
                              : ProjectInfoText(controller.inProject()));
}

int Disassemble(const Options& options) {
    Bytes file;
    const String path = PathOf(options.Words[1]);
    if (!ReadFileBytes(path, file)) {
        ShowMessage(u"ファイルを開けません。\r\n\r\n" + path);
        return CouldNot;
    }
    const MovieListing listing(file);
    const int printed = Print(listing.Text());
    if (listing.Fault().empty()) return printed;
    ShowMessage(listing.Fault() + u"\r\n\r\n" + path);
    return CouldNot;
}

/// What a text for an option says; the usage's fault where it makes no sense.
std::optional<PictureRequest> ReadPictureRequest(const Options& options, std::string& fault) {
    PictureRequest request;
    const auto refuse = [&fault](const char* why) {
        fault = why;
        return std::nullopt;
    };
    request.blSequence = !options.Frames.empty();
    const std::string& frames = request.blSequence ? options.Frames : options.Frame;
    if (!frames.empty()) {
        const auto range = ReadFrames(FromNarrow(frames));
        if (!range || (!request.blSequence && range->first != range->second))
            return refuse("--frame needs a number, --frames two as in 1-10");
        request.FirstFrame = range->first;
        request.LastFrame = range->second;
    }
    if (!options.Symbol.empty()) {
        const auto id = ReadFrames(FromNarrow(options.Symbol));
        if (!id || id->first != id->second) return refuse("--symbol needs a number");
        request.Symbol = id->first;
    }
    if (!options.Size.empty()) {
        request.Size = ReadSize(FromNarrow(options.Size));
        if (!request.Size) return refuse("--size needs two numbers as in 640x480");
    }
    if (!options.Scale.empty()) {
        request.Scale = ToSingle(FromNarrow(options.Scale));
        if (!(request.Scale > 0 && request.Scale <= 100)) return refuse("--scale needs a number");
    }
    if (!options.Loop.empty()) {
        const auto loops = ReadFrames(FromNarrow(options.Loop));
        if (!loops && options.Loop != "0") return refuse("--loop needs a number");
        request.Loops = loops ? loops->first : 0;
    }
    request.blTransparent = options.Transparent;
    if (options.Output.empty()) return refuse("-o and a path are missing");
    request.Output = PathOf(options.Output);
    return request;
}

int Export(const Options& options) {
    std::string fault;
    const auto request = ReadPictureRequest(options, fault);
    if (!request) return RefuseUsage(fault);
    if (!MakeAnimationFile(request->Output, {1, 1}))
        return RefuseUsage("export needs a path that ends in .gif, .png or .webp");
    frmMain controller;
    if (!LoadFor(controller, options.Words[1])) return CouldNot;
    return WriteAnimation(controller, *request) ? Done : CouldNot;
}

int Picture(const Options& options) {
    std::string fault;
    const auto request = ReadPictureRequest(options, fault);
    if (!request) return RefuseUsage(fault);
    if (request->blSequence && !NumberedPath(request->Output, 1))
        return RefuseUsage("--frames needs a path with a place for the number, as in a_%04d.png");
    frmMain controller;
    if (!LoadFor(controller, options.Words[1])) return CouldNot;
    return WritePictures(controller, *request) ? Done : CouldNot;
}

/// The text of a file, or of standard input. Nothing when it cannot be read.
std::optional<String> ScriptText(const Options& options) {
    if (options.Words.size() == 1) {
        const std::string input{std::istreambuf_iterator<char>(std::cin), {}};
        return FromNarrow(input);
    }
    Bytes bytes;
    if (!ReadFileBytes(PathOf(options.Words[1]), bytes)) return std::nullopt;
    return DecodeText(bytes);
}

int Batch(const Options& options) {
    if (options.List) return Print(BatchRunner::List());
    const std::optional<String> script = ScriptText(options);
    if (!script) {
        ShowMessage(PathOf(options.Words[1]) + u"\r\n\r\nファイルが見つかりません。");
        return CouldNot;
    }
    BatchUserInterface interface(AnswersOf(options));
    const UserInterfaceScope scope(interface);
    frmMain controller;
    controller.Form_Load();
    bool printed = true;
    const auto print = [&printed](const std::string& text) {
        printed = Print(text) == Done && printed;
    };
    const bool done = BatchRunner({controller, &interface, print}).Run(*script);
    if (controller.HasUnsavedWork()) interface.Status(u"プロジェクトの変更は保存されていません。");
    return done && printed ? Done : CouldNot;
}

int RunWithoutWindow(const Options& options) {
    OwnEnvironment environment;
    Application application(environment);
    const String path = options.Words.empty() ? String() : u"\"" + PathOf(options.Words[0]) + u"\"";
    if (!application.Main(path)) return CouldNot;
    application.Stop();
    std::fprintf(stderr, "Tamber: this build has no window; Tamber --help tells its commands\n");
    return Done;
}

int Dispatch(const Options& options, const ConsoleUserInterface& console) {
    const std::string command = options.Words.empty() ? "" : options.Words[0];
    const std::size_t count = options.Words.size();
    if (command == "generate")
        return count == 2 ? Generate(options, console) : RefuseUsage("generate needs one project");
    if (command == "convert")
        return count == 3 ? Convert(options) : RefuseUsage("convert needs two paths");
    if (command == "info")
        return count == 2 ? Info(options) : RefuseUsage("info needs one project");
    if (command == "picture")
        return count == 2 ? Picture(options) : RefuseUsage("picture needs one project");
    if (command == "export")
        return count == 2 ? Export(options) : RefuseUsage("export needs one project");
    if (command == "batch")
        return count <= 2 ? Batch(options) : RefuseUsage("batch needs one script at most");
    if (command == "disassemble")
        return count == 2 ? Disassemble(options) : RefuseUsage("disassemble needs one movie");
    if (count > 1) return RefuseUsage("unknown command " + command);
    return RunWithoutWindow(options);
}

}  // namespace

int RunCommandLine(const std::vector<std::string>& arguments, const std::string& programPath) {
    const Options options = Parse(arguments);
    if (!options.Error.empty()) return RefuseUsage(options.Error);
    if (options.Help) return Print(Usage);
    if (options.Version) return Print("Tamber " + ToNarrow(VersionText()) + "\n");
    ConsoleUserInterface console(AnswersOf(options));
    const UserInterfaceScope scope(console);
    ProgramFolder(options.Home.empty() ? GetFileFolder(PathOf(programPath)) : PathOf(options.Home));
    for (const std::string& setting : options.Settings)
        if (!mdlPrivateProfile::SettingsOverride(FromNarrow(setting)))
            return RefuseUsage("unknown setting " + setting);
    try {
        return Dispatch(options, console);
    } catch (const std::bad_alloc&) {
        ShowMessage(u"メモリ不足です。", ProgramTitle, MessageIcon::Error);
    } catch (const RuntimeError& error) {
        ShowMessage(error.Description, error.Source, MessageIcon::Error);
    }
    return CouldNot;
}

}  // namespace tamber
