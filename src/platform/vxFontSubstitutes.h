// Families of equal metrics. A font of one group lays text out exactly as
// any other of its group would, so where one is installed the names of the
// others count as installed too.
#pragma once

#include <string>
#include <vector>

namespace Velarix {

// The other families of the group of a lower-case family name; empty when
// the name belongs to no group.
std::vector<std::wstring> vxMetricCompatibleFamilies(const std::wstring& lowerName);

}  // namespace Velarix
