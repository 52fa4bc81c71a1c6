#include "host/form/form_object.h"
#include <algorithm>
#include <utility>

namespace tolva {

namespace {

char16_t FoldCase(char16_t c)
{
    return (c >= u'A' && c <= u'Z') ? char16_t(c - u'A' + u'a') : c;
}

} // namespace

bool SameIdentifier(StringView a, StringView b)
{
    return a.size() == b.size()
        && std::equal(a.begin(), a.end(), b.begin(), [](char16_t x, char16_t y) { return FoldCase(x) == FoldCase(y); });
}

const FormProperty* FormObject::Find(StringView key) const
{
    auto it = std::find_if(
        properties.begin(), properties.end(), [&](const FormProperty& p) { return SameIdentifier(p.key, key); });
    return it == properties.end() ? nullptr : &*it;
}

FormProperty* FormObject::Find(StringView key)
{
    return const_cast<FormProperty*>(std::as_const(*this).Find(key));
}

void FormObject::Set(StringView key, Variant value)
{
    if (FormProperty* existing = Find(key)) {
        existing->value = std::move(value);
        return;
    }
    properties.push_back(FormProperty { String(key), std::move(value), 0 });
}

bool FormObject::Remove(StringView key)
{
    auto it = std::find_if(
        properties.begin(), properties.end(), [&](const FormProperty& p) { return SameIdentifier(p.key, key); });
    if (it == properties.end())
        return false;
    properties.erase(it);
    return true;
}

const FormObject* FormObject::FindDescendant(StringView wanted) const
{
    for (const FormObject& child : children) {
        if (SameIdentifier(child.name, wanted))
            return &child;
        if (const FormObject* found = child.FindDescendant(wanted))
            return found;
    }
    return nullptr;
}

} // namespace tolva
