#include "vector/SvgIds.h"

#include "vector/SvgGradients.h"
#include "vector/SvgScanner.h"

namespace tamber {

namespace {

std::string_view ReadId(SvgScanner& scanner) {
    std::string_view id;
    for (SvgAttribute attribute; scanner.NextAttribute(attribute);)
        if (attribute.Name == "id") id = attribute.Value;
    return id;
}

/// Elements whose contents are looked through.
bool IsScanned(std::string_view name) {
    return name == "g" || name == "symbol" || name == "switch";
}

class IdScan {
public:
    IdScan(SvgDocument& document, std::size_t from)
        : document_(document), scanner_(document.Text, from, document.LeftOut) {}

    void Run() {
        for (std::string_view name = scanner_.NextTag(); !name.empty(); name = scanner_.NextTag())
            ReadTag(name);
    }

private:
    struct Open {
        std::string_view Id;
        std::size_t SIndex;
    };

    void ReadTag(std::string_view name) {
        if (name.front() == '/') {
            scanner_.PassTagEnd();
            if (IsScanned(name.substr(1))) Close();
        } else if (name == "a" || name == "defs") {
            scanner_.PassTagEnd();
        } else if (name == "linearGradient" || name == "radialGradient") {
            ReadSvgGradient(document_, scanner_, name);
        } else {
            ReadElement(name);
        }
    }

    void ReadElement(std::string_view name) {
        if (name == "style") document_.LeftOut.NoteElement(name);
        const std::size_t start = scanner_.TagStart();
        const std::string_view id = ReadId(scanner_);
        open_.push_back({id, start});
        SvgBudget::Check(open_.size() <= SvgBudget::MostLevels);
        if (!IsScanned(name))
            scanner_.SkipElement();
        else if (!scanner_.PassTagEnd())
            return;
        Close();
    }

    void Close() {
        if (open_.empty()) return;
        document_.AddId(open_.back().Id, clsSvgIDInfo{open_.back().SIndex, scanner_.Position()});
        open_.pop_back();
    }

    SvgDocument& document_;
    SvgScanner scanner_;
    std::vector<Open> open_;
};

/// Takes the name of an entity, and its value between double quotes, off the front of `text`. False
/// when there is no value any more.
bool ReadEntity(SvgDocument& document, std::string_view& text) {
    text = TrimSvgSpace(text);
    std::size_t end = 0;
    while (end < text.size() && !IsSvgSpace(text[end])) ++end;
    const std::string_view name = text.substr(0, end);
    const std::size_t open = text.find('"', end);
    if (open == std::string_view::npos) return false;
    const std::size_t close = text.find('"', open + 1);
    if (close == std::string_view::npos) return false;
    document.AddId(name, text.substr(open + 1, close - open - 1));
    text.remove_prefix(close + 1);
    return true;
}

}  // namespace

std::size_t ReadSvgEntities(SvgDocument& document, std::size_t from, std::size_t to) {
    static constexpr std::string_view Mark = "<!ENTITY";
    const std::size_t start = document.Text.substr(0, to).find("<!DOCTYPE", from);
    if (start == std::string_view::npos) return from;
    const std::size_t open = document.Text.find_first_of("[>", start);
    if (open == std::string_view::npos || document.Text[open] == '>') return from;
    const std::size_t close = document.Text.find(']', open);
    if (close == std::string_view::npos) return from;
    std::string_view subset = document.Text.substr(open, close - open);
    do {
        const std::size_t found = subset.find(Mark);
        if (found == std::string_view::npos) break;
        subset.remove_prefix(found + Mark.size());
    } while (ReadEntity(document, subset));
    return close;
}

void ScanSvgIds(SvgDocument& document, std::size_t from) {
    IdScan(document, from).Run();
}

}  // namespace tamber
