// Whatever a control takes, it saves, and whatever it saves, it loads back: every property of
// every control class at the ends of its type and at a plain value its rules accept (a number 1,
// an ordinary colour), alone and all at once, and what methods with
// arguments at their ends and indexed properties leave (a list's columns), through the stream
// and the property bag. A save may refuse what its medium cannot hold, but only before it wrote
// anything.
#include "core/memory_property_bag.h"
#include "core/property_stream_format.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/font_conversion.h"
#include "tests/win32/support/every_control.h"
#include "tests/win32/support/recording_property_bag.h"
#include "tests/win32/support/reporting_font.h"
#include <cfloat>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

namespace tolva::win32::test {
namespace {

// A value to assign: made afresh for each object, as a client would pass it.
struct Extreme {
    std::function<void(VARIANT&)> make;
    bool byReference = false; // an object, assigned with Set
};

Extreme Value(VARTYPE type, auto assign)
{
    return { [type, assign](VARIANT& v) {
        V_VT(&v) = type;
        assign(v);
    } };
}

Extreme Text(size_t length, const wchar_t* pattern)
{
    return { [length, pattern](VARIANT& v) {
        std::wstring text;
        while (text.size() < length)
            text += pattern;
        V_VT(&v) = VT_BSTR;
        V_BSTR(&v) = SysAllocStringLen(text.data(), UINT(length));
    } };
}

Extreme FontObject(std::function<ComPtr<IFont>()> make)
{
    return { [make](VARIANT& v) {
                V_VT(&v) = VT_DISPATCH;
                V_DISPATCH(&v) = make().As<IDispatch>(IID_IDispatch).Detach();
            },
        true };
}

Extreme StdFontWith(std::function<void(Font&)> change)
{
    return FontObject([change] {
        Font font;
        change(font);
        return CreateStdFont(font);
    });
}

Extreme ReportedFont(std::function<void(Font&)> change)
{
    return FontObject([change] {
        Font font;
        change(font);
        return ComPtr<IFont>::Adopt(new ReportingFont(font));
    });
}

// The largest caption the stream holds with nothing else beside it.
constexpr size_t JustUnderTheStreamCap = (PropertyStream::MaxPayload - 64) / 2;

std::vector<Extreme> ExtremesOf(OleType type)
{
    switch (type) {
    case OleType::Bool:
        return { Value(VT_BOOL, [](VARIANT& v) { V_BOOL(&v) = VARIANT_TRUE; }),
            Value(VT_BOOL, [](VARIANT& v) { V_BOOL(&v) = VARIANT_FALSE; }) };
    case OleType::Int16:
        return { Value(VT_I2, [](VARIANT& v) { V_I2(&v) = SHRT_MIN; }),
            Value(VT_I2, [](VARIANT& v) { V_I2(&v) = SHRT_MAX; }), Value(VT_I2, [](VARIANT& v) { V_I2(&v) = 1; }) };
    case OleType::Int32:
        return { Value(VT_I4, [](VARIANT& v) { V_I4(&v) = INT_MIN; }),
            Value(VT_I4, [](VARIANT& v) { V_I4(&v) = INT_MAX; }), Value(VT_I4, [](VARIANT& v) { V_I4(&v) = 1; }) };
    case OleType::Color:
        return { Value(VT_I4, [](VARIANT& v) { V_I4(&v) = -1; }),
            Value(VT_I4, [](VARIANT& v) { V_I4(&v) = LONG(0x80000018); }),
            Value(VT_I4, [](VARIANT& v) { V_I4(&v) = 0x123456; }) };
    case OleType::Float:
        return { Value(VT_R4, [](VARIANT& v) { V_R4(&v) = -FLT_MAX; }),
            Value(VT_R4, [](VARIANT& v) { V_R4(&v) = FLT_MAX; }),
            Value(VT_R4, [](VARIANT& v) { V_R4(&v) = HUGE_VALF; }) };
    case OleType::Double:
        return { Value(VT_R8, [](VARIANT& v) { V_R8(&v) = -DBL_MAX; }),
            Value(VT_R8, [](VARIANT& v) { V_R8(&v) = DBL_MAX; }) };
    case OleType::Currency:
        return { Value(VT_CY, [](VARIANT& v) { V_CY(&v).int64 = INT64_MIN; }),
            Value(VT_CY, [](VARIANT& v) { V_CY(&v).int64 = INT64_MAX; }) };
    case OleType::Date:
        return { Value(VT_DATE, [](VARIANT& v) { V_DATE(&v) = -657434.0; }),
            Value(VT_DATE, [](VARIANT& v) { V_DATE(&v) = 2958465.99998843; }) };
    case OleType::String:
        return { Text(0, L""), Text(1 << 19, L"W"), Text(JustUnderTheStreamCap, L"&x"), Text(3, L"&\xD800") };
    case OleType::Font:
        return { StdFontWith([](Font& f) { f.size = 2049; }), StdFontWith([](Font& f) { f.weight = 32767; }),
            StdFontWith([](Font& f) { f.charset = 300; }), ReportedFont([](Font& f) { f.size = 0; }),
            ReportedFont([](Font& f) { f.weight = -1; }), ReportedFont([](Font& f) { f.charset = 32767; }),
            ReportedFont([](Font& f) {
                f.size = 1e12;
                f.name = String(300, u'N');
            }) };
    case OleType::Variant:
        return { Value(VT_R8, [](VARIANT& v) { V_R8(&v) = -DBL_MAX; }), Text(1 << 19, L"W"),
            Value(VT_I4, [](VARIANT& v) { V_I4(&v) = INT_MIN; }), Text(0, L"") };
    case OleType::Void:
    case OleType::Object:
        break;
    }
    return {};
}

ControlObject& ObjectOf(const ComPtr<IUnknown>& unknown)
{
    return *static_cast<ControlObject*>(unknown.Get());
}

MemoryPropertyBag Saved(const ComPtr<IUnknown>& unknown)
{
    MemoryPropertyBag bag;
    ObjectOf(unknown).Save(bag);
    return bag;
}

// Keys a class restores before what they depend on, as its format prescribes: the input's
// selection is restored into the empty box before its text.
bool RestoredBeforeItsSubject(const ControlClass& controlClass, StringView key)
{
    return std::wstring_view(controlClass.name) == L"TolvaInput" && (key == u"SelStart" || key == u"SelLength");
}

// The keys whose values differ, for a readable failure (the values may be huge).
std::vector<std::string> DifferingKeys(
    const ControlClass& controlClass, const MemoryPropertyBag& expected, const MemoryPropertyBag& actual)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : expected.Entries())
        if (const Variant* found = actual.Find(key);
            (!found || !(*found == value)) && !RestoredBeforeItsSubject(controlClass, key))
            keys.push_back(ToUtf8(key));
    for (const auto& [key, value] : actual.Entries())
        if (!expected.Find(key) && !RestoredBeforeItsSubject(controlClass, key))
            keys.push_back(ToUtf8(key) + " (only after loading)");
    return keys;
}

