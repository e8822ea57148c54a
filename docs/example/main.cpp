// SPDX-License-Identifier: GPL-3.0-or-later
// A whole front end: adds a bill, shows all bills, and stores the budget under
// each of the names that it is given.
#include "foundation/presentation.h"
#include "navigation/navigator.h"
#include "networking/http_request_sender.h"
#include "storage/budget_file.h"
#include "storage/rates_file.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStandardPaths>

#include <iostream>

using namespace kiv;
using navigation::Navigator;

/// Shows a text to the user; a desktop front end opens a dialog.
static void show(const QString &text)
{
    std::cout << text.toStdString() << std::endl;
}

/// Loading and saving throw what went wrong with the file. An exception that
/// left the event loop would end the program; shown here, it costs nothing: the
/// budget in memory is still there.
class Application final : public QCoreApplication {
public:
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
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    Navigator navigator(std::make_unique<networking::HttpRequestSender>(),
                        std::make_unique<storage::BudgetFile>(),
                        std::make_unique<storage::RatesFile>(folder + QStringLiteral("/rates")));

    // The views listen: one to what it draws, one to each answer to a change.
    QObject::connect(&navigator, &Navigator::showBills, [](const budgeting::BillMap &bills) {
        for (const auto &[source, bill] : bills)
            show(source.name() + u' ' + foundation::presentationText(bill.amount()));
    });
    QObject::connect(&navigator, &Navigator::saveSucceeded, &navigator,
                     &Navigator::onPrepareShowBills);
    QObject::connect(&navigator, &Navigator::saveFailed,
                     [](auto, const auto &, const QString &message) { show(message); });
    QObject::connect(&navigator, &Navigator::savedBudgetFile, &show);

    // What a user does comes through the event loop, under its guard.
    const auto later = [&navigator](auto action) {
        QMetaObject::invokeMethod(&navigator, action, Qt::QueuedConnection);
    };
    const budgeting::Bill rent(budgeting::BudgetSource(QStringLiteral("Rent")),
                               numira::toMoney(numira::toCurrency("USD"), "850.00"),
                               budgeting::EventFrequency::Monthly, QDate(2026, 12, 1));
    const auto addRent = [&] {
        constexpr auto kind = budgeting::BudgetItemTypes::Bill;
        navigator.onAdded(navigation::GuiElementIdentifier(1), kind, rent, std::nullopt,
                          tagging::BudgetItemTags::ItemTags({kind, rent.source()}));
    };
    later(addRent);
    later(addRent); // is refused: there is one of this name
    for (const QString &path : Application::arguments().mid(1))
        later([&navigator, path] { navigator.onSaveAsBudgetFile(path); });
    later(&Application::quit);
    return Application::exec();
}
