#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {
namespace {

namespace fs = std::filesystem;

class FilesTest : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(folder);
        fs::create_directories(folder);
    }
    void TearDown() override {
        BeforeWriteStep() = nullptr;
        fs::remove_all(folder);
    }

    Bytes Content() const {
        Bytes bytes;
        EXPECT_TRUE(ReadFileBytes(path, bytes));
        return bytes;
    }
    std::size_t FilesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path folder =
        fs::path(testing::TempDir()) /
        (std::string("files_") + testing::UnitTest::GetInstance()->current_test_info()->name());
    String path = FromNarrow((folder / "保存.kvf").string());
    Bytes oldBytes = Bytes(100, 1);
    /// Large enough for several writes.
    Bytes newBytes = Bytes(1000000, 2);
};

/// Lets `allowed` steps pass and then does `stop`.
void StopAfter(int allowed, std::function<bool()> stop) {
    BeforeWriteStep() = [allowed, stop]() mutable { return allowed-- > 0 || stop(); };
}

TEST_F(FilesTest, a_save_that_fails_at_any_step_leaves_the_old_file_and_nothing_beside_it) {
    int steps = 0;
    for (; steps < 100; ++steps) {
        BeforeWriteStep() = nullptr;
        ASSERT_TRUE(WriteFileBytes(oldBytes, path));
        StopAfter(steps, [] { return false; });
        if (WriteFileBytes(newBytes, path)) break;
        EXPECT_EQ(Content(), oldBytes) << steps;
        EXPECT_EQ(FilesInFolder(), 1u) << steps;
    }
    EXPECT_EQ(Content(), newBytes);
    // Create, four writes of 256 KiB, flush, close, rename.
    EXPECT_EQ(steps, 8);
}

TEST_F(FilesTest, a_save_killed_at_any_step_leaves_the_old_file_or_the_new_one) {
    for (int steps = 0; steps < 100; ++steps) {
        ASSERT_TRUE(WriteFileBytes(oldBytes, path));
        const pid_t child = fork();
        if (child == 0) {
            StopAfter(steps, []() -> bool { _exit(1); });
            _exit(WriteFileBytes(newBytes, path) ? 0 : 2);
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        if (WEXITSTATUS(status) == 0) {
            EXPECT_EQ(Content(), newBytes);
            EXPECT_EQ(steps, 8);
            return;
        }
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(Content(), oldBytes) << steps;
        // The next save clears away what the killed one left.
        ASSERT_TRUE(WriteFileBytes(oldBytes, path));
        EXPECT_EQ(FilesInFolder(), 1u) << steps;
    }
    FAIL() << "no save went through";
}

TEST_F(FilesTest, a_save_under_way_is_no_leftover_at_any_step) {
    const String other = FromNarrow((folder / "other").string());
    // From the first write to the rename.
    for (int steps = 1; steps < 8; ++steps) {
        ASSERT_TRUE(WriteFileBytes(oldBytes, path));
        bool within = false;
        StopAfter(steps, [this, &other, &within] {
            // The other save has steps of its own.
            if (within) return true;
            within = true;
            return WriteFileBytes(oldBytes, other);
        });
        EXPECT_TRUE(WriteFileBytes(newBytes, path)) << steps;
        EXPECT_EQ(Content(), newBytes) << steps;
        BeforeWriteStep() = nullptr;
    }
}

TEST_F(FilesTest, a_failed_write_has_a_cause_in_words) {
    const std::pair<int, StringView> causes[] = {
        {ENOSPC, u"ディスクの空き容量が足りません。"},
        {EROFS, u"書き込みが許可されていません。"},
        {EIO, u"書き込み中にエラーが発生しました。"},
    };
    for (const auto& [error, cause] : causes) {
        StopAfter(2, [code = error] {
            errno = code;
            return false;
        });
        EXPECT_FALSE(WriteFileBytes(newBytes, path));
        EXPECT_EQ(WriteFault(), cause);
    }
    BeforeWriteStep() = nullptr;
    EXPECT_FALSE(WriteFileBytes(oldBytes, FromNarrow(folder.string())));
    EXPECT_EQ(WriteFault(), u"同じ名前のフォルダがあります。");
    EXPECT_FALSE(WriteFileBytes(oldBytes, u"/dev/full"));
    EXPECT_EQ(WriteFault(), causes[0].second);
    EXPECT_TRUE(WriteFileBytes(oldBytes, path));
    EXPECT_EQ(WriteFault(), u"");
}

TEST_F(FilesTest, a_save_keeps_permissions_and_follows_links) {
    const fs::path file = folder / "a";
    const fs::path link = folder / "b";
    ASSERT_TRUE(WriteFileBytes(oldBytes, FromNarrow(file.string())));
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    fs::create_symlink(file, link);
    ASSERT_TRUE(WriteFileBytes(newBytes, FromNarrow(link.string())));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::file_size(file), newBytes.size());
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
}

