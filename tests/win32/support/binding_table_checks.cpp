#include "tests/win32/support/binding_table_checks.h"
#include "platform/win32/com/bstr.h"
#include <cwctype>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace tolva::win32::test {

void ExpectUniqueIdsAndNames(std::span<const DispatchMember> members)
{
    std::set<DISPID> ids;
    std::set<std::wstring> names;
    for (const DispatchMember& m : members) {
        EXPECT_TRUE(ids.insert(m.id).second) << m.id;
        std::wstring lower = m.name;
        for (wchar_t& ch : lower)
            ch = wchar_t(towlower(ch));
        EXPECT_TRUE(names.insert(lower).second) << ToUtf8(ViewOf(m.name));
    }
}

} // namespace tolva::win32::test
