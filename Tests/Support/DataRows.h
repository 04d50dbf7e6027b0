#pragma once

// Data tables as arrays of a row type with a member "name", one line a row:
//
//     void tst_X::radius_data() { DataRows::add(radiusRows()); }
//     void tst_X::radius() { const RadiusRow row = DataRows::current(radiusRows()); ... }

#include <QtTest/QtTest>

namespace DataRows {

template <typename Rows>
void add(const Rows &inRows)
{
    QTest::addColumn<int>("row");
    int index = 0;
    for (const auto &row : inRows) {
        QTest::newRow(row.name) << index++;
    }
}

template <typename Rows>
auto current(const Rows &inRows)
{
    return *std::next(std::begin(inRows), *static_cast<int *>(QTest::qData("row", QMetaType::Int)));
}

} // namespace DataRows
