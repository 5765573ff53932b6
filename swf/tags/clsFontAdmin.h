#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include "swf/tags/clsFontObject.h"

namespace tamber {

/// All fonts of one movie.
class clsFontAdmin {
public:
    /// Name, "_", "Bo" for bold, "It" for italic.
    static String MkFontName(StringView name, bool bold, bool italic);
    /// A name that begins with "_" stands for a font of the player's own.
    static bool IsDeviceFont(StringView name) { return name.starts_with(u'_'); }

    Long FontCount() const { return static_cast<Long>(fonts_.size()); }
    const String& FontName(Long index) const { return FontObject(index)->FontName; }
    /// The `index`-th font, from 1.
    const std::shared_ptr<clsFontObject>& FontObject(Long index) const {
        return fonts_.at(static_cast<std::size_t>(index - 1));
    }
    /// Position of a font, which is its identifier in the movie; that behind the end when it is not
    /// there.
    Long GetIndex(StringView key) const;
    /// The font of this key, made when it is not there yet.
    std::shared_ptr<clsFontObject> CinFontObject(StringView key);
    /// Passed on to each font, later ones too.
    bool blSJis() const { return sJis_; }
    void blSJis(bool value);

    /// Embeds every character of a text but line ends. A device font gets its entry alone.
    void SetOutLine(const LogFont& face, StringView text);

private:
    std::vector<std::shared_ptr<clsFontObject>> fonts_;
    std::unordered_map<String, Long> index_;
    bool sJis_ = false;
};

}  // namespace tamber
