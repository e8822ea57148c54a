// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/error.h"

#include "numira/error.h"

#include <QtTest/QtTest>

#include <optional>
#include <string>

using kiv::foundation::Error;

namespace {

/// The error that a function of the domain makes of what it catches.
template <typename Cause>
Error wrapped(const QString &message, const Cause &cause)
{
    try {
        throw cause;
    } catch (const std::exception &caught) {
        return Error(message, caught);
    }
}

template <typename Expected>
std::optional<Expected> causeAs(const Error &error)
{
    try {
        if (error.cause())
            std::rethrow_exception(error.cause());
    } catch (const Expected &cause) {
        return cause;
    } catch (const std::exception &) {
    }
    return std::nullopt;
}

class SilentError : public std::exception {
public:
    [[nodiscard]] const char *what() const noexcept override { return ""; }
};

} // namespace

class tst_Error : public QObject {
    Q_OBJECT

private slots:
    void handledCauseKeepsItsType();
    void causesStandBehindTheMessage();
    void emptyCauseAddsNothing();
    void causeThatIsNotHandledKeepsItsText();
    void copiesShareTheCause();
};

void tst_Error::handledCauseKeepsItsType()
{
    const Error error = wrapped(u"outer"_qs, numira::OverflowError("too large"));
    const auto cause = causeAs<numira::OverflowError>(error);
    QVERIFY(cause);
    QCOMPARE(std::string(cause->what()), std::string("too large"));
    QCOMPARE(error.message(), u"outer"_qs);
}

void tst_Error::causesStandBehindTheMessage()
{
    const Error inner = wrapped(u"Ünner %1"_qs, std::runtime_error("root"));
    const Error outer = wrapped(u"Outer."_qs, inner);
    QCOMPARE(QString::fromUtf8(outer.what()), u"Outer. Caused by: Ünner %1 Caused by: root"_qs);
    const auto kept = causeAs<Error>(outer);
    QVERIFY(kept && causeAs<std::runtime_error>(*kept));
}

void tst_Error::emptyCauseAddsNothing()
{
    const Error plain(u"alone"_qs, std::exception());
    QCOMPARE(plain.what(), "alone");
    QVERIFY(!plain.cause());
    const Error thrown = wrapped(u"alone"_qs, std::exception());
    QVERIFY(!thrown.cause());
    // A cause without words is kept for its type.
    const Error silent = wrapped(u"alone"_qs, SilentError());
    QCOMPARE(silent.what(), "alone");
    QVERIFY(causeAs<SilentError>(silent));
}

void tst_Error::causeThatIsNotHandledKeepsItsText()
{
    const numira::OverflowError cause("not thrown");
    const auto verify = [](const Error &error) {
        QCOMPARE(error.what(), "outer Caused by: not thrown");
        const auto kept = causeAs<std::runtime_error>(error);
        QVERIFY(kept);
        QCOMPARE(kept->what(), "not thrown");
    };
    verify(Error(u"outer"_qs, cause));
    try {
        throw std::runtime_error("something else");
    } catch (const std::exception &) {
        verify(Error(u"outer"_qs, cause));
    }
    try {
        throw 5;
    } catch (int) {
        verify(Error(u"outer"_qs, cause));
    }
}

void tst_Error::copiesShareTheCause()
{
    std::optional<Error> original = wrapped(u"outer"_qs, std::out_of_range("root"));
    Error assigned(u"other"_qs);
    assigned = *original;
    const Error copy = *original;
    original.reset();
    for (const Error &error : {copy, assigned}) {
        QCOMPARE(error.message(), u"outer"_qs);
        QCOMPARE(error.what(), "outer Caused by: root");
        QVERIFY(causeAs<std::out_of_range>(error));
    }
}

QTEST_APPLESS_MAIN(tst_Error)
#include "tst_error.moc"