uint64_t SizeOf(IStream* stream)
{
    STATSTG stat = {};
    stream->Stat(&stat, STATFLAG_NONAME);
    return stat.cbSize.QuadPart;
}

class RoundTrip : public testing::TestWithParam<const ControlClass*> {
protected:
    ComPtr<IUnknown> Create() const { return ControlObject::Create(*GetParam()); }

    // Assigns value to member at index (for an indexed property); a refusal is the control's to
    // make and leaves what it holds.
    static void Assign(const ComPtr<IUnknown>& object, const DispatchMember& member, const Extreme& value, LONG index = 1)
    {
        // The assigned value first, then the index arguments last to first.
        std::vector<VARIANT> arguments(1 + member.parameters.size());
        for (VARIANT& v : arguments) {
            V_VT(&v) = VT_I4;
            V_I4(&v) = index;
        }
        value.make(arguments[0]);
        DISPID named = DISPID_PROPERTYPUT;
        DISPPARAMS params = { arguments.data(), &named, UINT(arguments.size()), 1 };
        WORD flags = value.byReference ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
        object.As<IDispatch>(IID_IDispatch)->Invoke(
            member.id, IID_NULL, LOCALE_USER_DEFAULT, flags, &params, nullptr, nullptr, nullptr);
        VariantClear(&arguments[0]);
    }

    // Calls method with each argument at extreme number choice of its type.
    static void Call(const ComPtr<IUnknown>& object, const DispatchMember& method, size_t choice)
    {
        const size_t count = method.parameters.size();
        std::vector<VARIANT> arguments(count);
        for (size_t i = 0; i < count; ++i) {
            VARIANT& v = arguments[count - 1 - i];
            VariantInit(&v);
            std::vector<Extreme> extremes = ExtremesOf(method.parameters[i].type);
            if (!extremes.empty())
                extremes[choice % extremes.size()].make(v);
        }
        DISPPARAMS params = { arguments.data(), nullptr, UINT(count), 0 };
        VARIANT result;
        VariantInit(&result);
        object.As<IDispatch>(IID_IDispatch)->Invoke(
            method.id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, &result, nullptr, nullptr);
        VariantClear(&result);
        for (VARIANT& v : arguments)
            VariantClear(&v);
    }

