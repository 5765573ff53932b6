#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

/// A change of a text: what was at `Start` gives way to `Inserted`. Counted in UTF-16 units from 0.
struct TextEdit {
    std::size_t Start = 0;
    std::size_t Removed = 0;
    String Inserted{};
    bool operator==(const TextEdit&) const = default;
};

/// The text of a script as an editor works with it: lines of any number and any length can be
/// changed without the rest being touched. Lines end with CR LF, CR or LF.
class ScriptText {
public:
    /// A line with its end, or a part of a long one.
    struct Piece {
        String Text;
        bool blLineEnd = false;
    };
    /// Pieces that a change took out, and those that it put in their place.
    struct Change {
        std::size_t First = 0;
        std::size_t Removed = 0;
        std::size_t Inserted = 0;
    };

    ScriptText() { Set({}); }

    void Set(StringView text);
    /// What lies beyond the end of the text is cut off the change. `taken`, where given, gets the
    /// pieces that go.
    Change Apply(const TextEdit& edit, std::vector<Piece>* taken = nullptr);
    String Whole() const;
    String Between(std::size_t start, std::size_t end) const;

    std::size_t Length() const { return offsets_.back(); }
    /// At least one: behind a line end there is another line.
    std::size_t LineCount() const { return lines_.back() + 1; }
    const std::vector<Piece>& Pieces() const { return pieces_; }
    std::size_t PieceAt(std::size_t offset) const;
    std::size_t OffsetOfPiece(std::size_t piece) const { return offsets_[piece]; }
    /// Line, from 0, that a piece belongs to.
    std::size_t LineOfPiece(std::size_t piece) const { return lines_[piece]; }
    /// First piece of a line; that of the last line for one behind it.
    std::size_t PieceOfLine(std::size_t line) const;
    std::size_t LineAt(std::size_t offset) const { return lines_[PieceAt(offset)]; }
    std::size_t OffsetOfLine(std::size_t line) const { return offsets_[PieceOfLine(line)]; }
    /// Where a line ends, its line end not counted.
    std::size_t EndOfLine(std::size_t line) const;
    /// Without its end.
    String Line(std::size_t line) const { return Between(OffsetOfLine(line), EndOfLine(line)); }

private:
    static std::vector<Piece> Cut(StringView text, bool last);
    void Count(std::size_t from);
    bool GoesOn(StringView text, std::size_t behind) const;

    /// The last one has no line end.
    std::vector<Piece> pieces_;
    /// Where each piece begins, and the text's length.
    std::vector<std::size_t> offsets_;
    /// Line of each piece, and that of the text's end.
    std::vector<std::size_t> lines_;
};

}  // namespace tamber
