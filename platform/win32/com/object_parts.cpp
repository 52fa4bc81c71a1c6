#include "platform/win32/com/control_object.h"
#include "platform/win32/com/parts/class_info_part.h"
#include "platform/win32/com/parts/connection_part.h"
#include "platform/win32/com/parts/dispatch_part.h"
#include "platform/win32/com/parts/error_info_part.h"
#include "platform/win32/com/parts/object_safety_part.h"
#include "platform/win32/com/parts/persist_bag_part.h"
#include "platform/win32/com/parts/persist_stream_part.h"

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
    return parts;
}

} // namespace tolva::win32
