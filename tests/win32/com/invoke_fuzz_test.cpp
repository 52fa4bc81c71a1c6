// IDispatch::Invoke as a hostile client calls it: every dispatch id of every control class and
// ids none has, every invoke kind, 0 to 4 arguments of every VARTYPE (objects whose default value
// is themselves, arrays, values by reference with and without their reference, VT_ERROR,
// VT_NULL, huge texts), named arguments right and wrong, missing out-parameters. No call may
// crash the control, and it answers afterwards. The seed is fixed and the count bounded;
// TOLVA_INVOKE_FUZZ_CALLS and TOLVA_INVOKE_FUZZ_SEED set a longer or another run.
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_object.h"
#include "platform/win32/com/font_conversion.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/every_control.h"
#include "tests/win32/support/fake_dispatch.h"
#include "tests/win32/support/reporting_font.h"
#include <cfloat>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <gtest/gtest.h>
#include <random>

namespace tolva::win32::test {
namespace {

size_t Setting(const char* name, size_t otherwise)
{
    const char* value = std::getenv(name);
    return value ? size_t(std::strtoull(value, nullptr, 10)) : otherwise;
}

// An object whose default value is the object itself: converting it naively never ends.
ComPtr<IDispatch> SelfDefault()
{
    auto object = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    FakeDispatch* self = object.Get();
    self->AddMember(DISPID_VALUE, L"Value", [self](WORD, const std::vector<VARIANT*>&, VARIANT& result) {
        self->AddRef();
        V_VT(&result) = VT_DISPATCH;
        V_DISPATCH(&result) = self;
        return S_OK;
    });
    return object.As<IDispatch>(IID_IDispatch);
}

ComPtr<IDispatch> DefaultValue(const VARIANT& value)
{
    auto object = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    object->AddValue(DISPID_VALUE, L"Value", value);
    return object.As<IDispatch>(IID_IDispatch);
}

ComPtr<IDispatch> Failing()
{
    auto object = ComPtr<FakeDispatch>::Adopt(new FakeDispatch);
    object->AddMember(DISPID_VALUE, L"Value", [](WORD, const std::vector<VARIANT*>&, VARIANT&) { return E_FAIL; });
    return object.As<IDispatch>(IID_IDispatch);
}

// The arguments of one call, made from the random source, and everything they point to.
class HostileArguments {
public:
    HostileArguments(std::mt19937& random, IDispatch* control)
        : m_random(random)
        , m_control(control)
    { }
    ~HostileArguments()
    {
        for (VARIANT& v : m_values)
            Clear(v);
        for (VARIANT& v : m_referenced)
            VariantClear(&v);
    }

    std::vector<VARIANT>& Make(size_t count)
    {
        m_values.resize(count);
        for (VARIANT& v : m_values)
            Fill(v, true);
        return m_values;
    }

private:
    size_t Pick(size_t count) { return std::uniform_int_distribution<size_t>(0, count - 1)(m_random); }
    template <class T> T Bits()
    {
        T value;
        uint64_t bits = std::uniform_int_distribution<uint64_t>()(m_random);
        std::memcpy(&value, &bits, sizeof(T));
        return value;
    }

    BSTR MakeText()
    {
        static const wchar_t* const texts[] = { L"", L"12", L"-1", L"True", L"1e400", L"&H80000000", L"\xD800x",
            L"3.4E+39", L"12/31/9999", L"Nothing", L"&&&" };
        switch (Pick(6)) {
        case 0:
            return nullptr;
        case 1: {
            std::wstring huge(Pick(4) == 0 ? (1u << 20) : 70000, L'W');
            return SysAllocStringLen(huge.data(), UINT(huge.size()));
        }
        case 2:
            return SysAllocStringLen(L"a\0b", 3);
        default:
            return SysAllocString(texts[Pick(std::size(texts))]);
        }
    }

    IDispatch* MakeObject()
    {
        switch (Pick(8)) {
        case 0:
            return nullptr;
        case 1:
            return SelfDefault().Detach();
        case 2: {
            VARIANT inner;
            V_VT(&inner) = VT_DISPATCH;
            V_DISPATCH(&inner) = SelfDefault().Detach();
            IDispatch* outer = DefaultValue(inner).Detach();
            VariantClear(&inner);
            return outer;
        }
        case 3: {
            VARIANT text;
            V_VT(&text) = VT_BSTR;
            V_BSTR(&text) = SysAllocString(L"42");
            IDispatch* object = DefaultValue(text).Detach();
            VariantClear(&text);
            return object;
        }
        case 4:
            return Failing().Detach();
        case 5:
            m_control->AddRef();
            return m_control;
        case 6: {
            Font font;
            font.size = Pick(2) ? 0 : 5000;
            font.weight = -1;
            font.charset = 32767;
            return ComPtr<IFont>::Adopt(new ReportingFont(font)).As<IDispatch>(IID_IDispatch).Detach();
        }
        default: {
            Font font;
            font.size = 3000;
            return CreateStdFont(font).As<IDispatch>(IID_IDispatch).Detach();
        }
        }
    }

