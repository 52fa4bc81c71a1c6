// Every binding table against the type library: the contract clients compile against must be
// exactly what Invoke does.
#include "controls/command/tolva_command.h"
#include "controls/input/tolva_input_enums.h"
#include "controls/label/tolva_label_enums.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/type_library.h"
#include "tests/win32/support/binding_table_checks.h"
#include "tests/win32/support/command_object.h"
#include "tests/win32/support/every_control.h"
#include "tests/win32/support/type_info_reading.h"
#include <gtest/gtest.h>
#include <map>
#include <string>

namespace tolva::win32 {
namespace {

using test::EnumerationValues;
using test::ForEachFunction;
using test::NameOf;

// A declared type in the binding table's terms, written out for messages.
std::wstring Describe(const TypeSpec& t)
{
    static const wchar_t* names[] = { L"void", L"bool", L"short", L"long", L"float", L"double", L"currency", L"date",
        L"string", L"OLE_COLOR", L"font", L"variant", L"object" };
    std::wstring text = names[int(t.type)];
    if (t.enumName)
        text += std::wstring(L" enum ") + t.enumName;
    if (t.byReference)
        text += L"*";
    if (t.optional)
        text += L" optional";
    if (t.defaultValue)
        text += L" = " + std::to_wstring(*t.defaultValue);
    return text;
}

std::wstring Describe(ITypeInfo* info, const TYPEDESC& desc)
{
    static const std::pair<VARTYPE, OleType> plain[] = { { VT_VOID, OleType::Void }, { VT_HRESULT, OleType::Void },
        { VT_BOOL, OleType::Bool }, { VT_I2, OleType::Int16 }, { VT_I4, OleType::Int32 }, { VT_R4, OleType::Float },
        { VT_R8, OleType::Double }, { VT_CY, OleType::Currency }, { VT_DATE, OleType::Date },
        { VT_BSTR, OleType::String }, { VT_VARIANT, OleType::Variant } };
    for (auto [vt, type] : plain)
        if (desc.vt == vt)
            return Describe(TypeSpec { type });
    switch (desc.vt) {
    case VT_PTR: {
        std::wstring target = Describe(info, *desc.lptdesc);
        return target == L"IFontDisp" ? Describe(TypeSpec { OleType::Font }) : target + L"*";
    }
    case VT_USERDEFINED: {
        ComPtr<ITypeInfo> referenced;
        info->GetRefTypeInfo(desc.hreftype, referenced.Put());
        TYPEATTR* attributes = nullptr;
        referenced->GetTypeAttr(&attributes);
        TYPEKIND kind = attributes->typekind;
        referenced->ReleaseTypeAttr(attributes);
        std::wstring name = NameOf(referenced.Get());
        if (kind == TKIND_ENUM)
            return Describe(TypeSpec { OleType::Int32, name.c_str() });
        if (kind == TKIND_ALIAS && name == L"OLE_COLOR")
            return Describe(TypeSpec { OleType::Color });
        return name;
    }
    default:
        return L"vt " + std::to_wstring(desc.vt);
    }
}

struct Declared {
    std::wstring name;
    std::wstring result;
    std::vector<std::wstring> parameters;
};

// The dispinterface's functions by (dispatch id, invoke kind).
std::map<std::pair<DISPID, INVOKEKIND>, Declared> DeclaredMembers(ITypeInfo* info)
{
    std::map<std::pair<DISPID, INVOKEKIND>, Declared> members;
    ForEachFunction(info, [&](const FUNCDESC& function) {
        Declared declared { NameOf(info, function.memid), Describe(info, function.elemdescFunc.tdesc), {} };
        for (SHORT p = 0; p < function.cParams; ++p) {
            const ELEMDESC& parameter = function.lprgelemdescParam[p];
            std::wstring text = Describe(info, parameter.tdesc);
            if (parameter.paramdesc.wParamFlags & (PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT))
                text += L" optional";
            if (parameter.paramdesc.wParamFlags & PARAMFLAG_FHASDEFAULT) {
                VARIANT value;
                VariantInit(&value);
                VariantChangeType(&value, &parameter.paramdesc.pparamdescex->varDefaultValue, 0, VT_I4);
                text += L" = " + std::to_wstring(V_I4(&value));
            }
            declared.parameters.push_back(text);
        }
        members[{ function.memid, function.invkind }] = declared;
    });
    return members;
}

std::vector<std::wstring> Described(const std::vector<TypeSpec>& types)
{
    std::vector<std::wstring> text;
    for (const TypeSpec& t : types)
        text.push_back(Describe(t));
    return text;
}

class BindingTable : public testing::TestWithParam<const ControlClass*> { };

TEST_P(BindingTable, EveryMemberIsDeclaredWithItsIdNameAndTypes)
{
    const ControlClass& c = *GetParam();
    auto declared = DeclaredMembers(TypeLibrary::InfoOf(*c.dispatchIid).Get());
    for (const DispatchMember& m : c.members) {
        SCOPED_TRACE(testing::Message() << "member " << ToUtf8(ViewOf(m.name)));
        const std::vector<std::wstring> parameters = Described(m.parameters);
        if (m.isMethod) {
            auto found = declared.find({ m.id, INVOKE_FUNC });
            ASSERT_NE(found, declared.end());
            EXPECT_EQ(found->second.name, m.name);
            EXPECT_EQ(found->second.result, Describe(m.type));
            EXPECT_EQ(found->second.parameters, parameters);
            continue;
        }
        auto get = declared.find({ m.id, INVOKE_PROPERTYGET });
        ASSERT_NE(get, declared.end());
        EXPECT_EQ(get->second.name, m.name);
        EXPECT_EQ(get->second.result, Describe(m.type));
        EXPECT_EQ(get->second.parameters, parameters);

        std::vector<std::wstring> assigned = parameters;
        assigned.push_back(Describe(m.type));
        auto let = declared.find({ m.id, INVOKE_PROPERTYPUT });
        EXPECT_EQ(let != declared.end(), m.let != nullptr);
        if (let != declared.end()) {
            EXPECT_EQ(let->second.parameters, assigned);
        }
        auto set = declared.find({ m.id, INVOKE_PROPERTYPUTREF });
        EXPECT_EQ(set != declared.end(), m.set != nullptr);
        if (set != declared.end()) {
            EXPECT_EQ(set->second.parameters, assigned);
        }
    }
}

TEST_P(BindingTable, EveryDeclaredMemberIsBound)
{
    const ControlClass& c = *GetParam();
    for (const auto& [key, declared] : DeclaredMembers(TypeLibrary::InfoOf(*c.dispatchIid).Get())) {
        const DispatchMember* member = FindMember(c.members, key.first);
        ASSERT_NE(member, nullptr) << ToUtf8(ViewOf(declared.name.c_str()));
        EXPECT_EQ(member->isMethod, key.second == INVOKE_FUNC) << ToUtf8(ViewOf(declared.name.c_str()));
    }
}

TEST_P(BindingTable, IdsAndNamesAreUnique)
{
    test::ExpectUniqueIdsAndNames(GetParam()->members);
}

TEST_P(BindingTable, CoclassNamesItsDispatchAndEventInterfaces)
{
    const ControlClass& c = *GetParam();
    ComPtr<ITypeInfo> coclass = TypeLibrary::InfoOf(*c.clsid);
    EXPECT_EQ(NameOf(coclass.Get()), c.name);
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> implemented;
    INT flags = 0;
    bool dispatchFound = false;
    bool eventFound = false;
    for (UINT i = 0; SUCCEEDED(coclass->GetRefTypeOfImplType(i, &reference)); ++i) {
        coclass->GetImplTypeFlags(i, &flags);
        coclass->GetRefTypeInfo(reference, implemented.Put());
        TYPEATTR* attributes = nullptr;
        implemented->GetTypeAttr(&attributes);
        IID iid = attributes->guid;
        implemented->ReleaseTypeAttr(attributes);
        if (flags == IMPLTYPEFLAG_FDEFAULT && iid == *c.dispatchIid)
            dispatchFound = true;
        if (flags == (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE) && iid == *c.eventIid)
            eventFound = true;
    }
    EXPECT_TRUE(dispatchFound);
    EXPECT_TRUE(eventFound);
}

INSTANTIATE_TEST_SUITE_P(AllControls, BindingTable, testing::ValuesIn(ControlClasses()), test::ClassName);

// What the type library holds under a name: a type, or nothing.
ComPtr<ITypeInfo> Named(const wchar_t* typeName)
{
    ComPtr<ITypeInfo> info;
    MEMBERID id = 0;
    USHORT found = 1;
    std::wstring name = typeName;
    TypeLibrary::Get()->FindName(name.data(), 0, info.Put(), &id, &found);
    return found ? info : ComPtr<ITypeInfo>();
}

std::map<std::wstring, LONG> EnumValues(const wchar_t* enumName)
{
    ComPtr<ITypeInfo> info = Named(enumName);
    return info ? EnumerationValues(info.Get()) : std::map<std::wstring, LONG> {};
}

TEST(TypeLibraryEnums, MatchTheCoreConstantsEvenWhereNamesRepeat)
{
    using Values = std::map<std::wstring, LONG>;
    EXPECT_EQ(EnumValues(L"tkStyle"), (Values { { L"tkNormal", tkStyle::tkNormal }, { L"tkMenu", tkStyle::tkMenu } }));
    EXPECT_EQ(EnumValues(L"tkCommandAlignment"),
        (Values { { L"tkLeft", tkCommandAlignment::tkLeft }, { L"tkCenter", tkCommandAlignment::tkCenter } }));
    EXPECT_EQ(EnumValues(L"tkInputStyles"),
        (Values { { L"tkTextBox", tkInputStyles::tkTextBox }, { L"tkCalendar", tkInputStyles::tkCalendar },
            { L"tkCalculator", tkInputStyles::tkCalculator }, { L"tkCombo", tkInputStyles::tkCombo } }));
    EXPECT_EQ(EnumValues(L"tkLabelBorderStyle"),
        (Values { { L"None", tkLabelBorderStyle::None }, { L"Inset", tkLabelBorderStyle::Inset } }));
    EXPECT_EQ(EnumValues(L"tkLabelAlignment"),
        (Values { { L"tkAlignLeft", tkLabelAlignment::tkAlignLeft },
            { L"tkAlignCenter", tkLabelAlignment::tkAlignCenter } }));
    EXPECT_EQ(EnumValues(L"tkArrowIcon"),
        (Values { { L"tkArrowLeft", tkArrowIcon::tkArrowLeft }, { L"tkArrowRight", tkArrowIcon::tkArrowRight },
            { L"tkArrowUp", tkArrowIcon::tkArrowUp }, { L"tkArrowDown", tkArrowIcon::tkArrowDown },
            { L"tkPointerLeft", tkArrowIcon::tkPointerLeft }, { L"tkPointerRight", tkArrowIcon::tkPointerRight } }));
    // tkLeft is 1 here and 0 in tkCommandAlignment: each enumeration keeps its own.
    EXPECT_EQ(EnumValues(L"tkArrowPosition"),
        (Values { { L"tkNone", tkArrowPosition::tkNone }, { L"tkLeft", tkArrowPosition::tkLeft },
            { L"tkRight", tkArrowPosition::tkRight }, { L"tkEnd", tkArrowPosition::tkEnd } }));
}

// The events as handlers are declared: by id, the name and the parameters, every one by reference.
using Events = std::map<DISPID, std::pair<std::wstring, std::vector<std::wstring>>>;

Events DeclaredEvents(const ControlClass& c)
{
    Events events;
    for (const auto& [key, declared] : DeclaredMembers(TypeLibrary::InfoOf(*c.eventIid).Get()))
        events[key.first] = { declared.name, declared.parameters };
    return events;
}

TEST(TypeLibraryEvents, MouseAndKeyEventsTakeShortsAndSinglesByReference)
{
    const std::vector<std::wstring> mouse = { L"short*", L"short*", L"float*", L"float*" };
    const std::vector<std::wstring> keys = { L"short*", L"short*" };
    EXPECT_EQ(DeclaredEvents(TolvaCommandClass),
        (Events { { 1, { L"Click", {} } }, { 2, { L"DblClick", {} } }, { 3, { L"KeyDown", keys } },
            { 4, { L"KeyPress", { L"short*" } } }, { 5, { L"KeyUp", keys } }, { 6, { L"MouseDown", mouse } },
            { 7, { L"MouseMove", mouse } }, { 8, { L"MouseUp", mouse } } }));
    // The label's are the five mouse events; the scroll bar's add Change and Scroll last.
    const Events mouseEvents = { { 1, { L"Click", {} } }, { 2, { L"DblClick", {} } }, { 3, { L"MouseDown", mouse } },
        { 4, { L"MouseMove", mouse } }, { 5, { L"MouseUp", mouse } } };
    EXPECT_EQ(DeclaredEvents(TolvaLabelClass), mouseEvents);
    Events scroll = mouseEvents;
    scroll[6] = { L"Change", {} };
    scroll[7] = { L"Scroll", {} };
    EXPECT_EQ(DeclaredEvents(TolvaScrollClass), scroll);
}

TEST(TypeLibrary, TheScrollBarsSliderIsNotPublished)
{
    EXPECT_FALSE(Named(L"ctlScrollBox"));
    EXPECT_FALSE(Named(L"picSlider"));
}

} // namespace
} // namespace tolva::win32
