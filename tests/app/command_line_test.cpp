#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace {

namespace fs = std::filesystem;

struct Outcome {
    int Code = -1;
    std::string Output;  ///< standard output
    std::string Errors;  ///< standard error
};

std::string TextOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Runs the real program in a folder of its own.
class CommandLineTest : public testing::Test {
protected:
    void SetUp() override { fs::create_directories(folder); }
    void TearDown() override { fs::remove_all(folder); }

    Outcome Tamber(const std::string& arguments) const {
        const fs::path out = folder / "out.txt";
        const fs::path err = folder / "err.txt";
        const std::string command = "cd '" + folder.string() + "' && '" TAMBER_PROGRAM "' " +
                                    arguments + " >out.txt 2>err.txt";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, TextOf(out), TextOf(err)};
    }

    fs::path folder =
        fs::path(testing::TempDir()) /
        (std::string("tamber_") + testing::UnitTest::GetInstance()->current_test_info()->name());
    std::string hello = "'" TAMBER_SOURCE_DIR "/examples/hello/hello.kvf'";
};

TEST_F(CommandLineTest, generates_the_example_without_a_message) {
    const Outcome run = Tamber("generate " + hello + " -o a.swf --strict");
    EXPECT_EQ(run.Code, 0) << run.Errors;
    const std::string movie = TextOf(folder / "a.swf");
    EXPECT_EQ(movie.substr(0, 4), std::string("CWS\x08"));
    EXPECT_EQ(Tamber("generate " + hello + " -o b.swf --set flgSWFCompress=0").Code, 0);
    const std::string plain = TextOf(folder / "b.swf");
    EXPECT_EQ(plain.substr(0, 4), std::string("FWS\x08"));
    // Both tell the size of the plain file.
    EXPECT_EQ(movie.substr(4, 4), plain.substr(4, 4));
    EXPECT_EQ(plain.size(), static_cast<unsigned char>(plain[4]) |
                                static_cast<unsigned char>(plain[5]) << 8 |
                                static_cast<unsigned char>(plain[6]) << 16);
}

TEST_F(CommandLineTest, generate_writes_a_page_and_the_player_that_it_loads) {
    const fs::path package = folder / "node_modules/@ruffle-rs/ruffle";
    fs::create_directories(package);
    std::ofstream(package / "ruffle.js") << "player";
    std::ofstream(package / "core.wasm") << "core";
    const Outcome run = Tamber("generate " + hello + " -o a.swf --html --strict");
    EXPECT_EQ(run.Code, 0) << run.Errors;
    EXPECT_NE(TextOf(folder / "a.html").find("SRC=\"a.swf\""), std::string::npos);
    EXPECT_EQ(TextOf(folder / "ruffle/ruffle.js") + TextOf(folder / "ruffle/core.wasm"),
              "playercore");
    // Where it is asked for none, and where there is none to be had.
    fs::remove_all(folder / "node_modules");
    fs::remove_all(folder / "ruffle");
    Tamber("generate " + hello + " -o b.swf --html --set flgPagePlayer=0");
    EXPECT_EQ(TextOf(folder / "b.html").find("ruffle"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "ruffle"));
}

TEST_F(CommandLineTest, a_page_without_its_template_leaves_the_movie) {
    const Outcome run = Tamber("generate " + hello + " -o a.swf --html --strict --home .");
    EXPECT_EQ(run.Code, 3);
    EXPECT_NE(run.Errors.find("template.txt が開けません。"), std::string::npos);
    EXPECT_NE(run.Errors.find("HTMLファイルが保存できません。"), std::string::npos);
    EXPECT_TRUE(fs::exists(folder / "a.swf"));
    EXPECT_FALSE(fs::exists(folder / "a.html"));
}

