#include "vector/SvgPathData.h"

#include <array>

#include "vector/SvgNumbers.h"

namespace tamber {

namespace {

bool IsCommand(char c) {
    switch (c | 0x20) {
        case 'm':
        case 'l':
        case 'h':
        case 'v':
        case 'c':
        case 's':
        case 'q':
        case 't':
        case 'a':
        case 'z':
            return true;
        default:
            return false;
    }
}

class PathParser {
public:
    PathParser(std::string_view d, bool fill, SvgPen& pen, SvgLeftOut& leftOut)
        : numbers_(d), fill_(fill), pen_(pen), leftOut_(leftOut) {}

    void Parse() {
        while (!numbers_.AtEnd()) {
            const char c = numbers_.Current();
            if (IsCommand(c)) {
                numbers_.Advance();
                Begin(c);
                continue;
            }
            const std::size_t before = numbers_.Position();
            RunCommand();
            if (numbers_.Position() == before) numbers_.Advance();
        }
        EndSubpath();
        if (numbers_.Joined()) leftOut_.Note(SvgFeature::JoinedDecimals);
    }

private:
    enum class Control { None, Cubic, Quadratic };

    void Begin(char c) {
        relative_ = c >= 'a';
        const auto command = static_cast<char>(relative_ ? c - 'a' + 'A' : c);
        if (command == 'M') EndSubpath();
        command_ = command;
        moved_ = false;
        if (command == 'Z') Close();
        if (command == 'A') leftOut_.Note(SvgFeature::Arc);
        RunCommand();
    }

    /// Draws from the numbers at hand.
    void RunCommand() {
        while (Step()) {
        }
    }

    /// Draws once; false when the numbers do not suffice.
    bool Step() {
        switch (command_) {
            case 'M':
                return Take(2) && MoveOrLine();
            case 'L':
                return Take(2) && Line(Point(0));
            case 'H':
                return Take(1) && Line({Shift(values_[0], current_.X), current_.Y});
            case 'V':
                return Take(1) && Line({current_.X, Shift(values_[0], current_.Y)});
            case 'C':
                return Take(6) && Cubic(Point(0), Point(2), Point(4));
            case 'S':
                return Take(4) && Cubic(Reflection(Control::Cubic), Point(0), Point(2));
            case 'Q':
                return Take(4) && Quadratic(Point(0), Point(2));
            case 'T':
                return Take(2) && Quadratic(Reflection(Control::Quadratic), Point(0));
            case 'A':
                control_ = Control::None;
                return Take(1);
            default:
                return false;
        }
    }

    bool Take(std::size_t count) { return numbers_.Next(std::span(values_).first(count)); }

    Long Shift(Long value, Long from) const { return relative_ ? AddSvgTwips(value, from) : value; }
    SwfPoint Point(std::size_t index) const {
        return {Shift(values_[index], current_.X), Shift(values_[index + 1], current_.Y)};
    }
    SwfPoint Reflection(Control of) const {
        if (control_ != of) return current_;
        return {AddSvgTwips(current_.X, AddSvgTwips(current_.X, -last_.X)),
                AddSvgTwips(current_.Y, AddSvgTwips(current_.Y, -last_.Y))};
    }

    bool MoveOrLine() {
        if (moved_) return Line(Point(0));
        moved_ = true;
        start_ = current_ = Point(0);
        control_ = Control::None;
        pen_.MovePenTo(current_.X, current_.Y);
        return true;
    }
    bool Line(SwfPoint to) {
        current_ = to;
        control_ = Control::None;
        pen_.DrawLineTo(to.X, to.Y);
        return true;
    }
    bool Cubic(SwfPoint control1, SwfPoint control2, SwfPoint to) {
        pen_.DrawCubicTo(control1, control2, to);
        return Curved(Control::Cubic, control2, to);
    }
    bool Quadratic(SwfPoint control, SwfPoint to) {
        pen_.DrawCurveTo(control, to);
        return Curved(Control::Quadratic, control, to);
    }
    bool Curved(Control kind, SwfPoint control, SwfPoint to) {
        control_ = kind;
        last_ = control;
        current_ = to;
        return true;
    }

    void Close() {
        pen_.Close(true);
        current_ = start_;
        control_ = Control::None;
    }
    void EndSubpath() {
        if (fill_ && command_ != 0 && command_ != 'Z') pen_.Close(false);
        if (!numbers_.AtEnd()) pen_.TurnLineOn();
    }

    SvgNumberReader numbers_;
    bool fill_;
    SvgPen& pen_;
    SvgLeftOut& leftOut_;
    char command_ = 0;
    bool relative_ = false;
    bool moved_ = false;
    std::array<Long, 6> values_{};
    SwfPoint current_;
    SwfPoint start_;
    Control control_ = Control::None;
    SwfPoint last_;
};

}  // namespace

void ParseSvgPathData(std::string_view d, bool fill, SvgPen& pen, SvgLeftOut& leftOut) {
    // About an edge for each so many characters: a line has two numbers, a cubic six and four
    // edges.
    constexpr std::size_t CharactersPerEdge = 12;
    pen.Expect(d.size() / CharactersPerEdge);
    PathParser(d, fill, pen, leftOut).Parse();
}

void DrawSvgPoints(std::string_view points, bool fill, bool polygon, SvgPen& pen,
                   SvgLeftOut& leftOut) {
    SvgNumberReader numbers(points);
    Long x = 0;
    Long y = 0;
    for (bool first = true; numbers.Next(x) && numbers.Next(y); first = false) {
        if (first)
            pen.MovePenTo(x, y);
        else
            pen.DrawLineTo(x, y);
    }
    if (fill) pen.Close(polygon);
    if (numbers.Joined()) leftOut.Note(SvgFeature::JoinedDecimals);
}

}  // namespace tamber
