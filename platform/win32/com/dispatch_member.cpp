#include "platform/win32/com/dispatch_member.h"

namespace tolva::win32 {

size_t DispatchMember::RequiredParameters() const
{
    size_t required = 0;
    while (required < parameters.size() && !parameters[required].optional)
        ++required;
    return required;
}

const DispatchMember* FindMember(std::span<const DispatchMember> members, DISPID id)
{
    for (const DispatchMember& member : members)
        if (member.id == id)
            return &member;
    return nullptr;
}

const DispatchMember* FindMember(std::span<const DispatchMember> members, const wchar_t* name)
{
    if (!name)
        return nullptr;
    for (const DispatchMember& member : members)
        if (CompareStringOrdinal(member.name, -1, name, -1, TRUE) == CSTR_EQUAL)
            return &member;
    return nullptr;
}

} // namespace tolva::win32
