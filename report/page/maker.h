// How to reach the maker: printed at the foot of every report and shown in the About window.
#pragma once

#include <array>
#include <string_view>

namespace tarvix {

inline constexpr std::string_view kMakerWebSite = "www.brindle.example";

struct MakerOffice {
    std::string_view location;
    std::string_view telephone;
    std::string_view fax;
};

inline constexpr MakerOffice kHeadquarters{"Marlow Falls, OH", "(555) 555-0100", "(555) 555-0101"};

inline constexpr std::array<MakerOffice, 3> kRegionalOffices{{
    {"Port Alder, TX", "(555) 555-0110", "(555) 555-0111"},
    {"Kestrel Bay, CA", "(555) 555-0120", "(555) 555-0121"},
    {"Fenwick Mills, NJ", "(555) 555-0130", "(555) 555-0131"},
}};

}  // namespace tarvix
