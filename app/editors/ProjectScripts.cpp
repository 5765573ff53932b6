#include "app/editors/ProjectScripts.h"

#include "document/elements/clsObjFrameAction.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertySprite.h"
#include "platform/text.h"
#include "script/editor/TextSearch.h"

namespace tamber {

namespace {

bool IsWritten(const clsScriptData& script) {
    return script.eScriptMode() == clsScriptData::ModeFree && !script.ScriptText.empty();
}

void ForEachIn(const Collection<clsLayer>& layers, const std::shared_ptr<clsSymbolData>& timeline,
               const std::function<void(const ScriptPlace& place)>& visit) {
    for (Long row = 1; row <= layers.Count(); ++row) {
        const clsLayer& layer = *layers(row);
        if (IsWritten(layer.inScript)) visit({timeline, row, 0, layer.inScript.ScriptText});
        for (Long i = 1; i <= layer.ObjectCount(); ++i) {
            const auto* action = layer.Object(i)->ObjectAs<clsObjFrameAction>();
            if (action != nullptr && IsWritten(action->inScript))
                visit({timeline, row, i, action->inScript.ScriptText});
        }
    }
}

String LineAt(StringView text, std::size_t offset) {
    const std::size_t before = text.substr(0, offset).find_last_of(u"\r\n");
    const std::size_t start = before == StringView::npos ? 0 : before + 1;
    const std::size_t end = std::min(text.find_first_of(u"\r\n", offset), text.size());
    return Trim(text.substr(start, end - start));
}

}  // namespace

void ForEachScript(const Project& project, bool sprites,
                   const std::function<void(const ScriptPlace& place)>& visit) {
    ForEachIn(*project.colMainLayer, nullptr, visit);
    if (!sprites) return;
    for (const auto& symbol : *project.colSymbol) {
        if (const auto* sprite = symbol->Property<clsPropertySprite>())
            ForEachIn(*sprite->colLayer, symbol, visit);
        if (const auto* record = symbol->Property<clsPropertyClass>())
            ForEachIn(*record->colLayer, symbol, visit);
    }
}

std::vector<ScriptHit> FindInScripts(const Project& project, StringView wanted, bool sprites,
                                     std::size_t most) {
    std::vector<ScriptHit> hits;
    const TextSearch search(wanted);
    ForEachScript(project, sprites, [&](const ScriptPlace& place) {
        std::size_t from = 0;
        while (hits.size() < most) {
            const auto at = search.Next(place.Script, from);
            if (!at) return;
            hits.push_back({place, *at, LineAt(place.Script, *at)});
            from = *at + search.Length();
        }
    });
    return hits;
}

}  // namespace tamber
