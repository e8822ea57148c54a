// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/file_outputs.h"

#include "workbench/document/verification.h"
#include "workbench/exports/export.h"

#include <array>

namespace kiv::desktop {

using workbench::ExportFormat;
using Group = ActionCollection::Group;

FileOutputs::FileOutputs(Desk &desk, QWidget *window)
    : QObject(window), m_desk(desk), m_window(window)
{
    ActionCollection &actions = desk.actions();
    QAction *const exporting = actions.add(QStringLiteral("export"), Group::File, tr("&Export …"),
                                           {}, [this] { exportBudget(); });
    QAction *const checking = actions.add(QStringLiteral("check"), Group::File,
                                          tr("Check the &file"), {}, [this] { checkFile(); });
    const auto follow = [this, exporting, checking] {
        const bool isOpen = !m_desk.document().file().isEmpty();
        for (QAction *action : {exporting, checking})
            ActionCollection::allow(action, isOpen, tr("No budget is open."));
    };
    connect(&desk, &Desk::refreshWanted, this, follow);
    follow();
}

void FileOutputs::exportBudget()
{
    constexpr std::array formats{ExportFormat::Journal, ExportFormat::Csv, ExportFormat::Json};
    const std::optional<qsizetype> chosen = m_desk.questions().choose(
        m_window, tr("In which form are the transactions exported?"),
        {tr("Journal, for ledger and hledger"), tr("Table (CSV)"), tr("Everything (JSON)")});
    if (!chosen)
        return;
    const ExportFormat format = formats.at(static_cast<std::size_t>(*chosen));
    const QString file = m_desk.questions().fileToExport(m_window, workbench::wordOf(format));
    if (file.isEmpty())
        return;
    m_desk.writeOut(QStringLiteral("export"), file,
                    [&] { workbench::exportTo(m_desk.requests(), format, file); });
}

void FileOutputs::checkFile()
{
    m_desk.tryWork(QStringLiteral("check"), [this] {
        m_desk.document().writeNow(); // the file itself is looked at
        const workbench::Verification found =
            workbench::verify(m_desk.document().file(), &m_desk.document().keys());
        QStringList lines{
            found.isWhole()
                ? tr("The budget '%1' is intact.").arg(found.path)
                : tr("The budget '%1' is damaged. A former version can be brought back on the page "
                     "“History”.")
                      .arg(found.path),
            QString()};
        for (const workbench::PromiseVerdict &promise : found.promises) {
            lines += tr("%1: %2").arg(promise.sentence(), promise.result());
            for (const QString &reason : promise.reasons)
                lines += u'\t' + workbench::inPlainWords(reason);
        }
        m_desk.questions().show(m_window, tr("Check of the file"), lines.join(u'\n'));
    });
}

} // namespace kiv::desktop
