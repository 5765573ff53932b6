#include "script/editor/ControlMarks.h"

namespace tamber {

namespace {

constexpr char16_t LineEndMark = u'\u2193';
constexpr char16_t IndentMark = u'^';

}  // namespace

std::vector<ControlMark> ControlMarksOf(StringView line, bool hasLineEnd) {
    std::vector<ControlMark> marks;
    for (std::size_t at = line.find_first_of(u"\t\u3000"); at != StringView::npos;
         at = line.find_first_of(u"\t\u3000", at + 1))
        marks.push_back({at, IndentMark, false});
    if (hasLineEnd) marks.push_back({line.size(), LineEndMark, true});
    return marks;
}

}  // namespace tamber
