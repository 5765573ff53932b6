#pragma once

#include <vector>

#include "document/symbols/clsLayer.h"
#include "script/ClassScript.h"
#include "script/ScriptCheck.h"
#include "script/ScriptCompilation.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

class clsPropertyClass;

/// Compiles the scripts of one movie. One that fails is left out with a message; a status line then
/// tells where its fault is.
class MovieScripts {
public:
    MovieScripts(Long version, Notices& told) : compiler_(version), told_(told) {}

    /// Folder of the project, against which included files are looked for; empty for none.
    String ProjectFolder;
    /// Faults of clip actions are told by a message too.
    bool blMessages = true;
    /// The first layer of a class is the topmost one, whose text comes last.
    bool blTopToBottom = true;
    /// Sprites that belong to classes.
    ClassLinks colClassLinks;

    /// All clip actions could be used.
    bool AllValid() const { return allValid_; }

    /// Puts a frame's script into a timeline. In frame 1 of a sprite or class, from version 6 on,
    /// its "#initclip" blocks become an init action; in the movie itself, `isMovie`, they are left
    /// out. With `inClass` the script is the body of that class.
    void CompileFrameAction(clsSWFAdmin& timeline, bool isMovie, Long frame, String script,
                            const clsPropertyClass* inClass = nullptr);
    /// Puts the script of a class into its timeline. Below version 6 it is an ordinary frame
    /// script.
    void CompileClass(clsSWFAdmin& timeline, const clsPropertyClass& record);
    /// Ties sprites to a class of another movie, as an init action of the character that the class
    /// was imported as.
    void CompileClassLinks(clsSWFAdmin& timeline, StringView symbolName, Long identifier);

    std::vector<SwfEventActions> ButtonActions(const clsLayer& layer);
    std::vector<SwfEventActions> ClipActions(const clsLayer& layer);

private:
    bool Expand(String& script) const;
    bool CompileInitClip(clsSWFAdmin& timeline, bool isMovie, String& script);
    bool CompileEvents(std::vector<SwfEventActions>& actions, const String& script,
                       EventScript kind);
    /// A script's place in the movie, in words too.
    struct ScriptPlace {
        String Words;
        NoticePlace Place;
    };
    static ScriptPlace ClipPlace(const clsLayer& layer);
    static ScriptPlace ButtonPlace(const clsLayer& layer);
    static ScriptPlace FramePlace(Long frame);

    bool TellsReason(const String& script, ScriptKind kind, ScriptPlace& where,
                     bool hasInitBlocks = true);
    void Tell(const String& script, ScriptKind kind, ScriptPlace where, bool hasInitBlocks = true);
    void TellClass(const String& body, const clsPropertyClass& record);
    void TellStatus(const ScriptPlace& where, StringView fault);
    void TellBox(const ScriptPlace& where);
    Long Version() const { return compiler_.Version(); }
    String ClassBody(const clsPropertyClass& record) const;
    String ClassScript(StringView body, const clsPropertyClass& record) const;

    ScriptCompiler compiler_;
    Notices& told_;
    bool allValid_ = true;
};

}  // namespace tamber
