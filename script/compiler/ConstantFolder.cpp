#include "script/compiler/ConstantFolder.h"

#include <cmath>
#include <string>

#include "script/compiler/NumberText.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

/// Longer results stay sums, so that a chain of a hundred thousand texts costs no square.
constexpr std::size_t MaxFoldedText = 255;
constexpr double TwoTo32 = 4294967296.0;
constexpr Long FirstEcmaBooleanVersion = 7;

std::uint32_t ToUnsigned(double value) {
    if (!std::isfinite(value)) return 0;
    double whole = std::fmod(std::trunc(value), TwoTo32);
    if (whole < 0) whole += TwoTo32;
    return static_cast<std::uint32_t>(whole);
}

Long ToSigned(double value) {
    return static_cast<Long>(ToUnsigned(value));
}

Node* BecomeNumber(Node* node, double value) {
    node->Kind = NodeKind::Number;
    node->Value = value;
    return node;
}

Node* BecomeBoolean(Node* node, bool value) {
    node->Kind = NodeKind::Boolean;
    node->Flag = value;
    return node;
}

bool IsNumber(const Node& node) {
    return node.Kind == NodeKind::Number;
}

/// The result of an arithmetic operator; false for operators that are none.
bool Calculate(Operator op, double a, double b, double& result) {
    const std::uint32_t shift = ToUnsigned(b) & 31;
    switch (op) {
        case Operator::Add:
            result = a + b;
            return true;
        case Operator::Subtract:
            result = a - b;
            return true;
        case Operator::Multiply:
            result = a * b;
            return true;
        case Operator::Divide:
            result = a / b;
            return b != 0;
        case Operator::Modulo:
            result = std::fmod(a, b);
            return b != 0;
        case Operator::BitAnd:
            result = ToSigned(a) & ToSigned(b);
            return true;
        case Operator::BitOr:
            result = ToSigned(a) | ToSigned(b);
            return true;
        case Operator::BitXor:
            result = ToSigned(a) ^ ToSigned(b);
            return true;
        case Operator::Left:
            result = static_cast<Long>(ToUnsigned(a) << shift);
            return true;
        case Operator::Right:
            result = ToSigned(a) >> shift;
            return true;
        case Operator::UnsignedRight:
            // Players of version 8 make a negative number of what needs the highest bit.
            result = ToUnsigned(a) >> shift;
            return result <= INT32_MAX;
        default:
            return false;
    }
}

}  // namespace

Node* ConstantFolder::Fold(Node* node) {
    if (node->Kind == NodeKind::Unary) return FoldUnary(node);
    if (IsNumber(*node->A) && IsNumber(*node->B)) return FoldNumbers(node);
    if (node->Op == Operator::Add || node->Op == Operator::StringAdd) return FoldTexts(node);
    return node;
}

Node* ConstantFolder::FoldUnary(Node* node) const {
    const Node& operand = *node->A;
    if (node->Op == Operator::Not) {
        const int condition = ConditionOf(operand);
        if (condition < 0) return node;
        return version_ < FirstObjectVersion ? BecomeNumber(node, condition == 0)
                                             : BecomeBoolean(node, condition == 0);
    }
    if (!IsNumber(operand)) return node;
    if (node->Op == Operator::Plus) return BecomeNumber(node, operand.Value);
    if (node->Op == Operator::Minus) return BecomeNumber(node, 0 - operand.Value);
    if (node->Op == Operator::BitNot && version_ >= FirstObjectVersion)
        return BecomeNumber(node, ~ToSigned(operand.Value));
    return node;
}

Node* ConstantFolder::FoldNumbers(Node* node) const {
    double result = 0;
    const bool isOfVersion4 = node->Op == Operator::Add || node->Op == Operator::Subtract ||
                              node->Op == Operator::Multiply || node->Op == Operator::Divide;
    if (version_ < FirstObjectVersion && !isOfVersion4) return node;
    if (Calculate(node->Op, node->A->Value, node->B->Value, result))
        return IsKnown(result) ? BecomeNumber(node, result) : node;
    return version_ < FirstObjectVersion ? node : FoldComparison(node);
}

/// Whether the code can hold a result. Version 4 holds texts, and would go on with other digits.
bool ConstantFolder::IsKnown(double result) const {
    return std::isfinite(result) && (version_ >= FirstObjectVersion || IsExactAsText(result));
}

Node* ConstantFolder::FoldComparison(Node* node) const {
    const double a = node->A->Value;
    const double b = node->B->Value;
    switch (node->Op) {
        case Operator::Less:
            return BecomeBoolean(node, a < b);
        case Operator::LessEqual:
            return BecomeBoolean(node, a <= b);
        case Operator::Greater:
            return BecomeBoolean(node, a > b);
        case Operator::GreaterEqual:
            return BecomeBoolean(node, a >= b);
        case Operator::Equal:
        case Operator::StrictEqual:
            return BecomeBoolean(node, a == b);
        case Operator::NotEqual:
        case Operator::StrictNotEqual:
            return BecomeBoolean(node, a != b);
        default:
            return node;
    }
}

bool ConstantFolder::TextOf(const Node& node, std::string& text) const {
    if (node.Kind == NodeKind::Text) {
        text = node.Name->Text;
        return true;
    }
    if (!IsNumber(node) || std::trunc(node.Value) != node.Value ||
        std::abs(node.Value) >= LargestPlainInteger ||
        (node.Value == 0 && std::signbit(node.Value)))
        return false;
    text = std::to_string(static_cast<std::int64_t>(node.Value));
    return true;
}

Node* ConstantFolder::FoldTexts(Node* node) {
    const bool hasText = node->A->Kind == NodeKind::Text || node->B->Kind == NodeKind::Text;
    if (!hasText || (version_ < FirstObjectVersion && node->Op == Operator::Add)) return node;
    std::string left;
    std::string right;
    if (!TextOf(*node->A, left) || !TextOf(*node->B, right)) return node;
    if (left.size() + right.size() > MaxFoldedText) return node;
    node->Kind = NodeKind::Text;
    node->Name = symbols_.InternCopy(left + right);
    return node;
}

int ConstantFolder::ConditionOf(const Node& node) const {
    switch (node.Kind) {
        case NodeKind::Number:
            return node.Value != 0 && !std::isnan(node.Value) ? 1 : 0;
        case NodeKind::Boolean:
            return node.Flag ? 1 : 0;
        case NodeKind::Null:
        case NodeKind::Undefined:
            return 0;
        case NodeKind::Text:
            return version_ >= FirstEcmaBooleanVersion ? (node.Name->Text.empty() ? 0 : 1) : -1;
        default:
            return -1;
    }
}

}  // namespace tamber
