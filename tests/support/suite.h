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

} // namespace kiv::test
