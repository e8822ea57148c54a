// SPDX-License-Identifier: GPL-3.0-or-later
// check
#include "commands/commands.h"

#include "messages/exit_status.h"
#include "program/program.h"

#include "workbench/document/verification.h"

#include <QtCore/QFileInfo>

#include <array>

namespace kiv::app {

using storage::Verdict;
using workbench::Promise;

namespace {

/// The word for the check in JSON.
const char *wordOf(Promise promise)
{
    constexpr std::array words{"identity", "tables", "seal", "rules", "ties", "balances", "sides"};
    return words.at(static_cast<std::size_t>(promise) - 1);
}

const char *wordOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Kept:
        return "kept";
    case Verdict::Mended:
        return "mended";
    case Verdict::Broken:
        return "broken";
    case Verdict::NotJudged:
        break;
    }
    return "not judged";
}

QString detailsText(const QJsonValue &details)
{
    QStringList texts;
    for (const QJsonValue detail : details.toArray())
        texts += plainText(detail);
    return texts.join(QStringLiteral(", "));
}

struct Check {
    QString file;

    void declare(Arguments &arguments)
    {
        arguments.optional("FILE", file, QObject::tr("Budget file or one of its former versions"))
            .file()
            .exclusive("FILE", "--file");
    }
    Report run(Call &call) const
    {
        const QString path = named(call);
        const workbench::Verification found = workbench::verify(path, &call.document.keys());
        const bool isWhole = found.isWhole();
        QJsonArray rows;
        QHash<QString, QString> results; // in the user's words
        for (const workbench::PromiseVerdict &promise : found.promises) {
            results.insert(QLatin1String(wordOf(promise.verdict)), promise.result());
            rows.append(QJsonObject{
                {QStringLiteral("promise"), QLatin1String(wordOf(promise.promise))},
                {QStringLiteral("text"), promise.sentence()},
                {QStringLiteral("verdict"), QLatin1String(wordOf(promise.verdict))},
                {QStringLiteral("details"), QJsonArray::fromStringList(promise.reasons)}});
        }
        Report report(QJsonObject{{QStringLiteral("file"), path},
                                  {QStringLiteral("whole"), isWhole},
                                  {QStringLiteral("promises"), rows}});
        report
            .table({{QObject::tr("Check"), QStringLiteral("text")},
                    {QObject::tr("Result"), QStringLiteral("verdict"),
                     [results](const QJsonValue &word) { return results.value(word.toString()); }},
                    {QObject::tr("Details"), QStringLiteral("details"), detailsText}},
                   rows, {})
            .line(isWhole ? QObject::tr("The budget '%1' is intact.").arg(path)
                          : QObject::tr("The budget '%1' is damaged; bring a whole version back "
                                        "with kiv undo.")
                                .arg(path));
        report.setStatus(isWhole ? ExitStatus::success : ExitStatus::refused);
        return report;
    }

private:
    /// The file to check. The name of a backup is used as it is, without the extension.
    [[nodiscard]] QString named(const Call &call) const
    {
        const QString path = file.isEmpty() ? call.fileNamed() : file;
        return QFileInfo(path).isFile() ? path : Document::withExtension(path);
    }
};

} // namespace

void addCheckCommand(CommandGroup &root)
{
    root.add("check", QObject::tr("Check a budget file for damage"), CommandKind::Standalone,
             Check{});
}

} // namespace kiv::app
