// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QEventLoop>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtTest/QtTest>

namespace kiv::test {

/// How a process ended, and what it wrote.
struct Ended {
    int status = -1;
    QByteArray out;
    QByteArray err;

    [[nodiscard]] QJsonDocument json() const { return QJsonDocument::fromJson(out); }
};

/// A temporary folder with a budget file, settings and exchange rates of its
/// own, in which the built `kiv` is run as a person would.
class Household {
public:
    Household()
    {
        m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
        m_environment.insert(QStringLiteral("XDG_DATA_HOME"), path("data"));
        m_environment.insert(QStringLiteral("KIV_FILE"), file());
        m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        m_environment.insert(QStringLiteral("COLUMNS"), QStringLiteral("80"));
    }

    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }
    [[nodiscard]] QString file() const { return path("household.budget"); }
    void setVariable(const char *name, const QString &value)
    {
        m_environment.insert(QString::fromLatin1(name), value);
    }

    [[nodiscard]] QByteArray bytes(const QString &name) const
    {
        QFile opened(name);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile opened(name);
        QVERIFY(opened.open(QIODevice::WriteOnly));
        QCOMPARE(opened.write(content), content.size());
    }

    /// Lets the process start in this household.
    void prepare(QProcess &process) const
    {
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder.path());
    }
    /// Words are separated by blanks; a blank within a word is written as "_".
    [[nodiscard]] Ended run(const char *line, const QByteArray &input = {}) const
    {
        QStringList words = QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts);
        for (QString &word : words)
            word.replace(u'_', u' ');
        QProcess process;
        prepare(process);
        // The loop goes on meanwhile, for servers of the test's own.
        QEventLoop loop;
        QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(60'000, &loop, &QEventLoop::quit);
        process.start(QStringLiteral(KIV_PROGRAM), words);
        process.write(input);
        process.closeWriteChannel();
        if (process.waitForStarted() && process.state() != QProcess::NotRunning)
            loop.exec();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }
    /// Runs a command that must succeed, and gives its JSON.
    [[nodiscard]] QJsonDocument json(const char *line) const
    {
        const Ended ended = run((QByteArray(line) + " --json").constData());
        if (ended.status != 0)
            qWarning("%s: %s", line, ended.err.constData());
        return ended.json();
    }
    /// Runs commands that must succeed; tells whether all did.
    [[nodiscard]] bool runAll(const std::vector<const char *> &lines) const
    {
        for (const char *line : lines) {
            const Ended ended = run(line);
            if (ended.status != 0) {
                qWarning("%s: %s", line, ended.err.constData());
                return false;
            }
        }
        return true;
    }

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

} // namespace kiv::test