    SAFEARRAY* MakeArray(VARTYPE type)
    {
        SAFEARRAYBOUND bound = { ULONG(Pick(4)), LONG(Pick(3)) - 1 };
        SAFEARRAY* array = SafeArrayCreate(type, 1, &bound);
        return array;
    }

    // A value of a random type; byReference allows one level of reference.
    void Fill(VARIANT& v, bool byReference)
    {
        VariantInit(&v);
        switch (Pick(byReference ? 29 : 25)) {
        case 0:
            V_VT(&v) = VT_EMPTY;
            break;
        case 1:
            V_VT(&v) = VT_NULL;
            break;
        case 2:
            V_VT(&v) = VT_I4;
            V_I4(&v) = Pick(2) ? Bits<LONG>() : LONG(Pick(5)) - 2;
            break;
        case 3:
            V_VT(&v) = VT_R4;
            V_R4(&v) = Pick(2) ? Bits<float>() : (Pick(2) ? FLT_MAX : -HUGE_VALF);
            break;
        case 4:
            V_VT(&v) = VT_R8;
            V_R8(&v) = Pick(2) ? Bits<double>() : (Pick(2) ? 1e300 : std::nan(""));
            break;
        case 5:
            V_VT(&v) = VT_DATE;
            V_DATE(&v) = Pick(2) ? Bits<double>() : 2958466.0;
            break;
        case 6:
        case 7:
            V_VT(&v) = VT_BSTR;
            V_BSTR(&v) = MakeText();
            break;
        case 8:
        case 9:
            V_VT(&v) = VT_DISPATCH;
            V_DISPATCH(&v) = MakeObject();
            break;
        case 10:
            V_VT(&v) = VT_ERROR;
            V_ERROR(&v) = Pick(2) ? DISP_E_PARAMNOTFOUND : Bits<SCODE>();
            break;
        case 11:
            V_VT(&v) = VT_BOOL;
            V_BOOL(&v) = Pick(3) == 0 ? Bits<VARIANT_BOOL>() : (Pick(2) ? VARIANT_TRUE : VARIANT_FALSE);
            break;
        case 12:
            V_VT(&v) = VT_UNKNOWN;
            V_UNKNOWN(&v) = MakeObject();
            break;
        case 13:
            V_VT(&v) = VT_DECIMAL;
            V_DECIMAL(&v).Hi32 = Bits<ULONG>();
            V_DECIMAL(&v).Lo64 = Bits<ULONGLONG>();
            V_DECIMAL(&v).scale = BYTE(Pick(30));
            V_DECIMAL(&v).sign = Pick(2) ? DECIMAL_NEG : 0;
            V_VT(&v) = VT_DECIMAL; // the decimal overlays the type field
            break;
        case 14: {
            static const VARTYPE elements[] = { VT_I4, VT_VARIANT, VT_BSTR, VT_DISPATCH };
            const VARTYPE element = elements[Pick(std::size(elements))];
            V_VT(&v) = VT_ARRAY | element;
            V_ARRAY(&v) = MakeArray(element);
            break;
        }
        case 15:
            // Types no value may have.
            V_VT(&v) = Pick(2) ? VARTYPE(VT_VOID) : VARTYPE(0x0FFF);
            break;
        case 16:
            V_VT(&v) = VT_ARRAY | VT_I4; // without its array
            break;
        case 25:
        case 26: {
            // A value by reference: the referenced value lives as long as the call.
            VARIANT& target = m_referenced.emplace_back();
            Fill(target, false);
            if (V_VT(&target) & VT_ARRAY || V_VT(&target) == VT_VOID || V_VT(&target) == 0x0FFF) {
                V_VT(&v) = VT_BYREF | VT_VARIANT;
                V_VARIANTREF(&v) = &target;
            } else {
                V_VT(&v) = VT_BYREF | V_VT(&target);
                V_BYREF(&v) = &target.lVal; // every member of the union starts there
                if (V_VT(&target) == VT_DECIMAL)
                    V_BYREF(&v) = &target;
            }
            break;
        }
        case 27: {
            VARIANT& target = m_referenced.emplace_back();
            Fill(target, false);
            V_VT(&v) = VT_BYREF | VT_VARIANT;
            V_VARIANTREF(&v) = &target;
            break;
        }
        case 28: {
            // A reference that refers to nothing.
            static const VARTYPE types[] = { VT_I4, VT_BSTR, VT_VARIANT, VT_DISPATCH, VT_R8 };
            V_VT(&v) = VT_BYREF | types[Pick(std::size(types))];
            V_BYREF(&v) = nullptr;
            break;
        }
        default: {
            // The other integers of every width, and currency: random bits, each type reading its
            // own width of them.
            static const VARTYPE integers[]
                = { VT_I2, VT_CY, VT_I1, VT_UI1, VT_UI2, VT_UI4, VT_I8, VT_UI8, VT_INT, VT_UINT };
            V_VT(&v) = integers[Pick(std::size(integers))];
            V_UI8(&v) = Bits<ULONGLONG>();
            break;
        }
        }
    }

