// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>

namespace kiv::app {

/// The application object. An exception that leaves a slot which the event loop
/// called would end the program; here it is told to the user, and the budget in
/// memory stays.
class Application final : public QCoreApplication {
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace kiv::app
