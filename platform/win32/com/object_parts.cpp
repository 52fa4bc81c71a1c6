#include "platform/win32/com/control_object.h"
#include "platform/win32/com/parts/class_info_part.h"
#include "platform/win32/com/parts/connection_part.h"
#include "platform/win32/com/parts/dispatch_part.h"
#include "platform/win32/com/parts/error_info_part.h"
#include "platform/win32/com/parts/object_safety_part.h"
#include "platform/win32/com/parts/persist_bag_part.h"
#include "platform/win32/com/parts/persist_stream_part.h"
#include "platform/win32/inplace/in_place_part.h"
#include "platform/win32/inplace/ole_control_part.h"
#include "platform/win32/inplace/ole_object_part.h"
#include "platform/win32/inplace/property_pages_part.h"
#include "platform/win32/inplace/quick_activate_part.h"
#include "platform/win32/inplace/view_object_part.h"

namespace tolva::win32 {

std::vector<std::unique_ptr<ObjectPart>> CreateObjectParts(ControlObject& object)
{
    std::vector<std::unique_ptr<ObjectPart>> parts;
    parts.push_back(std::make_unique<DispatchPart>(object));
    parts.push_back(std::make_unique<ClassInfoPart>(object));
    parts.push_back(std::make_unique<ErrorInfoPart>(object));
    parts.push_back(std::make_unique<ConnectionPart>(object));
    parts.push_back(std::make_unique<PersistStreamPart>(object));
    parts.push_back(std::make_unique<PersistBagPart>(object));
    parts.push_back(std::make_unique<ObjectSafetyPart>(object));
    parts.push_back(std::make_unique<OleObjectPart>(object));
    parts.push_back(std::make_unique<InPlacePart>(object));
    parts.push_back(std::make_unique<OleControlPart>(object));
    parts.push_back(std::make_unique<ViewObjectPart>(object));
    parts.push_back(std::make_unique<QuickActivatePart>(object));
    parts.push_back(std::make_unique<PropertyPagesPart>(object));
    return parts;
}

} // namespace tolva::win32
