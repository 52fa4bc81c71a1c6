// Creating TolvaCommand through COM from the registered DLL, and the DLL's object and lock
// counts that decide when it may be unloaded.
#include "platform/win32/com/com_ptr.h"
#include "tests/win32/dll/tolva_kit_dll.h"
#include "tests/win32/support/dispatch_helpers.h"
#include "tests/win32/support/event_sink.h"
#include <gtest/gtest.h>
#include <olectl.h>

namespace tolva::win32::test {
namespace {

// Both ProgIDs name the class (label_scroll_creation_test.cpp); the class names the versioned one.
TEST(Creation, ByClassIdWithTheVersionedProgId)
{
    ComPtr<IDispatch> command;
    ASSERT_EQ(
        CoCreateInstance(TolvaCommandClsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, command.PutVoid()), S_OK);
    wchar_t* progId = nullptr;
    ASSERT_EQ(ProgIDFromCLSID(TolvaCommandClsid, &progId), S_OK);
    EXPECT_STREQ(progId, L"TolvaKit.TolvaCommand.1");
    CoTaskMemFree(progId);

    EXPECT_EQ(Put(command.Get(), L"Caption", Text(L"From COM")), S_OK);
    OleVariant caption;
    ASSERT_EQ(Get(command.Get(), L"caption", caption), S_OK);
    EXPECT_EQ(AsText(caption), L"From COM");
}

TEST(Creation, AggregationAndUnknownClassesAreRefused)
{
    TolvaKitDll dll;
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(dll.GetClassObject(TolvaCommandClsid, IID_IClassFactory, factory.PutVoid()), S_OK);
    ComPtr<IUnknown> object;
    IUnknown* outer = factory.Get();
    EXPECT_EQ(factory->CreateInstance(outer, IID_IUnknown, object.PutVoid()), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, object.PutVoid()), E_NOINTERFACE);
    ComPtr<IClassFactory> none;
    EXPECT_EQ(
        dll.GetClassObject(TolvaCommandDispatchIid, IID_IClassFactory, none.PutVoid()), CLASS_E_CLASSNOTAVAILABLE);
}

TEST(ModuleCounts, TheDllMayUnloadOnlyWithoutObjectsOrLocks)
{
    TolvaKitDll dll;
    EXPECT_EQ(dll.CanUnloadNow(), S_OK);
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(dll.GetClassObject(TolvaCommandClsid, IID_IClassFactory, factory.PutVoid()), S_OK);
    EXPECT_EQ(dll.CanUnloadNow(), S_FALSE);

    ComPtr<IDispatch> command;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, command.PutVoid()), S_OK);
    factory->LockServer(TRUE);
    factory.Reset();
    command.Reset();
    EXPECT_EQ(dll.CanUnloadNow(), S_FALSE); // locked

    ASSERT_EQ(dll.GetClassObject(TolvaCommandClsid, IID_IClassFactory, factory.PutVoid()), S_OK);
    factory->LockServer(FALSE);
    factory.Reset();
    EXPECT_EQ(dll.CanUnloadNow(), S_OK);
}

TEST(ModuleCounts, SinksAndFontObjectsTheClientKeepsDoNotHoldTheDll)
{
    TolvaKitDll dll;
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(dll.GetClassObject(TolvaCommandClsid, IID_IClassFactory, factory.PutVoid()), S_OK);
    ComPtr<IDispatch> command;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, command.PutVoid()), S_OK);
    factory.Reset();

    auto sink = ComPtr<EventSink>::Adopt(new EventSink(TolvaCommandEventsIid));
    EXPECT_NE(Advise(command.Get(), TolvaCommandEventsIid, sink.Get()), 0u);
    OleVariant font;
    ASSERT_EQ(Get(command.Get(), L"Font", font), S_OK);
    ComPtr<IEnumConnectionPoints> points;
    command.As<IConnectionPointContainer>(IID_IConnectionPointContainer)->EnumConnectionPoints(points.Put());
    EXPECT_EQ(dll.CanUnloadNow(), S_FALSE);
    points.Reset();
    command.Reset();
    EXPECT_EQ(dll.CanUnloadNow(), S_OK); // the font is the system's object, the sink the client's
    EXPECT_EQ(V_VT(&font.Get()), VT_DISPATCH);
}

} // namespace
} // namespace tolva::win32::test
