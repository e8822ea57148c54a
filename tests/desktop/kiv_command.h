// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtTest/QtTest>

/// Runs `kiv` on a budget file, with settings of its own in the file's folder.
class KivCommand {
public:
    explicit KivCommand(QString file) : m_file(std::move(file))
    {
        const QString folder = QFileInfo(m_file).absolutePath();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("KIV_FILE"), m_file);
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.remove(QStringLiteral("LANGUAGE"));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder + QStringLiteral("/config"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder + QStringLiteral("/data"));
        const QString programs = QFileInfo(QStringLiteral(KIV_COMMAND)).absolutePath();
        environment.insert(QStringLiteral("PATH"), programs + u':' + qEnvironmentVariable("PATH"));
        m_process.setWorkingDirectory(folder);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }

    /// What the command with these words prints. Anything but success ends the test program.
    QByteArray run(const QStringList &words, const QByteArray &input = {})
    {
        return runProgram(QStringLiteral(KIV_COMMAND), words, input);
    }
    /// Runs the lines in a shell in the file's folder.
    void runScript(const QByteArray &lines)
    {
        runProgram(QStringLiteral("sh"), {QStringLiteral("-e")}, lines);
    }
    /// Runs the lines in one session.
    QByteArray runLines(const QByteArray &lines) { return run({QStringLiteral("shell")}, lines); }
    /// Makes the file, with the household that docs/domain.md works out, as it is at the end
    /// of February. It has two versions, since changes within a second share one. Where a busy
    /// computer takes longer, it is made again.
    void makeHousehold()
    {
        QFile file(QStringLiteral(KIV_HOUSEHOLD));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("The household is missing.");
        const QByteArray lines = file.readAll();
        QDir former(m_file + QStringLiteral(".versions"));
        for (int tries = 10; tries > 0; --tries) {
            QFile::remove(m_file);
            former.removeRecursively();
            run({QStringLiteral("new")});
            runLines(lines);
            former.refresh();
            if (former.entryList(QDir::Files).size() == 1)
                return;
        }
        qFatal("The household takes too long.");
    }

private:
    QByteArray runProgram(const QString &program, const QStringList &words, const QByteArray &input)
    {
        m_process.start(program, words);
        m_process.write(input);
        m_process.closeWriteChannel();
        m_process.waitForFinished(60'000);
        if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0)
            qFatal("%s %s failed", qPrintable(program), qPrintable(words.join(u' ')));
        return m_process.readAllStandardOutput();
    }

    QString m_file;
    QProcess m_process;
};
