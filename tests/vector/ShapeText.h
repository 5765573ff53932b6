#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/UserInterface.h"
#include "vector/clsVector.h"

namespace tamber::test {

/// Records in one line: M, L and C with absolute coordinates, and the styles a change selects:
/// "a" fill 0, "b" fill 1, "l" line.
inline std::string ShapeText(const clsSWFTShapeRecords& shape) {
    std::string text;
    const auto add = [&text](const char* name, std::initializer_list<Long> values) {
        text += text.empty() ? "" : " ";
        text += name;
        const char* separator = "";
        for (const Long value : values) {
            text += separator + std::to_string(value);
            separator = ",";
        }
    };
    for (const clsSWFTShapeRecord& record : shape.colShapeRecords) {
        if (const auto* change = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&record)) {
            if ((*change)->blFillStyle0) add("a", {(*change)->FillStyle0});
            if ((*change)->blFillStyle1) add("b", {(*change)->FillStyle1});
            if ((*change)->blLineStyle) add("l", {(*change)->LineStyle});
            if ((*change)->blMove) add("M", {(*change)->MoveX, (*change)->MoveY});
        } else if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&record)) {
            add("L", {line->DrawX, line->DrawY});
        } else if (const auto* curve = std::get_if<clsSWFTShapeCurveEdge>(&record)) {
            add("C", {curve->ControlX, curve->ControlY, curve->AnchorX, curve->AnchorY});
        }
    }
    return text;
}

/// Shapes of an artwork, one a line.
inline std::string ShapeTexts(const clsVector& vector) {
    std::string text;
    for (const auto& piece : vector.inVector->colShapeData)
        text += ShapeText(*piece->inSWFTShapeRecords) + "\n";
    return text;
}

inline std::uint32_t SolidColorOf(const clsVectorData2& piece, std::size_t index) {
    const auto* solid = piece.colFillStyles->at(index - 1).StyleAs<clsSWFTFillSolid>();
    return solid == nullptr ? 0xBADBADu : static_cast<std::uint32_t>(solid->SolidColor);
}

/// Remembers messages and the last state of the progress display.
class ListeningUserInterface : public UserInterface {
public:
    String LastMessage;
    String ProgressText;
    Long Done = -1;
    Long Total = -1;

    void Message(StringView text, StringView, MessageIcon icon) override {
        EXPECT_EQ(icon, MessageIcon::Warning);
        LastMessage = text;
    }
    Answer Ask(StringView, StringView, Choices) override { return Answer::Cancel; }
    String OpenFileDialog(const FileDialog&) override { return {}; }
    String SaveFileDialog(const FileDialog&) override { return {}; }
    String SelectFolderDialog(StringView) override { return {}; }
    void Progress(StringView text, Long done, Long total) override {
        ProgressText = text;
        Done = done;
        Total = total;
    }
    void Status(StringView) override {}
};

}  // namespace tamber::test
