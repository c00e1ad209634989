// Literal replacement and removal.
//
// Texts are UTF-16 and compared unit by unit. Where the result cannot be longer than the text, it
// is made in the text's own memory. All functions are linear in the text.
#pragma once

#include "text/Range.h"
#include "text/UnitScan.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace nerlo::text {

// Every non-overlapping occurrence, found from the start; the replacement is not searched again.
// An empty `find` occurs nowhere.
std::u16string replaceAll(std::u16string text, std::u16string_view find,
                          std::u16string_view replacement);

// Each of the ranges, which are in order and do not overlap.
std::u16string replaceRanges(std::u16string text, std::span<const Range> ranges,
                             std::u16string_view replacement);

// Where `what`, which must not be empty, first occurs at or after `from`; the text's size when it
// does not.
std::size_t find(std::u16string_view text, std::size_t from, std::u16string_view what);

// Every unit of the set is removed.
std::u16string removeUnits(std::u16string text, const UnitSet &set);

// Every run of the set's units becomes one `unit`.
std::u16string replaceRuns(std::u16string text, const UnitSet &set, char16_t unit);

// Every run of the set's units becomes `replacement`.
std::u16string replaceRuns(std::u16string text, const UnitSet &set,
                           std::u16string_view replacement);

// Every run of `unit` becomes one.
std::u16string collapseRuns(std::u16string text, char16_t unit);

// The same for texts in UTF-8, where sets and units are ASCII. What is found and put in is UTF-8,
// too.
std::string replaceAll(std::string text, std::string_view find, std::string_view replacement);
std::string removeUnits(std::string text, const UnitSet &ascii);
std::string replaceRuns(std::string text, const UnitSet &ascii, std::string_view replacement);
std::string collapseRuns(std::string text, char ascii);
std::string collapseRuns(std::string text, std::string_view character);

struct Replacement {
    std::u16string_view find;
    std::u16string_view replace;
};

// An ordered list of literal replacements; each row works on the whole result of the row before.
//
// apply() gives the result of all rows in one scan. It looks at clusters: the longest runs of units
// that occur in some row. No match, of any row, can reach beyond a cluster, because the unit beside
// it occurs in no row; so the rows can be applied to each cluster by itself. A cluster without a
// pivot holds no match and is passed over.
class ReplacementTable {
  public:
    // Each row's `find` must hold a unit of `pivots`, and no row may lengthen the text; a constant
    // table that breaks this does not compile. The rows must outlive the table.
    constexpr ReplacementTable(std::span<const Replacement> rows, std::u16string_view pivots)
        : rows_(rows)
        , pivots_(pivots) {
        for (const Replacement &row : rows) {
            shortest_ = std::min(shortest_, row.find.size());
            bool hasPivot = false;
            for (const char16_t unit : row.find) {
                hasPivot = hasPivot || pivots_.contains(unit);
                addToCluster(unit);
            }
            for (const char16_t unit : row.replace) {
                addToCluster(unit);
            }
            if (!hasPivot || row.replace.size() > row.find.size()) {
                throw "a row that the table cannot take";
            }
        }
    }

    constexpr std::span<const Replacement> rows() const { return rows_; }

    std::u16string apply(std::u16string text) const;

  private:
    constexpr void addToCluster(char16_t unit) {
        if (!inCluster_.contains(unit)) {
            inCluster_.add(unit, unit);
        }
        if (unit < ascii_.size()) {
            ascii_[unit] = true;
        }
    }

    bool isInCluster(char16_t unit) const {
        return unit < ascii_.size() ? ascii_[unit] : inCluster_.contains(unit);
    }

    std::span<const Replacement> rows_;
    UnitSet pivots_;
    UnitSet inCluster_;
    std::array<bool, 128> ascii_{};                    // those of its units that are ASCII
    std::size_t shortest_ = std::u16string_view::npos; // a shorter cluster holds no match
};

} // namespace nerlo::text
