#pragma once

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// A settings text in code page 932: sections "[name]" with lines "key=value". Names are compared
/// without case, and of several with one name the first counts. Lines that are not understood are
/// kept byte for byte.
class IniFile {
public:
    struct Assignment {
        String Key;
        String Value;
    };

    IniFile() = default;
    explicit IniFile(Bytes bytes);

    /// The value without blanks and one pair of quotes around it; nothing when there is no such
    /// key.
    std::optional<String> Value(StringView section, StringView key) const;
    /// Replaces the value of a key, or appends the key to its section, or the section to the text.
    /// A value ends at its first line end or NUL.
    void Value(StringView section, StringView key, StringView value);

    const Bytes& Text() const { return bytes_; }

private:
    /// Offsets into the text.
    struct Range {
        std::size_t Begin = 0;
        std::size_t End = 0;
    };
    struct Section {
        /// Behind the last line that is not blank.
        std::size_t End = 0;
        std::unordered_map<String, Range> Values;
    };

    void Parse();
    void ParseLine(Range line, std::size_t next, Section*& section);
    void Splice(Range range, const Bytes& replacement);

    Bytes bytes_;
    std::unordered_map<String, Section> sections_;
};

/// The parsed file at `path`, empty when it cannot be read. One that was read before is given again
/// while the file's size, time of change and identity stay the same.
std::shared_ptr<const IniFile> OpenIniFile(StringView path);

/// Puts values into one section of the file at `path`, which is created when it is missing. False
/// leaves the file as it was.
bool WriteIniValues(StringView path, StringView section,
                    const std::vector<IniFile::Assignment>& values);

}  // namespace tamber
