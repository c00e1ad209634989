// Rows of named cases for functions from text to text.
#pragma once

#include "tests/reference/RandomText.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace nerlo {

struct Row {
    const char *shows;
    std::u16string text;
    std::u16string expected;
};

template <class Run>
void expectRows(std::initializer_list<Row> rows, Run run) {
    for (const Row &row : rows) {
        EXPECT_EQ(reference::escaped(run(row.text)), reference::escaped(row.expected))
            << row.shows << ": \"" << reference::escaped(row.text) << '"';
    }
}

} // namespace nerlo
