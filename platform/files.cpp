#include "platform/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/codepage.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr std::size_t BlockSize = 0x40000;

/// An open file descriptor, closed at the end of its life.
class FileHandle {
public:
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
    ~FileHandle() {
        if (descriptor_ >= 0) close(descriptor_);
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;

    bool Ok() const { return descriptor_ >= 0; }
    int Descriptor() const { return descriptor_; }
    bool Close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return close(descriptor) == 0;
    }

private:
    int descriptor_;
};

bool StepAllowed() {
    return !BeforeWriteStep() || BeforeWriteStep()();
}

bool WriteAll(int descriptor, ByteView bytes) {
    while (!bytes.empty()) {
        if (!StepAllowed()) return false;
        const ssize_t done = write(descriptor, bytes.data(), std::min(bytes.size(), BlockSize));
        if (done <= 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(done));
    }
    return true;
}

/// Permissions for the new file: those of the one it replaces, else what the system gives.
void KeepPermissions(int descriptor, const std::string& target) {
    struct stat info {};
    if (stat(target.c_str(), &info) == 0) {
        (void)fchmod(descriptor, info.st_mode & 07777);
        return;
    }
    const mode_t mask = umask(0);
    umask(mask);
    (void)fchmod(descriptor, 0666 & ~mask);
}

bool FillFile(int descriptor, ByteView bytes, const std::string& target) {
    KeepPermissions(descriptor, target);
    return WriteAll(descriptor, bytes) && StepAllowed() && fsync(descriptor) == 0;
}

void FlushFolder(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    const FileHandle handle(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY));
    if (handle.Ok()) (void)fsync(handle.Descriptor());
}

/// The file that a path stands for once its links are followed.
std::string FollowLinks(const std::string& path) {
    std::error_code error;
    const auto target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

/// A device or pipe, which has no whole file to be replaced by.
bool IsDevice(const std::string& target) {
    struct stat info {};
    return stat(target.c_str(), &info) == 0 && !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode);
}

bool WriteThrough(ByteView bytes, const std::string& target) {
    FileHandle file(open(target.c_str(), O_WRONLY | O_CLOEXEC));
    return file.Ok() && WriteAll(file.Descriptor(), bytes) && file.Close();
}

/// An existing file that may not be written to is not replaced either.
bool IsProtected(const std::string& target) {
    return access(target.c_str(), F_OK) == 0 && access(target.c_str(), W_OK) != 0;
}

/// Pattern of a temporary name; short, since the target's own may be as long as names can be.
constexpr std::string_view TemporaryName = ".tamber-XXXXXX";
constexpr std::size_t TemporaryDigits = 6;

bool IsTemporaryName(std::string_view name) {
    const std::string_view head = TemporaryName.substr(0, TemporaryName.size() - TemporaryDigits);
    return name.size() == TemporaryName.size() && name.starts_with(head);
}

/// Creates the file that shall take the place of `target` and locks it, so that it counts as
/// nobody's leftover. `path` gets its name.
int CreateBeside(const std::string& target, std::string& path) {
    for (;;) {
        path = (std::filesystem::path(target).parent_path() / TemporaryName).string();
        const int descriptor = mkostemp(path.data(), O_CLOEXEC);
        struct stat info {};
        if (descriptor < 0 || flock(descriptor, LOCK_EX) != 0 || fstat(descriptor, &info) != 0 ||
            info.st_nlink > 0)
            return descriptor;
        // Taken for a leftover before it was locked.
        close(descriptor);
    }
}

/// Removes what saves that were killed left in the folder of `target`. Files of saves under way are
/// locked.
void RemoveLeftovers(const std::string& target) {
    const std::filesystem::path folder = std::filesystem::path(target).parent_path();
    std::error_code error;
    std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::filesystem::path& path = entry->path();
        if (!IsTemporaryName(path.filename().native())) continue;
        const FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (file.Ok() && flock(file.Descriptor(), LOCK_EX | LOCK_NB) == 0)
            (void)unlink(path.c_str());
    }
}

