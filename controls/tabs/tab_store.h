#pragma once
#include "core/property_bag.h"
#include "core/string.h"
#include <cstdint>
#include <vector>

namespace tolva {

// The captions of a tab strip and one user integer per tab, each an array from index 0 (kept,
// never used for a tab) to its upper bound. The two bounds move together except when a property
// bag stored different ones. An index outside an array is the run time's subscript error.
class TabStore {
public:
    // The most tabs a strip holds; a larger size is refused as out of memory.
    static constexpr int32_t MaxUpperBound = 65535;

    const String& Caption(int32_t index) const;
    void SetCaption(int32_t index, StringView caption);
    int32_t Data(int32_t index) const;
    void SetData(int32_t index, int32_t value);
    int32_t CaptionUpperBound() const { return int32_t(m_captions.size()) - 1; }

    // Both arrays to indexes 0 to upperBound, keeping what they hold.
    void Resize(int32_t upperBound);
    // Both arrays back to the single unused element 0.
    void Clear();
    // Every tab from index to last - 1 takes the caption and data of the one after it, in turn:
    // a missing element stops the move with the subscript error where it is met.
    void MoveDown(int32_t index, int32_t last);

    // The arrays in a property bag, as "Tabs" and "TabData" arrays.
    void WriteCaptions(PropertyBag& bag) const;
    void WriteData(PropertyBag& bag) const;
    void ReadCaptions(PropertyBag& bag);
    void ReadData(PropertyBag& bag);

private:
    std::vector<String> m_captions { String() };
    std::vector<int32_t> m_data { 0 };
};

} // namespace tolva
