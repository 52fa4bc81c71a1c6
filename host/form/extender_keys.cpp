#include "host/form/extender_keys.h"
#include "host/form/form_object.h"
#include <array>

namespace tolva {

bool IsExtenderKey(StringView key)
{
    static constexpr std::array<StringView, 14> keys { u"Left", u"Top", u"Width", u"Height", u"Visible", u"TabIndex",
        u"TabStop", u"Default", u"Cancel", u"Tag", u"ToolTipText", u"HelpContextID", u"WhatsThisHelpID", u"Index" };
    for (StringView extenderKey : keys)
        if (SameIdentifier(key, extenderKey))
            return true;
    return false;
}

bool IsDesignerKey(StringView key)
{
    return SameIdentifier(key, u"_ExtentX") || SameIdentifier(key, u"_ExtentY") || SameIdentifier(key, u"_Version");
}

} // namespace tolva
