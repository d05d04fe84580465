// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace glyph {

/// Code points that are never shown, because many people see them as symbols of hate.
inline constexpr std::array<const char*, 6> initialForbiddenUnicodes{"5350", "543d", "0fd5",
                                                                     "0fd6", "0fd7", "0fd8"};

/// Code points that common fonts cannot show, and invisible controls that would look like empty cells.
inline constexpr std::array<const char*, 245> initialNotDisplayableUnicodes{
    "0560", "0588", "09fc", "09fd", "09fe", "312d", "312e",  "312f",  "31b8",  "31b9", "31ba", "31bb", "31bc",
    "31bd", "31be", "31bf", "3377", "3378", "3379", "337a",  "33de",  "33df",  "33ff", "fa2e", "fa2f", "20e2",
    "2700", "275f", "2760", "321d", "321e", "3250", "327c",  "327d",  "327e",  "32cc", "32cd", "32ce", "32cf",
    "135d", "135e", "10c7", "10cd", "0afa", "0afb", "0afc",  "0afd",  "0afe",  "0aff", "0a76", "115a", "115b",
    "115c", "115d", "115e", "11a3", "11a4", "11a5", "11a6",  "11a7",  "11fa",  "11fb", "11fc", "11fd", "11fe",
    "11ff", "05ef", "0c84", "0e86", "0e89", "0e8c", "0e8e",  "0e8f",  "0e90",  "0e91", "0e92", "0e93", "0e98",
    "0ea0", "0ea8", "0ea9", "0eac", "0eba", "0ede", "0edf",  "214f",  "0d04",  "0d00", "0d3b", "0d3c", "0d4f",
    "0d54", "0d55", "0d56", "0d58", "0d59", "0d5a", "0d5b",  "0d5c",  "0d5d",  "0d5e", "0d76", "0d77", "0d78",
    "27ce", "27cf", "269d", "269e", "269f", "26b3", "26b4",  "26b5",  "26b6",  "26b7", "26b8", "26b9", "26ba",
    "26bb", "26bc", "26bf", "26c0", "26c1", "26c2", "26c3",  "26c6",  "26c7",  "26c9", "26ca", "26cc", "26cd",
    "26d0", "26d2", "26d5", "26d6", "26d7", "26d8", "26d9",  "26da",  "26db",  "26dc", "26dd", "26de", "26df",
    "26e0", "26e1", "26e3", "26e4", "26e5", "26e6", "26e7",  "26e8",  "26eb",  "26ec", "26ed", "26ee", "26ef",
    "26f6", "26fb", "26fc", "26fe", "26ff", "23e8", "23f4",  "23f5",  "23f6",  "23f7", "23fb", "23fc", "23fd",
    "23fe", "23ff", "2187", "2188", "218a", "218b", "1032d", "1032e", "1032f", "0b55", "0de6", "0de7", "0de8",
    "0de9", "0dea", "0deb", "0dec", "0ded", "0dee", "0def",  "2095",  "2096",  "2097", "2098", "2099", "209a",
    "209b", "209c", "0c04", "0c77", "0f8c", "0f8d", "0f8e",  "0f8f",  "0fd9",  "0fda", "1677", "1678", "1679",
    "167a", "167b", "167c", "167d", "167e", "167f", "1d7ca", "1d7cb", "0d81",  "200e", "200f", "2028", "2029",
    "202a", "202b", "202c", "202d", "202e", "2062", "2063",  "2064",  "2066",  "2067", "2068", "2069", "206a",
    "206b", "206c", "206d", "206e", "206f", "205f", "2060",  "2061",  "2004",  "2005", "2006"};

}  // namespace glyph