TEST_F(CommandLineTest, batch_runs_commands_and_tells_the_lines_that_fail) {
    fs::copy(fs::path(TAMBER_SOURCE_DIR) / "examples/hello", folder / "p");
    std::ofstream(folder / "script.txt") << "# a wider stage\n"
                                            "OpenProject p/hello.kvf\r\n"
                                            "mnuPrjProperty 111 222 12.5 7\n\n"
                                            "mnuSaveNew \"p/b c.kvfz\"\n"
                                            "mnuAuthoring out.swf\n"
                                            "Print\n";
    const Outcome run = Tamber("batch script.txt");
    EXPECT_EQ(run.Code, 0) << run.Errors;
    EXPECT_EQ(TextOf(folder / "p/b c.kvfz").substr(0, 4), "KVFZ");
    EXPECT_EQ(TextOf(folder / "out.swf").substr(0, 4), std::string("CWS\x07"));
    const auto state = nlohmann::json::parse(run.Output);
    EXPECT_EQ(state["changed"], false);
    EXPECT_EQ(state["editIndex"], -1);
    EXPECT_TRUE(fs::path(state["path"].get<std::string>()).is_absolute());

    std::ofstream(folder / "faulty.txt")
        << "mnuNone\nmnuUndoRedo\nmnuUndoRedo x\nOpenProject none.kvf\n"
           "mnuPrjProperty 0 1 1 6\nmnuSaveNew a.kvf\n";
    const Outcome faulty = Tamber("batch < faulty.txt");
    EXPECT_EQ(faulty.Code, 1);
    for (const char* line : {"1行目： 不明なコマンドです。「mnuNone」",
                             "2行目： 引数の数が違います。「mnuUndoRedo 0|1」",
                             "3行目： 引数が正しくありません。", "ファイルが見つかりません。",
                             "4行目： 実行できませんでした。", "5行目： 実行できませんでした。"})
        EXPECT_NE(faulty.Errors.find(line), std::string::npos) << line << "\n" << faulty.Errors;
    EXPECT_TRUE(fs::exists(folder / "a.kvf"));
    EXPECT_NE(Tamber("batch --list").Output.find("mnuPrjProperty WIDTH HEIGHT RATE VERSION\n"),
              std::string::npos);
}

TEST_F(CommandLineTest, batch_makes_a_movie_of_three_pictures) {
    fs::create_directories(folder / "examples");
    fs::copy(fs::path(TAMBER_SOURCE_DIR) / "examples/hello", folder / "examples/hello");
    fs::copy(fs::path(TAMBER_SOURCE_DIR) / "examples/batch", folder / "examples/batch");
    fs::create_directories(folder / "build");
    const Outcome run = Tamber("batch examples/batch/moonrise.txt");
    EXPECT_EQ(run.Code, 0) << run.Errors;
    EXPECT_EQ(TextOf(folder / "build/moonrise.swf").substr(0, 4), std::string("CWS\x08"));
    const auto state = nlohmann::json::parse(Tamber("info build/moonrise.kvf --json").Output);
    EXPECT_EQ(state["symbols"].size(), 3u);
    EXPECT_EQ(state["symbols"][0]["options"]["ToumeiColorBlue"], "255");
    ASSERT_EQ(state["layers"].size(), 4u);
    EXPECT_EQ(state["layers"][0]["keyFrames"][0]["DispCount"], 48);
    const auto& moon = state["layers"][1]["keyFrames"];
    ASSERT_EQ(moon.size(), 2u);
    EXPECT_EQ(moon[0]["blTween"], true);
    EXPECT_EQ(moon[0]["DispCount"], 47);
    EXPECT_EQ(moon[1]["placement"]["filters"]["Glow.BlurX"], "20");
}

TEST_F(CommandLineTest, batch_edits_a_timeline_with_what_its_lines_tell) {
    std::ofstream(folder / "a.as") << "stop();\ntrace(1);\n";
    std::ofstream(folder / "script.txt")
        << "mnuAddSymbolItem_Sprite 箱 40 30\n"
           "SelectSymbols 1\nSymbol ObjectName box\nAddToLayer 1 after\n"
           "AddToLayer 1 into into\nLayer InstanceName 箱\n"
           "Layer InstanceName box1\nLayer ClippingDepth 1000\n"
           "ChangeSprite 1\nAddToLayer 1\nmnuAddLayer_FrameAction\n"
           "ScriptFile a.as\nElement Comment\nmnuJump nowhere\n"
           "SelectFrames 4 6\nElement Comment lost\nmnuAddKeyFrame\n"
           "Element Comment four\nPrint\n";
    const Outcome run = Tamber("batch script.txt");
    EXPECT_EQ(run.Code, 1);
    for (const char* line : {"5行目：", "インスタンス名: ・半角", "6行目：", "8行目：",
                             "循環参照: 「箱」", "14行目：", "16行目："})
        EXPECT_NE(run.Errors.find(line), std::string::npos) << line << "\n" << run.Errors;
    const auto state = nlohmann::json::parse(run.Output);
    EXPECT_EQ(state["editIndex"], 1);
    EXPECT_EQ(state["layers"][0]["InstanceName"], "box1");
    EXPECT_EQ(state["symbols"][0]["ObjectName"], "box");
    const auto& rows = state["symbols"][0]["layers"];
    ASSERT_EQ(rows.size(), 1u);
    ASSERT_EQ(rows[0]["keyFrames"].size(), 2u);
    EXPECT_EQ(rows[0]["keyFrames"][0]["values"]["Script"], "stop();\ntrace(1);\n");
    EXPECT_EQ(rows[0]["keyFrames"][0]["values"]["Comment"], "");
    EXPECT_EQ(rows[0]["keyFrames"][1]["StartFrame"], 4);
    EXPECT_EQ(rows[0]["keyFrames"][1]["values"]["Comment"], "four");
}

