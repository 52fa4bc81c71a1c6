#include "host/form/form_property_bag.h"
#include <gtest/gtest.h>

namespace tolva {
namespace {

TEST(FormPropertyBag, ReadsStoredValuesAndDefaultsForMissingKeys)
{
    FormObject object { u"TolvaKit.TolvaCommand", u"cmd" };
    object.Set(u"Caption", u"OK");
    FormPropertyBag bag(object);
    EXPECT_EQ(bag.ReadProperty(u"caption", u"Command"), Variant(u"OK"));
    EXPECT_EQ(bag.ReadProperty(u"Style", int32_t(0)), Variant(int32_t(0)));
}

TEST(FormPropertyBag, LeavesOutValuesEqualToTheirDefault)
{
    FormObject object { u"TolvaKit.TolvaCommand", u"cmd" };
    object.Set(u"Left", int32_t(120));
    object.Set(u"Style", int32_t(1));
    FormPropertyBag bag(object);
    bag.WriteProperty(u"Style", int32_t(0), int32_t(0));
    bag.WriteProperty(u"Caption", u"OK", u"Command");
    bag.WriteProperty(u"Enabled", true, true);
    ASSERT_EQ(object.properties.size(), 2u);
    EXPECT_EQ(object.properties[0].key, u"Left");
    EXPECT_EQ(object.properties[1].key, u"Caption");
}

TEST(FormPropertyBag, ReplacesAnExistingKeyInPlace)
{
    FormObject object { u"TolvaKit.TolvaCommand", u"cmd" };
    object.Set(u"Caption", u"OK");
    object.Set(u"Left", int32_t(120));
    FormPropertyBag bag(object);
    bag.WriteProperty(u"CAPTION", u"Cancel", u"Command");
    EXPECT_EQ(object.properties[0].value, Variant(u"Cancel"));
    EXPECT_EQ(object.properties[0].key, u"Caption");
}

} // namespace
} // namespace tolva
