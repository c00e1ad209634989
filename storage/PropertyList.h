// Property lists as bytes: read in XML or binary form, written in either.
//
// libplist does the reading and writing; it does not check its input for well-formed UTF-8, valid
// numbers, nesting, sizes or balanced elements, so that is done here before libplist is given the
// bytes. Any bytes may be given, from any thread. Nothing here throws except std::bad_alloc.
#pragma once

#include "storage/FileCalls.h"
#include "storage/PropertyListLimits.h"
#include "storage/PropertyValue.h"

#include <optional>
#include <string>
#include <string_view>

namespace nerlo::storage {

struct ParsedPropertyList {
    std::optional<PropertyValue> value;
    std::string error; // English, no line break; empty when there is a value
};

// Kinds are kept: an integer stays an integer, a boolean a boolean. Dates are read to the whole
// second. In XML a dictionary with the single key "CF$UID" is how a reference is written, and is
// read as one.
ParsedPropertyList parsePropertyList(std::string_view bytes);

// Laid out like the files of the edition for macOS, so that a file does not change by being saved;
// keys in the dictionary's order. In both forms, what a property list cannot hold (an unpaired
// surrogate, U+0000) becomes U+FFFD, a reference above 32 bits is cut to them, and a date is
// written to the whole second.
std::string writeXml(const PropertyValue &value);
std::string writeBinary(const PropertyValue &value);

// XML, unless a text holds a control character that an XML reader would refuse or change (all below
// U+0020 but tab and line feed): then binary.
std::string writePropertyList(const PropertyValue &value);

// replaceFile() with that. What could not be read back, because of PropertyListLimits, is not
// written.
std::string replaceWithPropertyList(const std::string &path, const PropertyValue &value,
                                    FileCalls &calls = FileCalls::system());

} // namespace nerlo::storage
