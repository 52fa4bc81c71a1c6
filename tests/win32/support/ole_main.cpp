// The entry point of the test programs that run under Wine: an OLE apartment for the run.
#include "platform/win32/windows_api.h"
#include <gtest/gtest.h>
#include <ole2.h>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (FAILED(OleInitialize(nullptr)))
        return 2;
    int result = RUN_ALL_TESTS();
    OleUninitialize();
    return result;
}
