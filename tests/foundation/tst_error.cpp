// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "foundation/error.h"

#include "numira/error.h"

#include <optional>

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

} // namespace

class tst_Error : public QObject {
    Q_OBJECT

private slots:
    void handledCausesKeepTheirTypes()
    {
        const Error inner = wrapped(u"Ünner %1"_qs, numira::OverflowError("root"));
        std::optional<Error> outer = wrapped(u"Outer."_qs, inner);
        Error assigned(u"other"_qs);
        assigned = *outer;
        const Error copy = *outer;
        outer.reset();
        for (const Error &error : {copy, assigned}) {
            QCOMPARE(error.message(), u"Outer."_qs);
            QCOMPARE(QString::fromUtf8(error.what()),
                     u"Outer. Caused by: Ünner %1 Caused by: root"_qs);
            const auto kept = causeAs<Error>(error);
            QVERIFY(kept && causeAs<numira::OverflowError>(*kept));
        }
    }

    void emptyCauseAddsNothing()
    {
        for (const Error &error : {Error(u"alone"_qs, std::exception()),
                                   wrapped(u"alone"_qs, std::exception()), Error(u"alone"_qs)}) {
            QCOMPARE(error.what(), "alone");
            QVERIFY(!error.cause());
        }
        QCOMPARE(Error(u"alone"_qs, Error(QString())).what(), "alone");
    }

    void causeThatIsNotHandledKeepsItsText()
    {
        const numira::OverflowError cause("not thrown");
        std::vector<Error> errors{Error(u"outer"_qs, cause)};
        try {
            throw std::out_of_range("something else");
        } catch (const std::exception &) {
            errors.emplace_back(u"outer"_qs, cause);
        }
        try {
            throw 5;
        } catch (int) {
            errors.emplace_back(u"outer"_qs, cause);
        }
        for (const Error &error : errors) {
            QCOMPARE(error.what(), "outer Caused by: not thrown");
            const auto kept = causeAs<std::runtime_error>(error);
            QVERIFY(kept && std::string_view(kept->what()) == "not thrown");
        }
    }
};

static const kiv::test::Suite<tst_Error> suite;
#include "tst_error.moc"