    // Clears what this made; references to nothing and types no value has are left alone.
    static void Clear(VARIANT& v)
    {
        if ((V_VT(&v) & VT_BYREF) || V_VT(&v) == VT_VOID || V_VT(&v) == 0x0FFF
            || (V_VT(&v) & VT_ARRAY && !V_ARRAY(&v)))
            return;
        VariantClear(&v);
    }

    std::mt19937& m_random;
    IDispatch* m_control;
    std::vector<VARIANT> m_values;
    std::deque<VARIANT> m_referenced;
};

class InvokeFuzz : public testing::TestWithParam<const ControlClass*> { };

TEST_P(InvokeFuzz, NoCallCrashesAndTheControlStillAnswers)
{
    const ControlClass& controlClass = *GetParam();
    std::mt19937 random(uint32_t(Setting("TOLVA_INVOKE_FUZZ_SEED", 14)));
    const size_t calls = Setting("TOLVA_INVOKE_FUZZ_CALLS", 20000);

    std::vector<DISPID> ids = { DISPID_VALUE, DISPID_UNKNOWN, DISPID_NEWENUM, DISPID_EVALUATE, DISPID_PROPERTYPUT,
        0x7FFFFFFF, LONG(0x80000000) };
    for (const DispatchMember& member : controlClass.members)
        ids.insert(ids.end(), 4, member.id); // mostly members
    const WORD kinds[] = { 0, DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
        DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF, DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF,
        DISPATCH_METHOD | DISPATCH_PROPERTYPUT, 0xFFFF };
    auto pick = [&random](size_t count) { return std::uniform_int_distribution<size_t>(0, count - 1)(random); };

    ComPtr<IUnknown> object = ControlObject::Create(controlClass);
    ComPtr<IDispatch> control = object.As<IDispatch>(IID_IDispatch);
    for (size_t call = 0; call < calls; ++call) {
        HostileArguments arguments(random, control.Get());
        std::vector<VARIANT>& values = arguments.Make(pick(5));
        std::vector<DISPID> named;
        switch (pick(4)) {
        case 0:
            named.push_back(DISPID_PROPERTYPUT);
            break;
        case 1:
            named.push_back(DISPID(pick(3)) - 1);
            break;
        case 2:
            named.assign(pick(4), DISPID_PROPERTYPUT);
            break;
        default:
            break;
        }
        DISPPARAMS params = { values.empty() ? nullptr : values.data(), named.empty() ? nullptr : named.data(),
            UINT(values.size()), UINT(named.size()) };
        VARIANT result;
        VariantInit(&result);
        ExceptionInfo exception;
        UINT argumentError = 0;
        const bool outputs = pick(4) != 0;
        control->Invoke(ids[pick(ids.size())], pick(8) ? IID_NULL : IID_IDispatch, LCID(pick(3) ? 0x409 : 0x407),
            kinds[pick(std::size(kinds))], &params, outputs ? &result : nullptr, outputs ? &exception : nullptr,
            outputs ? &argumentError : nullptr);
        VariantClear(&result);
    }

    // Still answering: every property reads, and the control saves itself.
    ExpectEveryPropertyReads(control.Get(), controlClass);
    ComPtr<IStream> stream;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.Put()), S_OK);
    const HRESULT saved = object.As<IPersistStreamInit>(IID_IPersistStreamInit)->Save(stream.Get(), FALSE);
    EXPECT_TRUE(saved == S_OK || saved == STG_E_CANTSAVE) << std::hex << saved;
}

INSTANTIATE_TEST_SUITE_P(EveryControl, InvokeFuzz, testing::ValuesIn(ControlClasses()), ClassName);

} // namespace
} // namespace tolva::win32::test
