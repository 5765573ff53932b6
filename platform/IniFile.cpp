#include "platform/IniFile.h"

#include <sys/stat.h>

#include <algorithm>
#include <mutex>
#include <utility>

#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

bool IsLineEnd(Byte byte) {
    return byte == '\r' || byte == '\n';
}
bool IsBlank(Byte byte) {
    return byte == ' ' || byte == '\t';
}

String NameOf(StringView text) {
    return FoldCase(Trim(text));
}

String WithoutQuotes(String value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == u'"' || value.front() == u'\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

StringView OneLine(StringView value) {
    return value.substr(0, value.find_first_of(StringView(u"\r\n\0", 3)));
}

void Append(Bytes& bytes, StringView text) {
    const Bytes code = EncodeAnsi(text);
    bytes.insert(bytes.end(), code.begin(), code.end());
}

/// What tells one state of a file from another; all zero for a file that is not there.
struct Stamp {
    std::uint64_t Device = 0;
    std::uint64_t Inode = 0;
    std::int64_t Size = 0;
    std::int64_t Seconds = 0;
    std::int64_t Nanoseconds = 0;

    bool operator==(const Stamp&) const = default;
};

Stamp StampOf(StringView path) {
    struct stat info {};
    if (stat(ToNarrow(path).c_str(), &info) != 0) return {};
    return {info.st_dev, info.st_ino, info.st_size, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
}

struct ReadFile {
    Stamp State;
    std::shared_ptr<const IniFile> File;
};

}  // namespace

IniFile::IniFile(Bytes bytes) : bytes_(std::move(bytes)) {
    Parse();
}

void IniFile::Parse() {
    sections_.clear();
    Section* section = nullptr;
    for (std::size_t begin = 0; begin < bytes_.size();) {
        std::size_t end = begin;
        while (end < bytes_.size() && !IsLineEnd(bytes_[end])) ++end;
        std::size_t next = std::min(end + 1, bytes_.size());
        if (next < bytes_.size() && bytes_[end] == '\r' && bytes_[next] == '\n') ++next;
        std::size_t first = begin;
        while (first < end && IsBlank(bytes_[first])) ++first;
        if (first < end) ParseLine({first, end}, next, section);
        begin = next;
    }
}

void IniFile::ParseLine(Range line, std::size_t next, Section*& section) {
    const ByteView all(bytes_);
    const auto decoded = [all](std::size_t begin, std::size_t end) {
        return DecodeAnsi(all.subspan(begin, end - begin));
    };
    if (all[line.Begin] == '[') {
        // A trail byte may look like "]", so the bracket is searched in the text.
        const String text = decoded(line.Begin + 1, line.End);
        const std::size_t close = text.find(u']');
        if (close != String::npos) {
            const auto [place, fresh] = sections_.try_emplace(NameOf(text.substr(0, close)));
            section = fresh ? &place->second : nullptr;
        }
    }
    if (section == nullptr) return;
    section->End = next;
    const ByteView content = all.subspan(line.Begin, line.End - line.Begin);
    if (content.front() == ';' || content.front() == '[') return;
    const auto equals = std::find(content.begin(), content.end(), '=');
    if (equals == content.end()) return;
    const std::size_t sign = line.Begin + static_cast<std::size_t>(equals - content.begin());
    section->Values.try_emplace(NameOf(decoded(line.Begin, sign)), Range{sign + 1, line.End});
}

std::optional<String> IniFile::Value(StringView section, StringView key) const {
    const auto place = sections_.find(NameOf(section));
    if (place == sections_.end()) return std::nullopt;
    const auto value = place->second.Values.find(NameOf(key));
    if (value == place->second.Values.end()) return std::nullopt;
    const auto [begin, end] = value->second;
    return WithoutQuotes(Trim(DecodeAnsi(ByteView(bytes_).subspan(begin, end - begin))));
}

void IniFile::Value(StringView section, StringView key, StringView value) {
    const StringView line = OneLine(value);
    const auto place = sections_.find(NameOf(section));
    const bool known = place != sections_.end();
    if (known) {
        const auto found = place->second.Values.find(NameOf(key));
        if (found != place->second.Values.end()) {
            Splice(found->second, EncodeAnsi(line));
            return;
        }
    }
    const std::size_t at = known ? place->second.End : bytes_.size();
    Bytes added;
    if (at > 0 && !IsLineEnd(bytes_[at - 1])) Append(added, vbCrLf);
    if (!known) Append(added, u"[" + String(section) + u"]\r\n");
    Append(added, String(key) + u"=" + String(line) + u"\r\n");
    Splice({at, at}, added);
}

void IniFile::Splice(Range range, const Bytes& replacement) {
    const auto at = [this](std::size_t offset) {
        return bytes_.begin() + static_cast<std::ptrdiff_t>(offset);
    };
    bytes_.erase(at(range.Begin), at(range.End));
    bytes_.insert(at(range.Begin), replacement.begin(), replacement.end());
    Parse();
}

std::shared_ptr<const IniFile> OpenIniFile(StringView path) {
    static std::mutex mutex;
    static std::unordered_map<String, ReadFile> files;
    // Taken before the reading: a change in between is noticed at the next call.
    const Stamp state = StampOf(path);
    const std::lock_guard lock(mutex);
    ReadFile& known = files[String(path)];
    if (known.File != nullptr && known.State == state) return known.File;
    Bytes bytes;
    (void)ReadFileBytes(path, bytes);
    known = {state, std::make_shared<const IniFile>(std::move(bytes))};
    return known.File;
}

bool WriteIniValues(StringView path, StringView section,
                    const std::vector<IniFile::Assignment>& values) {
    Bytes bytes;
    // A file that is there and cannot be read would lose its other keys.
    if (!ReadFileBytes(path, bytes) && FileExists(path)) return false;
    IniFile file(std::move(bytes));
    for (const IniFile::Assignment& value : values) file.Value(section, value.Key, value.Value);
    return WriteFileBytes(file.Text(), path);
}

}  // namespace tamber
