// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>

namespace kiv::app {

/// The application object. It reports exceptions from slots that the event loop calls;
/// they would end the program otherwise. The budget in memory stays.
class Application final : public QCoreApplication {
public:
    Application(int &argc, char **argv);
    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace kiv::app