TEST_F(FilesTest, paths_that_climb_start_where_links_lead) {
    const String real = FromNarrow((fs::canonical(folder) / "real" / "deep").string());
    const String root = GetFileFolder(GetFileFolder(real));
    const String link = JoinPath(root, u"link");
    fs::create_directories(ToNarrow(real));
    fs::create_symlink("real/deep", ToNarrow(link));
    EXPECT_EQ(NormalizePath(JoinPath(link, u"../a.png")), JoinPath(root, u"real/a.png"));
    EXPECT_EQ(AbsolutePath(JoinPath(link, u"./x/../../a.png")), JoinPath(root, u"real/a.png"));
    EXPECT_EQ(MakeRelativePath(link, JoinPath(root, u"a.png")), u"../../a.png");
    EXPECT_EQ(MakeRelativePath(link, JoinPath(link, u"a.png")), u"a.png");
    const String project = JoinPath(real, u"a.kvf");
    ASSERT_TRUE(WriteFileBytes(oldBytes, project));
    fs::create_symlink(ToNarrow(project), folder / "b.kvf");
    EXPECT_EQ(FolderOfFile(JoinPath(root, u"b.kvf")), real);
    EXPECT_EQ(FolderOfFile(JoinPath(link, u"a.kvf")), link);
}

TEST_F(FilesTest, a_pipe_is_written_to_and_stays_a_pipe) {
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_TRUE(WriteFileBytes(oldBytes, FromNarrow(pipe.string())));
    Bytes got(200);
    EXPECT_EQ(read(reader, got.data(), got.size()), 100);
    close(reader);
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(FilesTest, a_name_as_long_as_the_system_allows_can_be_written) {
    path = FromNarrow((folder / std::string(255, 'n')).string());
    EXPECT_TRUE(WriteFileBytes(oldBytes, path));
    EXPECT_EQ(Content(), oldBytes);
}

TEST_F(FilesTest, what_cannot_be_written_or_read_is_false) {
    EXPECT_FALSE(WriteFileBytes(oldBytes, u""));
    EXPECT_FALSE(WriteFileBytes(oldBytes, FromNarrow((folder / "no" / "a").string())));
    EXPECT_FALSE(WriteFileBytes(oldBytes, FromNarrow(folder.string())));
    ASSERT_TRUE(WriteFileBytes(oldBytes, path));
    EXPECT_FALSE(WriteFileBytes(newBytes, path, false));
    EXPECT_EQ(Content(), oldBytes);
    Bytes bytes;
    EXPECT_FALSE(ReadFileBytes(FromNarrow(folder.string()), bytes));
    EXPECT_FALSE(ReadFileBytes(u"/no/such/file", bytes));
}

TEST_F(FilesTest, a_part_of_a_file_can_be_read) {
    ASSERT_TRUE(WriteFileBytes(Bytes{1, 2, 3, 4, 5}, path));
    Bytes bytes;
    ASSERT_TRUE(ReadFileBytes(path, bytes, 1, 3));
    EXPECT_EQ(bytes, (Bytes{2, 3, 4}));
    ASSERT_TRUE(ReadFileBytes(path, bytes, 9));
    EXPECT_TRUE(bytes.empty());
    Bytes head(8);
    EXPECT_EQ(ReadFileHead(head, path), 5u);
    EXPECT_EQ(head, (Bytes{1, 2, 3, 4, 5, 0, 0, 0}));
}

}  // namespace
}  // namespace tamber