TEST_F(CommandLineTest, info_tells_what_the_project_holds) {
    const Outcome run = Tamber("info " + hello + " --json");
    ASSERT_EQ(run.Code, 0) << run.Errors;
    const auto info = nlohmann::json::parse(run.Output);
    EXPECT_EQ(info["width"], 320);
    EXPECT_EQ(info["frameRate"], 24);
    ASSERT_EQ(info["symbols"].size(), 4u);
    EXPECT_EQ(info["symbols"][1]["name"], "月.png");
    EXPECT_EQ(info["symbols"][1]["width"], 72);
    ASSERT_EQ(info["layers"].size(), 5u);
    const auto& flight = info["layers"][1]["keyFrames"][0];
    EXPECT_EQ(flight["DispCount"], 72);
    EXPECT_EQ(flight["blTween"], true);
    EXPECT_EQ(flight["placement"]["ScaleX"], 0.5);
    EXPECT_EQ(flight["placement"]["tweenPoints"][2]["type"], "On");
}

TEST_F(CommandLineTest, disassemble_lists_a_movie_and_refuses_what_is_none) {
    const std::string movie = "'" + (folder / "hello.swf").string() + "'";
    ASSERT_EQ(Tamber("generate " + hello + " -o " + movie).Code, 0);
    const Outcome run = Tamber("disassemble " + movie);
    EXPECT_EQ(run.Code, 0) << run.Errors;
    EXPECT_NE(run.Output.find(" ShowFrame, 0 bytes\n"), std::string::npos);
    EXPECT_NE(run.Output.find(" End, 0 bytes\n"), std::string::npos);
    const Outcome refused = Tamber("disassemble " + hello);
    EXPECT_EQ(refused.Code, 1);
    EXPECT_NE(refused.Errors.find("SWFファイルではありません。"), std::string::npos);
    EXPECT_EQ(Tamber("disassemble").Code, 2);
}

TEST_F(CommandLineTest, draws_pictures_and_animations) {
    EXPECT_EQ(Tamber("picture " + hello + " --size 64x48 -o a.png").Code, 0);
    EXPECT_EQ(Tamber("picture " + hello + " --frames 9-11 --scale 0.5 -o f_%03d.png").Code, 0);
    EXPECT_EQ(Tamber("picture " + hello + " --symbol 2 --transparent -o s.png").Code, 0);
    EXPECT_EQ(Tamber("export " + hello + " --frames 1-3 -o a.gif").Code, 0);
    const auto sizeOf = [this](const char* name) { return TextOf(folder / name).substr(16, 8); };
    EXPECT_EQ(sizeOf("a.png"), std::string("\0\0\0\x40\0\0\0\x30", 8));
    EXPECT_EQ(sizeOf("f_009.png"), std::string("\0\0\0\xA0\0\0\0\x78", 8));
    EXPECT_TRUE(fs::exists(folder / "f_011.png"));
    EXPECT_EQ(TextOf(folder / "a.gif").substr(0, 6), "GIF89a");
    for (const char* wrong :
         {"", "--frames 1-2 -o a.png", "--frame 0 -o b.png", "--size 0x9 -o b.png",
          "--scale -1 -o b.png", "--symbol x -o b.png", "more -o b.png"})
        EXPECT_EQ(Tamber("picture " + hello + " " + wrong).Code, 2) << wrong;
    EXPECT_EQ(Tamber("export " + hello + " -o b.bmp").Code, 2);
    EXPECT_EQ(Tamber("picture " + hello + " --frame 98 -o b.png").Code, 1);
    EXPECT_EQ(Tamber("picture " + hello + " --symbol 99 -o b.png").Code, 1);
    EXPECT_EQ(Tamber("picture " + hello + " --scale 100 -o b.png").Code, 1);
    EXPECT_FALSE(fs::exists(folder / "b.png"));
}