/// What the user reads for an error of the system.
StringView CauseOf(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
            return u"ディスクの空き容量が足りません。";
        case EACCES:
        case EPERM:
        case EROFS:
            return u"書き込みが許可されていません。";
        case ENOENT:
        case ENOTDIR:
            return u"フォルダが見つかりません。";
        case EISDIR:
            return u"同じ名前のフォルダがあります。";
        case ENAMETOOLONG:
            return u"名前が長すぎます。";
        case EFBIG:
            return u"ファイルが大きすぎます。";
        case EEXIST:
            return u"同じ名前のファイルがあります。";
        default:
            return u"書き込み中にエラーが発生しました。";
    }
}

String& LastFault() {
    thread_local String fault;
    return fault;
}

/// False with `errno`, which the caller has set to 0, when it does not succeed.
bool WriteWhole(ByteView bytes, const std::string& target) {
    if (IsDevice(target)) return WriteThrough(bytes, target);
    if (IsProtected(target)) return false;
    errno = 0;
    std::string beside;
    if (!StepAllowed()) return false;
    FileHandle file(CreateBeside(target, beside));
    if (!file.Ok()) return false;
    // Shares the lock, which holds until the file has its name; closing comes before that, since
    // it is the last that can fail for want of space.
    const FileHandle lock(fcntl(file.Descriptor(), F_DUPFD_CLOEXEC, 0));
    const bool written = lock.Ok() && FillFile(file.Descriptor(), bytes, target) && StepAllowed() &&
                         file.Close() && StepAllowed() &&
                         std::rename(beside.c_str(), target.c_str()) == 0;
    if (!written) {
        const int error = errno;
        (void)unlink(beside.c_str());
        errno = error;
        return false;
    }
    FlushFolder(target);
    RemoveLeftovers(target);
    return true;
}

}  // namespace

std::function<bool()>& BeforeWriteStep() {
    thread_local std::function<bool()> step;
    return step;
}

bool ReadFileBytes(StringView path, Bytes& bytes, std::uint64_t offset, std::uint64_t count) {
    const FileHandle file(open(ToNarrow(path).c_str(), O_RDONLY | O_CLOEXEC));
    struct stat info {};
    if (!file.Ok() || fstat(file.Descriptor(), &info) != 0 || S_ISDIR(info.st_mode)) return false;
    if (offset != 0 && lseek(file.Descriptor(), static_cast<off_t>(offset), SEEK_SET) < 0)
        return false;
    Bytes result;
    if (S_ISREG(info.st_mode)) {
        const auto size = static_cast<std::uint64_t>(info.st_size);
        result.reserve(std::min(count, size > offset ? size - offset : 0) + 1);
    }
    while (result.size() < count) {
        const std::size_t done = result.size();
        const std::size_t reserved = result.capacity() - done;
        const std::size_t room = reserved != 0 ? reserved : BlockSize;
        const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(count - done, room));
        result.resize(done + wanted);
        const ssize_t got = read(file.Descriptor(), result.data() + done, wanted);
        if (got < 0) return false;
        result.resize(done + static_cast<std::size_t>(got));
        if (got == 0) break;
    }
    bytes = std::move(result);
    return true;
}

std::optional<std::uint64_t> FileSize(StringView path) {
    struct stat info {};
    if (stat(ToNarrow(path).c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return std::nullopt;
    return static_cast<std::uint64_t>(info.st_size);
}

std::size_t ReadFileHead(std::span<Byte> bytes, StringView path) {
    Bytes head;
    if (!ReadFileBytes(path, head, 0, bytes.size())) return 0;
    std::copy(head.begin(), head.end(), bytes.begin());
    return head.size();
}

bool WriteFileBytes(ByteView bytes, StringView path, bool replace) {
    const std::string target = FollowLinks(ToNarrow(path));
    errno = path.empty() ? ENOENT : !replace && FileExists(path) ? EEXIST : 0;
    const bool written = errno == 0 && WriteWhole(bytes, target);
    LastFault() = written ? StringView() : CauseOf(errno);
    return written;
}

String WriteFault() {
    return LastFault();
}

bool DeleteFile(StringView path) {
    return !path.empty() && unlink(ToNarrow(path).c_str()) == 0;
}

std::vector<String> ListFiles(StringView folder, StringView pattern) {
    std::vector<String> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(ToNarrow(folder), error)) {
        String name = FromNarrow(entry.path().filename().string());
        if (entry.is_regular_file(error) && Like(FoldCase(name), pattern))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace tamber
