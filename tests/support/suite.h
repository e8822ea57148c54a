// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtTest/QtTest>

namespace kiv::test {

/// A class of tests. Each stands as a constant beside its class, and main.cpp runs all
/// those of its program, or the one that the first argument names.
class AnySuite {
public:
    AnySuite();
    virtual ~AnySuite() = default;
    AnySuite(const AnySuite &) = delete;
    AnySuite &operator=(const AnySuite &) = delete;

    [[nodiscard]] virtual QByteArray name() const = 0;
    [[nodiscard]] virtual std::unique_ptr<QObject> tests() const = 0;
};

template <typename Tests>
class Suite final : public AnySuite {
public:
    QByteArray name() const override { return Tests::staticMetaObject.className(); }
    std::unique_ptr<QObject> tests() const override { return std::make_unique<Tests>(); }
};

/// Gives a test a table: the name of each row and what it holds.
template <typename Row>
void addRows(std::initializer_list<std::pair<const char *, Row>> rows)
{
    QTest::addColumn<Row>("row");
    for (const auto &[name, row] : rows)
        QTest::newRow(name) << row;
}
/// What the present row of the test's table holds.
template <typename Row>
Row rowOf()
{
    QFETCH(const Row, row);
    return row;
}

} // namespace kiv::test

// Named once for all tests: only their sources include this header.
using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;
