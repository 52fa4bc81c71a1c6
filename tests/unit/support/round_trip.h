#pragma once
#include "core/memory_property_bag.h"
#include <gtest/gtest.h>

namespace tolva {

// Writes the original, reads that bag into the copy and writes the copy again: both bags must
// hold the same entries, so whatever the write recorded the read restored. With a test of what
// the write records, this checks reading key by key. Returns the first bag.
template <class Control> MemoryPropertyBag ExpectRoundTrip(Control& original, Control& copy)
{
    MemoryPropertyBag bag;
    original.WriteProperties(bag);
    copy.ReadProperties(bag);
    MemoryPropertyBag again;
    copy.WriteProperties(again);
    EXPECT_EQ(again.Entries(), bag.Entries());
    return bag;
}

} // namespace tolva