    // Saves object to a stream and to a bag and loads each into a new object of its class: the
    // same properties come back, or the save was refused before it wrote anything.
    void ExpectSavedAndLoadedBack(const ComPtr<IUnknown>& object) const
    {
        const MemoryPropertyBag expected = Saved(object);

        ComPtr<IStream> stream;
        ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), S_OK);
        const HRESULT savedToStream = object.As<IPersistStreamInit>(IID_IPersistStreamInit)->Save(stream.Get(), FALSE);
        if (savedToStream == STG_E_CANTSAVE) {
            EXPECT_EQ(SizeOf(stream.Get()), 0u);
        } else {
            ASSERT_EQ(savedToStream, S_OK);
            const LARGE_INTEGER start = {};
            stream->Seek(start, STREAM_SEEK_SET, nullptr);
            ComPtr<IUnknown> loaded = Create();
            ASSERT_EQ(loaded.As<IPersistStreamInit>(IID_IPersistStreamInit)->Load(stream.Get()), S_OK);
            EXPECT_EQ(DifferingKeys(*GetParam(), expected, Saved(loaded)), std::vector<std::string>()) << "through the stream";
        }

        auto bag = ComPtr<RecordingPropertyBag>::Adopt(new RecordingPropertyBag);
        ASSERT_EQ(object.As<IPersistPropertyBag>(IID_IPersistPropertyBag)->Save(bag.Get(), FALSE, TRUE), S_OK);
        ComPtr<IUnknown> loaded = Create();
        ASSERT_EQ(loaded.As<IPersistPropertyBag>(IID_IPersistPropertyBag)->Load(bag.Get(), nullptr), S_OK);
        EXPECT_EQ(DifferingKeys(*GetParam(), expected, Saved(loaded)), std::vector<std::string>()) << "through the bag";
    }

    std::vector<const DispatchMember*> Assignable(bool indexed = false) const
    {
        std::vector<const DispatchMember*> members;
        for (const DispatchMember& member : GetParam()->members)
            if (!member.isMethod && member.parameters.empty() != indexed && (member.let || member.set))
                members.push_back(&member);
        return members;
    }

    std::vector<const DispatchMember*> MethodsWithArguments() const
    {
        std::vector<const DispatchMember*> methods;
        for (const DispatchMember& member : GetParam()->members)
            if (member.isMethod && !member.parameters.empty())
                methods.push_back(&member);
        return methods;
    }
};

TEST_P(RoundTrip, EveryPropertyAloneAtTheEndsOfItsType)
{
    for (const DispatchMember* member : Assignable()) {
        std::vector<Extreme> extremes = ExtremesOf(member->type.type);
        for (size_t i = 0; i < extremes.size(); ++i) {
            SCOPED_TRACE(testing::Message() << ToUtf8(FromWide(member->name)) << " extreme " << i);
            ComPtr<IUnknown> object = Create();
            Assign(object, *member, extremes[i]);
            ExpectSavedAndLoadedBack(object);
        }
    }
}

TEST_P(RoundTrip, EveryPropertyAtOnce)
{
    for (size_t round = 0; round < 7; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        ComPtr<IUnknown> object = Create();
        for (const DispatchMember* member : Assignable()) {
            std::vector<Extreme> extremes = ExtremesOf(member->type.type);
            if (!extremes.empty())
                Assign(object, *member, extremes[round % extremes.size()]);
        }
        ExpectSavedAndLoadedBack(object);
    }
}

// Methods with their arguments at the ends of their types (a column of a huge caption and the
// widest width), twice so that there is an item 1, then every indexed property at item 1.
TEST_P(RoundTrip, WhatMethodsAndIndexedPropertiesLeave)
{
    for (size_t round = 0; round < 7; ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        ComPtr<IUnknown> object = Create();
        for (int twice = 0; twice < 2; ++twice)
            for (const DispatchMember* method : MethodsWithArguments())
                Call(object, *method, round);
        for (const DispatchMember* member : Assignable(true)) {
            std::vector<Extreme> extremes = ExtremesOf(member->type.type);
            if (!extremes.empty())
                Assign(object, *member, extremes[round % extremes.size()]);
        }
        ExpectSavedAndLoadedBack(object);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryControl, RoundTrip, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
