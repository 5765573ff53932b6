#include "vector/SvgIds.h"

#include "vector/SvgGradients.h"
#include "vector/SvgScanner.h"

namespace tamber {

namespace {

StringView ReadId(SvgScanner& scanner) {
    StringView id;
    for (SvgAttribute attribute; scanner.NextAttribute(attribute);)
        if (attribute.Name == u"id") id = attribute.Value;
    return id;
}

/// Elements whose contents are looked through.
bool IsScanned(StringView name) {
    return name == u"g" || name == u"symbol" || name == u"switch";
}

class IdScan {
public:
    IdScan(SvgDocument& document, std::size_t from)
        : document_(document), scanner_(document.Text, from, document.LeftOut) {}

    void Run() {
        for (StringView name = scanner_.NextTag(); !name.empty(); name = scanner_.NextTag())
            ReadTag(name);
    }

private:
    struct Open {
        StringView Id;
        std::size_t SIndex;
    };

    void ReadTag(StringView name) {
        if (name.front() == u'/') {
            scanner_.PassTagEnd();
            if (IsScanned(name.substr(1))) Close();
        } else if (name == u"a" || name == u"defs") {
            scanner_.PassTagEnd();
        } else if (name == u"linearGradient" || name == u"radialGradient") {
            ReadSvgGradient(document_, scanner_, name);
        } else {
            ReadElement(name);
        }
    }

    void ReadElement(StringView name) {
        if (name == u"style") document_.LeftOut.NoteElement(name);
        const std::size_t start = scanner_.TagStart();
        const StringView id = ReadId(scanner_);
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
bool ReadEntity(SvgDocument& document, StringView& text) {
    text = TrimSvgSpace(text);
    std::size_t end = 0;
    while (end < text.size() && !IsSvgSpace(text[end])) ++end;
    const StringView name = text.substr(0, end);
    const std::size_t open = text.find(u'"', end);
    if (open == StringView::npos) return false;
    const std::size_t close = text.find(u'"', open + 1);
    if (close == StringView::npos) return false;
    document.AddId(name, text.substr(open + 1, close - open - 1));
    text.remove_prefix(close + 1);
    return true;
}

}  // namespace

std::size_t ReadSvgEntities(SvgDocument& document, std::size_t from, std::size_t to) {
    static constexpr StringView Mark = u"<!ENTITY";
    const std::size_t start = document.Text.substr(0, to).find(u"<!DOCTYPE", from);
    if (start == StringView::npos) return from;
    const std::size_t open = document.Text.find_first_of(u"[>", start);
    if (open == StringView::npos || document.Text[open] == u'>') return from;
    const std::size_t close = document.Text.find(u']', open);
    if (close == StringView::npos) return from;
    StringView subset = document.Text.substr(open, close - open);
    do {
        const std::size_t found = subset.find(Mark);
        if (found == StringView::npos) break;
        subset.remove_prefix(found + Mark.size());
    } while (ReadEntity(document, subset));
    return close;
}

void ScanSvgIds(SvgDocument& document, std::size_t from) {
    IdScan(document, from).Run();
}

}  // namespace tamber
