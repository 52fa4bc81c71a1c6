#pragma once
#include "tools/reference/library_description.h"

namespace tolva::reference {

// The keys a new control of the class writes into a property bag, in the order it writes them,
// each with the type and value of its default: the control saves itself into a bag that records
// what it is given. A key named like a property of the class's interface takes that property's
// type: colours show as the hexadecimal form files use, values of an enumeration with their
// member's name. Empty for a class the library does not create.
std::vector<PersistedProperty> PersistedPropertiesOf(
    const ControlClassDescription& controlClass, const std::vector<Enumeration>& enumerations);

} // namespace tolva::reference
