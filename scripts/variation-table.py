#!/usr/bin/env python3
"""Makes text/VariationTable.h from the files of Debian's package unicode-data.

    scripts/variation-table.py [FOLDER] > text/VariationTable.h

FOLDER is /usr/share/unicode where it is not named. Sequences with ideographs for compatibility
are left out: they follow from the decompositions that ICU knows. So are Mongolian ones: fonts
know more of them than the standard lists.
"""
import re
import sys

folder = sys.argv[1] if len(sys.argv) > 1 else "/usr/share/unicode"
selectors = {}  # base -> bits, the lowest for U+FE00
version = ""
for name in ("StandardizedVariants.txt", "emoji/emoji-variation-sequences.txt"):
    with open(f"{folder}/{name}", encoding="utf-8") as lines:
        for line in lines:
            found = re.match(r"# (?:StandardizedVariants-|Emoji Version )([0-9.]*[0-9])", line)
            version = version or (found.group(1) if found else "")
            found = re.match(r"([0-9A-F]+) (FE0[0-9A-F]) *;", line)
            if found and "CJK COMPATIBILITY" not in line:
                base = int(found.group(1), 16)
                selectors[base] = selectors.get(base, 0) | 1 << (int(found.group(2), 16) - 0xFE00)

rows = []
for base in sorted(selectors):
    if rows and rows[-1][1] == base - 1 and rows[-1][2] == selectors[base]:
        rows[-1][1] = base
    else:
        rows.append([base, base, selectors[base]])

print(f"""// Made by scripts/variation-table.py from StandardizedVariants.txt and
// emoji-variation-sequences.txt of Unicode {version}. Not edited by hand.
//
// Base characters, and the selectors that may follow them: the lowest bit for U+FE00. In order.
#pragma once

#include <array>
#include <cstdint>

namespace nerlo::text {{

struct VariationRow {{
    char32_t first;
    char32_t last;
    std::uint16_t selectors;
}};
// clang-format off
inline constexpr std::array<VariationRow, {len(rows)}> variationTable{{{{""")
for at in range(0, len(rows), 4):
    print("    " + " ".join("{0x%04X, 0x%04X, 0x%04X}," % tuple(row) for row in rows[at:at + 4]))
print("""}};
// clang-format on

} // namespace nerlo::text""")
