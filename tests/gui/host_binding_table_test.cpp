// The binding tables of the form host's automation objects: the extender routes a call by its id
// to itself or to the control, so no control may use one of its ids.
#include "host/win32/controls_collection.h"
#include "host/win32/extender.h"
#include "host/win32/form_automation.h"
#include "host/win32/menu_item.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_class.h"
#include "tests/win32/support/binding_table_checks.h"
#include <gtest/gtest.h>

namespace tolva::win32 {
namespace {

TEST(HostBindingTable, IdsAndNamesAreUniqueInEachObject)
{
    for (std::span<const DispatchMember> table : { host::Extender::Table(), host::FormAutomation::Table(),
             host::ControlsCollection::Table(), host::MenuItem::Table() })
        test::ExpectUniqueIdsAndNames(table);
}

TEST(HostBindingTable, NoControlUsesAnIdOfTheExtender)
{
    for (const ControlClass* c : ControlClasses())
        for (const DispatchMember& member : c->members)
            EXPECT_EQ(FindMember(host::Extender::Table(), member.id), nullptr)
                << ToUtf8(ViewOf(c->name)) << "." << ToUtf8(ViewOf(member.name));
}

} // namespace
} // namespace tolva::win32
