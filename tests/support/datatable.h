#pragma once

#include <QtTest>

/// The data of a test: its columns by name, then row after row.
template <typename... Columns>
class DataTable
{
public:
    template <typename... Names>
    explicit DataTable(const Names*... names)
    {
        (QTest::addColumn<Columns>(names), ...);
    }

    void row(const char* name, const Columns&... values) const { (QTest::newRow(name) << ... << values); }
};
