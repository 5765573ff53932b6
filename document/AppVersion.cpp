#include "document/AppVersion.h"

#include "platform/text.h"

namespace tamber {

String VersionText(const AppVersionNumbers& version) {
    String text =
        ToText(version.Major) + u"." + ToText(version.Minor) + u"." + ToText(version.Revision);
    if (version.Build != 0) text += u"." + ToText(version.Build);
    return text;
}

}  // namespace tamber
