#pragma once

#include <vector>

#include "platform/UserInterface.h"
#include "platform/types.h"

namespace tamber {

/// What a notice is about; 0 or empty for what does not apply.
struct NoticePlace {
    Long SymbolID = 0;
    String Layer{};  ///< name of the row, as the table shows it
    Long Frame = 0;
    Long Line = 0;    ///< of a script, from 1
    Long Offset = 0;  ///< UTF-16 units from the beginning of the script
    String Token{};   ///< of the script
    String File{};
};

/// What a reader, a generation or the model has to tell a person. Whoever started the work shows
/// it.
struct Notice {
    enum class Form {
        Box,     ///< a message that waits until it is read
        Status,  ///< a line in the status area
    };

    String Text;  ///< lines separated by CR LF
    String Title{ProgramTitle};
    MessageIcon Severity = MessageIcon::None;
    NoticePlace Place{};
    Form Shown = Form::Box;
};

/// Notices in the order in which they are to be shown.
using Notices = std::vector<Notice>;

/// Shows notices to the calling thread's interface, in order.
inline void ShowNotices(const Notices& notices) {
    for (const Notice& notice : notices) {
        if (notice.Shown == Notice::Form::Box)
            ShowMessage(notice.Text, notice.Title, notice.Severity);
        else
            CurrentUserInterface().Status(notice.Text);
    }
}

}  // namespace tamber
