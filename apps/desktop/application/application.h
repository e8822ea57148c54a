// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QApplication>

#include <functional>

namespace kiv::desktop {

/// The application object of the window. Errors that nobody caught are reported, and the
/// event loop goes on: the budget in memory stays.
class Application final : public QApplication {
    Q_OBJECT

public:
    Application(int &argc, char **argv);

    /// Who shows errors that nobody caught; without one they go to the log.
    void setReporter(std::function<void(const QString &)> report) { m_report = std::move(report); }

    bool notify(QObject *receiver, QEvent *event) override;

private:
    std::function<void(const QString &)> m_report;
};

} // namespace kiv::desktop
