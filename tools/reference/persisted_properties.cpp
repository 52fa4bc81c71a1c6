#include "tools/reference/persisted_properties.h"
#include "core/property_bag.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/control_object.h"
#include <cstdio>

namespace tolva::reference {

namespace {

struct Written {
    String key;
    Variant defaultValue;
};

// Gives every reader its default and keeps what the writers say.
class RecordingBag final : public PropertyBag {
public:
    Variant ReadProperty(StringView, const Variant& defaultValue) override { return defaultValue; }
    void WriteProperty(StringView key, const Variant&, const Variant& defaultValue) override
    {
        written.push_back({ String(key), defaultValue });
    }

    std::vector<Written> written;
};

std::wstring Wide(const String& text)
{
    return std::wstring(text.begin(), text.end());
}

std::wstring VariantTypeName(const Variant& value)
{
    constexpr const wchar_t* names[] = { L"Variant", L"Boolean", L"Integer", L"Long", L"Single", L"Double",
        L"Currency", L"Date", L"String", L"Font" };
    return names[value.Value().index()];
}

std::wstring ValueText(const Variant& value, const std::wstring& type, const std::vector<Enumeration>& enumerations)
{
    if (value.IsEmpty())
        return L"Empty";
    if (value.Holds<Font>())
        return L"ambient font";
    if (value.Holds<String>())
        return L"\"" + Wide(value.ToString()) + L"\"";
    if (type == L"OLE_COLOR") {
        wchar_t text[16];
        std::swprintf(text, 16, L"&H%08X&", unsigned(value.ToColor()));
        return text;
    }
    const std::wstring number = Wide(value.ToString());
    for (const Enumeration& enumeration : enumerations)
        if (enumeration.name == type)
            for (const auto& [name, member] : enumeration.members)
                if (member == value.ToInt32())
                    return number + L" (" + name + L")";
    return number;
}

const Member* PropertyNamed(const Interface& dispatch, const String& key)
{
    for (const Member& member : dispatch.members)
        if (member.property && _wcsicmp(member.name.c_str(), Wide(key).c_str()) == 0)
            return &member;
    return nullptr;
}

} // namespace

std::vector<PersistedProperty> PersistedPropertiesOf(
    const ControlClassDescription& controlClass, const std::vector<Enumeration>& enumerations)
{
    const win32::ControlClass* shellClass = win32::FindControlClass(controlClass.clsid);
    if (!shellClass)
        return {};
    win32::ComPtr<IUnknown> object = win32::ControlObject::Create(*shellClass);
    RecordingBag bag;
    static_cast<win32::ControlObject*>(object.Get())->Control().WriteProperties(bag);

    std::vector<PersistedProperty> properties;
    for (const Written& entry : bag.written) {
        const Member* property = PropertyNamed(controlClass.dispatch, entry.key);
        const std::wstring type = property ? property->type : VariantTypeName(entry.defaultValue);
        properties.push_back({ Wide(entry.key), type, ValueText(entry.defaultValue, type, enumerations) });
    }
    return properties;
}

} // namespace tolva::reference
