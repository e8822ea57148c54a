// SPDX-License-Identifier: GPL-3.0-or-later
// A whole front end: adds a bill, shows all bills, and stores the budget under
// each of the names that it is given.
#include "foundation/presentation.h"
#include "navigation/navigator.h"
#include "networking/http_request_sender.h"
#include "storage/budget_file.h"
#include "storage/rates_file.h"

#include <QtCore/QCoreApplication>

#include <iostream>

using namespace kiv;
using namespace kiv::budgeting;
using namespace kiv::navigation;

static void show(const QString &text)
{
    std::cout << text.toStdString() << std::endl;
}

/// Loading and saving throw what went wrong with the file. Leaving the event loop it would
/// end the program; shown here, it costs nothing: the budget in memory is still there.
struct Application final : QCoreApplication {
    using QCoreApplication::QCoreApplication;
    bool notify(QObject *receiver, QEvent *event) override
    try {
        return QCoreApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        show(QString::fromUtf8(error.what()));
        return false;
    }
};

int main(int argc, char **argv)
{
    Application application(argc, argv);
    Application::setApplicationName(QStringLiteral("kiv-example")); // names the settings
    Navigator navigator(std::make_unique<networking::HttpRequestSender>(),
                        std::make_unique<storage::BudgetFile>(),
                        std::make_unique<storage::RatesFile>(QStringLiteral("kiv-example.rates")));

    // Views listen: to what they draw, and to each answer to a change.
    QObject::connect(&navigator, &Navigator::showBills, [](const BillMap &bills) {
        for (const auto &[source, bill] : bills)
            show(source.name() + u' ' + foundation::presentationText(bill.amount()));
    });
    QObject::connect(&navigator, &Navigator::saveSucceeded, &Navigator::onPrepareShowBills);
    QObject::connect(&navigator, &Navigator::saveFailed,
                     [](auto, const auto &, const QString &message) { show(message); });
    QObject::connect(&navigator, &Navigator::savedBudgetFile, &show);

    const Bill rent(BudgetSource(QStringLiteral("Rent")),
                    numira::toMoney(numira::toCurrency("USD"), "850.00"), EventFrequency::Monthly,
                    QDate(2026, 12, 1));
    const tagging::BudgetItemTags::ItemTags noTags({BudgetItemTypes::Bill, rent.source()});
    for (const int element : {1, 2}) // the second is refused: there is one of this name
        navigator.onAdded(GuiElementIdentifier(element), BudgetItemTypes::Bill, rent, {}, noTags);
    // What may throw comes through the event loop, under its guard, as all does from a view.
    for (const QString &path : Application::arguments().mid(1))
        QMetaObject::invokeMethod(&navigator, "onSaveAsBudgetFile", Qt::QueuedConnection,
                                  Q_ARG(QString, path));
    QMetaObject::invokeMethod(&application, &Application::quit, Qt::QueuedConnection);
    return Application::exec();
}