TEST_F(CommandLineTest, info_names_references_filters_and_values) {
    const Outcome run = Tamber("info '" TAMBER_SOURCE_DIR "/examples/tour/tour.kvf' --json");
    ASSERT_EQ(run.Code, 0) << run.Errors;
    const auto info = nlohmann::json::parse(run.Output);
    EXPECT_EQ(info["symbols"][7]["colKomas"], (std::vector<int>{5, 6, 7}));
    EXPECT_EQ(info["symbols"][2]["options"]["JpegQuality"], "60");
    EXPECT_EQ(info["symbols"][8]["layers"].size(), 3u);
    const auto& ball = info["layers"][2]["keyFrames"][0]["placement"];
    EXPECT_EQ(ball["filters"]["blDropShadow"], "True");
    EXPECT_EQ(ball["filters"]["DropShadow.ColorA"], "60");
    EXPECT_EQ(ball["filters"]["c19"], "1");
    EXPECT_FALSE(ball["filters"].contains("more"));
    EXPECT_EQ(info["layers"].back()["keyFrames"][0]["values"]["BackColorRed"], "230");
    EXPECT_EQ(
        Tamber("generate '" TAMBER_SOURCE_DIR "/examples/tour/tour.kvf' -o t.swf --strict").Code,
        0);
}

TEST_F(CommandLineTest, converting_there_and_back_keeps_the_project) {
    fs::copy(fs::path(TAMBER_SOURCE_DIR) / "examples/hello", folder / "p");
    ASSERT_EQ(Tamber("convert p/hello.kvf p/a.kvfz").Code, 0);
    EXPECT_EQ(TextOf(folder / "p/a.kvfz").substr(0, 4), "KVFZ");
    ASSERT_EQ(Tamber("convert p/a.kvfz p/b.kvf").Code, 0);
    EXPECT_EQ(TextOf(folder / "p/b.kvf"), TextOf(folder / "p/hello.kvf"));
}

TEST_F(CommandLineTest, says_what_went_wrong_and_writes_nothing) {
    std::ofstream(folder / "broken.kvf") << "KVF,0,9";
    std::ofstream(folder / "lost.kvf")
        << "KVF,0,9,0\r\n10,10,12,6\r\n1\r\n1,gone.png,\x89\xE6\x91\x9C,,,,"
           "False,0,0,0,False,CR,100,False,70\r\n0\r\n";
    const struct {
        std::string arguments;
        int code;
        std::string message;
    } cases[] = {
        {"generate missing.kvf -o a.swf", 1, "ファイルが見つかりません。"},
        {"generate broken.kvf -o a.swf", 1, "ファイルが不正です: 読込できませんでした。"},
        {"generate lost.kvf -o a.swf", 1, "gone.png\n\nファイルが見つかりません。"},
        {"generate " + hello + " -o no/such/folder/a.swf", 1, "書き込めませんでした"},
        {"convert " + hello + " no/such/\"\"/", 1, "保存できませんでした。"},
        {"generate", 2, "generate needs one project"},
        {"info a b c", 2, "info needs one project"},
        {"generate a.kvf --set nonsense=1", 2, "unknown setting nonsense=1"},
        {"--nonsense", 2, "unknown option --nonsense"},
    };
    for (const auto& c : cases) {
        const Outcome run = Tamber(c.arguments);
        EXPECT_EQ(run.Code, c.code) << c.arguments << "\n" << run.Errors;
        EXPECT_NE(run.Errors.find(c.message), std::string::npos) << c.arguments << "\n"
                                                                 << run.Errors;
        EXPECT_FALSE(fs::exists(folder / "a.swf")) << c.arguments;
    }
}

TEST_F(CommandLineTest, never_writes_over_what_the_movie_is_made_from) {
    fs::copy(fs::path(TAMBER_SOURCE_DIR) / "examples/hello", folder / "p");
    fs::copy(folder / "p/hello.kvf", folder / "p/hello.swf");
    fs::path picture;
    for (const auto& entry : fs::directory_iterator(folder / "p"))
        if (entry.path().extension() == ".gif") picture = entry.path();
    for (const std::string& arguments :
         {std::string("generate p/hello.kvf -o p/hello.kvf"), std::string("generate p/hello.swf"),
          "generate p/hello.kvf -o '" + picture.string() + "'",
          "convert p/hello.kvf '" + picture.string() + "'"}) {
        const Outcome run = Tamber(arguments);
        EXPECT_EQ(run.Code, 1) << arguments;
        EXPECT_NE(run.Errors.find("出力できません"), std::string::npos) << run.Errors;
    }
    EXPECT_EQ(TextOf(folder / "p/hello.kvf"), TextOf(folder / "p/hello.swf"));
    EXPECT_EQ(TextOf(picture).substr(0, 3), "GIF");
}

