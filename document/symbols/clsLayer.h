#pragma once

#include <memory>

#include "document/cells/Fields.h"
#include "document/elements/clsLayerObject.h"
#include "platform/Collection.h"
#include "platform/types.h"
#include "script/clsScriptData.h"

namespace tamber {

class clsLayerFolder;
class clsSymbolData;

/// A remark is for the session it was written in: its cell is not read.
struct ForThisSession : AsIs {
    static void Take(clsCSV& csv, String& value) {
        csv.Right();
        value.clear();
    }
};

/// The button event of a row: before the version that has it, all scripts were for a press.
struct ButtonEvent {
    template <class Owner, class Fields>
    static void Load(Owner& owner, clsCSV& csv, const Fields& fields) {
        constexpr Long VersionWithEvent = 0x51800;
        const auto& event = std::get<0>(fields);
        if (ProjectFileVersion < VersionWithEvent)
            owner.*event.Member = Owner::EventPress;
        else if (Writes(owner))
            event.Load(owner, csv);
    }
    template <class Owner>
    static bool Writes(const Owner& owner) {
        return owner.IsOfButton();
    }
};

/// A row of a timeline: a symbol and its key frames in frame order.
class clsLayer {
public:
    static constexpr Long EventPress = 1024;
    static constexpr Long EventRelease = 2048;
    static constexpr Long MaxClippingDepth = 999;
    static constexpr Long NoScript = 2048;
    static constexpr auto EventWords = Words({{1024, u"press"},
                                              {2048, u"release"},
                                              {4096, u"releaseOutside"},
                                              {8192, u"rollover"},
                                              {16384, u"rollout"},
                                              {32768, u"dragover"},
                                              {65536, u"dragout"}},
                                             0);

    /// User's name of the layer, empty for the default.
    String LayerName;
    String InstanceName;
    /// 0: no mask. n: masks the n layers below.
    Long ClippingDepth = 0;
    /// A mode that is no script's own (`NoScript`) stands for a layer without script.
    clsScriptData inScript;
    Collection<clsLayerObject> colObject;
    /// Key frame selected in the table, from 1.
    Long SelectIndex = 1;
    /// Button event of the script.
    Long eOnEvent = EventRelease;
    /// Scroll position and pixels a frame of the timeline.
    Long FirstFrame = 1;
    Long FrameWidth = 8;

    clsLayer();

    const std::shared_ptr<clsSymbolData>& SymbolData() const { return symbol_; }
    /// A symbol of another kind rebuilds the key frames; what both kinds share stays.
    void SymbolData(std::shared_ptr<clsSymbolData> symbol);
    std::shared_ptr<clsLayer> ParentFolder() const { return parent_.lock(); }
    void ParentFolder(const std::shared_ptr<clsLayer>& folder) { parent_ = folder; }
    /// A remark; without one the symbol's ID.
    String ExpText() const;
    void ExpText(StringView text) { remark_ = text; }
    String OnEventName() const { return String(EventWords.Seen(eOnEvent)); }
    void OnEventName(StringView name) { eOnEvent = EventWords.Number(name); }

    const std::shared_ptr<clsLayerObject>& Object(Long index) const { return colObject(index); }
    Long ObjectCount() const { return colObject.Count(); }
    /// Key frame at `SelectIndex`, or null.
    std::shared_ptr<clsLayerObject> SelectObject() const;
    void SelectObject(const std::shared_ptr<clsLayerObject>& object);
    std::shared_ptr<clsLayerObject> PreviousObject() const;
    std::shared_ptr<clsLayerObject> NextObject() const;
    /// First key frame, or null.
    std::shared_ptr<clsLayerObject> FastObject() const;
    std::shared_ptr<clsLayerObject> EndObject() const;
    bool blPrevious() const { return PreviousObject() != nullptr; }
    bool blNext() const { return NextObject() != nullptr; }
    void SelNext();
    void SelPrevious();
    /// Selects the key frame that covers the frame, if any.
    Long SetSelectIndex(Long frame);
    /// Key frame that starts at the frame under a pixel, 0 when none.
    Long GetCursorObjIndex(Long x) const;
    /// Frame under a pixel of the timeline.
    Long CheckFrame(Long x) const;

    /// Adds a key frame at a frame, or behind the last one when `frame` is below 1. `index` is
    /// where it stands, -1 when the frame is taken. Null makes a new one.
    void Add(Long frame, std::shared_ptr<clsLayerObject> object, Long& index);
    /// The last key frame left stays.
    void Remove(Long index);
    /// Removes the key frames that start within the frames. The only one left goes only with
    /// `allowEmpty`.
    void RemoveRange(Long f1, Long f2, bool allowEmpty, bool& changed);
    /// Fits the spans around a key frame whose start changed. `lastFrame` is the table's.
    void ChangeStartFrame(Long index, Long lastFrame);
    void ShiftRight(Long f1, Long f2, bool& changed);
    void ShiftLeft(Long f1, Long f2, bool& changed);
    Long tweenStartFrame(Long index) const;
    Long tweenEndFrame(Long index) const;
    Long blockStartFrame(Long index) const;
    Long blockEndFrame(Long index) const;

    /// The row's own flag, or with `own` false whether it and all its folders are visible.
    bool Visible(bool own) const;
    /// Sets the row's own flag, or with `own` false that of the outermost folder.
    void Visible(bool own, bool value);
    /// False when the row lies in a collapsed folder; at a `depth` above 0 the row itself counts.
    bool Expand(Long depth = 0) const;
    Long FolderDepth() const;
    /// Adds to the row count of this folder and of those above it.
    void AddInFolder(Long count);
    String LayerNameView() const;
    /// The row shows a button.
    bool IsOfButton() const;
    /// The layer can take an instance name.
    bool blInstance() const;
    bool blEffect() const;
    /// The script to compile. A simple action of a button stands within its event.
    String Script(Long swfVersion) const;
    /// SWF depths that the layer needs.
    Long DepthCnt(bool inTween) const;

    /// Folder state of a folder row, or null.
    clsLayerFolder* Folder() const;

    std::shared_ptr<clsLayer> Copy() const;
    /// A copy without key frames.
    std::shared_ptr<clsLayer> CopyHead() const;
    void CopyTo(clsLayer& target) const;
    /// True when all but the key frames agrees.
    bool CompareHead(const clsLayer& other) const;
    /// Reads from the cell behind the symbol's ID; `SymbolData` is set before.
    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;

    /// Behind the symbol's ID.
    static constexpr auto Fields() {
        using T = clsLayer;
        return std::tuple{
            Field(u"LayerName", &T::LayerName),
            Field(u"InstanceName", &T::InstanceName, Follows),
            Field(u"ClippingDepth", &T::ClippingDepth, Within(0, MaxClippingDepth)),
            Field(u"ExpText", &T::remark_, ForThisSession()),
            Group(ButtonEvent(), Field(u"OnEvent", &T::eOnEvent, EventWords)),
            Record(u"script", u"", &T::inScript),
            Field(u"Visible", &T::visible_),
            Field(u"SelectIndex", &T::SelectIndex, Unsaved),
            Field(u"FirstFrame", &T::FirstFrame, Unsaved),
            Field(u"FrameWidth", &T::FrameWidth, Unsaved),
        };
    }

private:
    std::shared_ptr<clsSymbolData> symbol_;
    std::weak_ptr<clsLayer> parent_;
    String remark_;
    bool visible_ = true;
};

}  // namespace tamber