TEST_F(CommandLineTest, holds_on_to_sense_in_settings_and_output) {
    EXPECT_EQ(Tamber("--set FPS=1e39 --set CanvasWidth=99999").Code, 0);
    EXPECT_EQ(Tamber("none.kvf").Errors.substr(0, 6), "Tamber");
    EXPECT_NE(Tamber("none.kvf").Errors.find("ファイルが見つかりません。"), std::string::npos);
    const std::string full = "'" TAMBER_PROGRAM "' info " + hello + " > /dev/full 2>/dev/null";
    EXPECT_EQ(WEXITSTATUS(std::system(full.c_str())), 1);
    // Settings of the page travel in the project only when asked for.
    EXPECT_EQ(Tamber("convert " + hello + " a.kvf").Code, 0);
    EXPECT_EQ(TextOf(folder / "a.kvf").find("HTML,"), std::string::npos);
    EXPECT_EQ(Tamber("convert " + hello + " b.kvf --set flgHTMLtoProject=1 --set WIDTH=7").Code, 0);
    EXPECT_NE(TextOf(folder / "b.kvf").find("HTML,,7,0,,,True,True,False,high,,,True\r\n"),
              std::string::npos);
    EXPECT_EQ(Tamber("convert b.kvf c.kvf").Code, 0);
    EXPECT_EQ(TextOf(folder / "c.kvf").find("HTML,"), std::string::npos);
    EXPECT_EQ(Tamber("convert b.kvf d.kvf --set flgHTMLtoProject=1").Code, 0);
    EXPECT_NE(TextOf(folder / "d.kvf").find("HTML,,7,"), std::string::npos);
    // A version that is not offered.
    std::ofstream(folder / "print.txt") << "Print\n";
    EXPECT_NE(Tamber("batch print.txt --set SWFVersion=5").Output.find("\"swfVersion\": 6"),
              std::string::npos);
}

TEST_F(CommandLineTest, goes_on_without_files_or_finds_them_elsewhere_when_told_to) {
    const fs::path example = fs::path(TAMBER_SOURCE_DIR) / "examples/hello";
    fs::copy(example / "hello.kvf", folder / "lost.kvf");
    EXPECT_EQ(Tamber("generate lost.kvf").Code, 1);
    EXPECT_EQ(Tamber("generate lost.kvf --skip-broken").Code, 0);
    EXPECT_EQ(Tamber("generate lost.kvf --assets '" + example.string() + "'").Code, 0);
    std::ofstream(folder / "夜空.jpg") << "no picture";
    const Outcome run = Tamber("generate lost.kvf --assets '" + example.string() + "'");
    EXPECT_EQ(run.Code, 1);
    EXPECT_NE(run.Errors.find("失敗しました。\n\n" + (folder / "夜空.jpg").string()),
              std::string::npos)
        << run.Errors;
    std::ofstream batch(folder / "batch.txt");
    for (const char* name : {"月.png", "星.gif", "丘.bmp"})
        batch << "Answer file \"" << (example / name).string() << "\"\n";
    batch << "Answer yes\nOpenProject lost.kvf\nmnuPrjProperty 100 100 12 8\n";
    batch.close();
    const Outcome edited = Tamber("batch batch.txt");
    EXPECT_EQ(edited.Code, 0) << edited.Errors;
    EXPECT_NE(edited.Errors.find("変更は保存されていません"), std::string::npos);
}

TEST_F(CommandLineTest, without_a_command_starts_and_stops_and_has_no_window) {
    const Outcome run = Tamber("");
    EXPECT_EQ(run.Code, 0);
    EXPECT_NE(run.Errors.find("no window"), std::string::npos);
    EXPECT_EQ(Tamber("--version").Output, "Tamber 0.9.0\n");
    EXPECT_EQ(Tamber("--help").Code, 0);
}

TEST_F(CommandLineTest, strict_tells_apart_a_movie_with_messages) {
    std::ofstream(folder / "text.kvf") << "KVF,0,9,0\r\n10,10,12,4\r\n0\r\n0\r\n";
    EXPECT_EQ(Tamber("generate text.kvf -o a.swf").Code, 0);
    EXPECT_EQ(Tamber("generate text.kvf -o a.swf --strict").Code, 3);
    EXPECT_TRUE(fs::exists(folder / "a.swf"));
}

}  // namespace
